// The print dialog as a process of its own: kesto-print --portal FD.
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QObject>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QSocketNotifier>
#include <memory>

#include "hosts/channel/channel.h"
#include "platform/descriptor.h"
#include "platform/outcome.h"

namespace kesto {

/// The environment of a dialog that the portal's service starts: the service's own without what would send
/// the dialog's own requests to the portal again, and so to the service.
QProcessEnvironment dialogEnvironment(QProcessEnvironment environment);

/// One dialog and the channel to it. The dialog goes on when this object ends: it may hold a document.
class DialogProcess : public QObject {
  Q_OBJECT

 public:
  explicit DialogProcess(QObject* parent) : QObject(parent) {}

  /// Starts `program`. Fails when there is no such program or the system refuses. Once.
  Outcome start(const QString& program);
  /// Sends a message, with a copy of the descriptor when there is one; see PrintChannel::send. Fails before
  /// the start.
  Outcome send(const QJsonObject& message, int attached = -1);

 Q_SIGNALS:
  /// What the dialog says. A descriptor is not expected from it and is closed.
  void received(const QJsonObject& message);
  /// The process has ended and all it said has been told; `isNormal` when it ended by itself with exit code
  /// 0.
  void finished(bool isNormal);

 private:
  void reap();
  void finishWhenBothEnded();

  std::unique_ptr<PrintChannel> m_channel;
  Descriptor m_processDescriptor;
  std::unique_ptr<QSocketNotifier> m_endNotifier;
  bool m_isClosed = false;
  bool m_isReaped = false;
  bool m_isNormal = false;
};

}  // namespace kesto
