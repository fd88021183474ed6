// One method call of the portal's front end that is answered later, and the object on the bus that withdraws
// it.
#pragma once

#include <QtCore/QObject>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusObjectPath>

#include "platform/outcome.h"

namespace kesto {

/// The result of a request, with the interface's numbers.
enum class Response : uint { Done = 0, Cancelled = 1, Failed = 2 };

/// The bus name of the client in the path of a request, as in
/// `/org/freedesktop/portal/desktop/request/1_42/t`; null when it is not the path of a request.
QString senderOf(const QDBusObjectPath& handle);

/// It is on the bus at its handle from its export until it is destroyed. The destructor answers an unanswered
/// call as failed, so that no front end waits for ever.
class PortalRequest : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Request")

 public:
  /// Defers the answer to `call`.
  PortalRequest(QDBusConnection bus, const QDBusMessage& call);
  ~PortalRequest() override;

  /// Puts it on the bus at `handle`. Fails when another request has that handle.
  Outcome exportAt(const QDBusObjectPath& handle);
  /// Answers the call, and leaves the bus. The first answer counts.
  void answer(Response response, const QVariantMap& results = {});

 public Q_SLOTS:
  /// Called over the bus when the front end withdraws the request; answers it as failed.
  void Close();

 Q_SIGNALS:
  /// `Close` was called. A receiver may delete this object later, but not at once.
  void closed();

 private:
  QDBusConnection m_bus;
  QDBusMessage m_reply;  // without the call's descriptor, which would keep a pipe open
  QString m_path;
  bool m_isAnswered = false;
};

}  // namespace kesto
