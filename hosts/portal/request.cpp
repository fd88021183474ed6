#include "hosts/portal/request.h"

#include <QtCore/QRegularExpression>

namespace kesto {

QString senderOf(const QDBusObjectPath& handle) {
  static const QRegularExpression form(
      QStringLiteral(R"(^/org/freedesktop/portal/desktop/request/(\d+(?:_\d+)+)/[A-Za-z0-9_]+$)"));
  const QRegularExpressionMatch match = form.match(handle.path());
  if (!match.hasMatch()) return {};
  // A path cannot contain the colon and the dots of a bus name.
  return QLatin1Char(':') + match.captured(1).replace(u'_', u'.');
}

PortalRequest::PortalRequest(QDBusConnection bus, const QDBusMessage& call)
    : m_bus(std::move(bus)), m_reply(call.createReply()) {
  call.setDelayedReply(true);
}

PortalRequest::~PortalRequest() {
  answer(Response::Failed);
}

Outcome PortalRequest::exportAt(const QDBusObjectPath& handle) {
  if (!m_bus.registerObject(handle.path(), this, QDBusConnection::ExportAllSlots))
    return Outcome::failed(QStringLiteral("this handle is already in use"));
  m_path = handle.path();
  return Outcome::done();
}

void PortalRequest::answer(Response response, const QVariantMap& results) {
  if (m_isAnswered) return;
  m_isAnswered = true;
  if (!m_path.isEmpty()) m_bus.unregisterObject(m_path);
  m_reply << static_cast<uint>(response) << results;
  m_bus.send(m_reply);
}

void PortalRequest::Close() {
  answer(Response::Failed);
  Q_EMIT closed();
}

}  // namespace kesto
