#include "hosts/dialog/desktop_notice.h"

#include <QtCore/QVariantMap>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusPendingReply>
#include <utility>

namespace kesto {
namespace {

const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
constexpr int answerLimitMs = 5000;
constexpr quint32 closedByUser = 2;

QDBusMessage callOf(const char* method, const QVariantList& arguments) {
  QDBusMessage call = QDBusMessage::createMethodCall(service, path, service, QLatin1String(method));
  call.setArguments(arguments);
  return call;
}

}  // namespace

void DesktopNotice::show(const QString& title, const QString& text, const QString& action) {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return Q_EMIT unavailable();
  if (!std::exchange(m_isConnected, true)) {
    bus.connect(service, path, service, QStringLiteral("ActionInvoked"), this,
                SLOT(takeAction(quint32, QString)));
    bus.connect(service, path, service, QStringLiteral("NotificationClosed"), this,
                SLOT(takeClosing(quint32, quint32)));
  }
  const QStringList actions{QStringLiteral("default"), action, QStringLiteral("show"), action};
  constexpr uchar critical = 2;  // it does not go by itself
  const QVariantMap hints{{QStringLiteral("urgency"), QVariant::fromValue(critical)},
                          {QStringLiteral("desktop-entry"), QStringLiteral("kesto-print")}};
  const QDBusPendingCall call =
      bus.asyncCall(callOf("Notify", {QStringLiteral("kesto-print"), m_id, QStringLiteral("printer-error"),
                                      title, text.toHtmlEscaped(), actions, hints, 0}),
                    answerLimitMs);
  auto* watcher = new QDBusPendingCallWatcher(call, this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    watcher->deleteLater();
    const QDBusPendingReply<quint32> reply = *watcher;
    if (reply.isError()) return Q_EMIT unavailable();
    m_id = reply.value();
  });
}

void DesktopNotice::close() {
  if (const quint32 id = std::exchange(m_id, 0); id != 0)
    QDBusConnection::sessionBus().send(callOf("CloseNotification", {id}));
}

void DesktopNotice::takeAction(quint32 id, const QString& /*action*/) {
  if (id != m_id || id == 0) return;
  close();
  Q_EMIT actionPressed();
}

void DesktopNotice::takeClosing(quint32 id, quint32 reason) {
  if (id != m_id || id == 0) return;
  m_id = 0;
  if (reason == closedByUser) Q_EMIT dismissed();
}

}  // namespace kesto
