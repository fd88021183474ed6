// The channel between kesto-portal and the print dialog that it started. docs/formats/print-channel.md tells
// the messages; this is their transport.
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QObject>
#include <QtCore/QSocketNotifier>

#include "platform/descriptor.h"
#include "platform/outcome.h"

namespace kesto {

/// One end of the channel: JSON objects as datagrams of at most 256 KiB, each with at most one descriptor.
/// Nothing waits: what the other end does not take at once is refused, what it sends arrives as a signal.
class PrintChannel : public QObject {
  Q_OBJECT

 public:
  /// The most bytes of a message in UTF-8.
  static constexpr qsizetype largestMessage = qsizetype{256} * 1024;

  /// Makes two connected ends, neither of which is inherited by a program that is started.
  static Outcome makePair(Descriptor* one, Descriptor* other);

  /// Takes over `socket`, one of such two ends; programs that this one starts do not inherit it.
  explicit PrintChannel(Descriptor socket, QObject* parent = nullptr);

  /// Sends one message and a copy of the descriptor `attached` with it; -1 attaches none and the caller keeps
  /// its own. Fails when the message is too large, the other end is gone or has too much to read.
  Outcome send(const QJsonObject& message, int attached = -1);

 Q_SIGNALS:
  /// One message has arrived. Who wants the descriptor that came with it moves it out; else it is closed once
  /// all have been told. For direct connections alone.
  void received(const QJsonObject& message, kesto::Descriptor& attached);
  /// The other end is closed, or sent what is no message. Comes once, after the last message.
  void closed();

 private:
  void readMessage();
  void close();

  Descriptor m_socket;
  QSocketNotifier m_notifier;
  QByteArray m_buffer;
};

}  // namespace kesto
