// The channel between kesto-portal and the print dialog that it started. docs/formats/print-channel.md
// describes the messages; this is their transport.
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QObject>
#include <QtCore/QSocketNotifier>

#include "platform/descriptor.h"
#include "platform/outcome.h"

namespace kesto {

/// One end of the channel: JSON objects as datagrams of at most 256 KiB, each with at most one descriptor.
/// Nothing here waits: sending fails when the other end has no room, and what it sends arrives as a signal.
class PrintChannel : public QObject {
  Q_OBJECT

 public:
  /// The largest message in bytes of UTF-8.
  static constexpr qsizetype largestMessage = qsizetype{256} * 1024;

  /// Creates two connected ends. Programs that this process starts do not inherit them.
  static Outcome makePair(Descriptor* one, Descriptor* other);

  /// Takes over `socket`, one of two such ends. Programs that this process starts do not inherit it.
  explicit PrintChannel(Descriptor socket, QObject* parent = nullptr);

  /// Sends one message and a copy of the descriptor `attached` with it; -1 attaches none and the caller keeps
  /// its own. Fails when the message is too large, the other end is closed or has too much to read.
  Outcome send(const QJsonObject& message, int attached = -1);

 Q_SIGNALS:
  /// Emitted when a message has arrived. A receiver that wants the descriptor moves it out; otherwise it is
  /// closed after the last receiver. For direct connections only.
  void received(const QJsonObject& message, kesto::Descriptor& attached);
  /// Emitted once, after the last message, when the other end is closed or has sent something that is not a
  /// message.
  void closed();

 private:
  void readMessage();
  void close();

  Descriptor m_socket;
  QSocketNotifier m_notifier;
  QByteArray m_buffer;
};

}  // namespace kesto
