// The print dialog as a separate process: kesto-print --portal FD.
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

/// The environment of a dialog that the portal's service starts: the service's own, without variables that
/// would send the dialog's own requests to the portal and so back to the service.
QProcessEnvironment dialogEnvironment(QProcessEnvironment environment);

/// One dialog and the channel to it. The dialog goes on when this object is destroyed, because it may have a
/// document.
class DialogProcess : public QObject {
  Q_OBJECT

 public:
  explicit DialogProcess(QObject* parent) : QObject(parent) {}

  /// Starts `program`; call it once. Fails when there is no such program or the system refuses.
  Outcome start(const QString& program);
  /// Sends a message, with a copy of the descriptor if there is one; see PrintChannel::send. Fails before the
  /// start.
  Outcome send(const QJsonObject& message, int attached = -1);

 Q_SIGNALS:
  /// A message from the dialog. A descriptor is not expected and is closed.
  void received(const QJsonObject& message);
  /// The process has ended and its messages have been delivered; `isNormal` when it exited with code 0.
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
