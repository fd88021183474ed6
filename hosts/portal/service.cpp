#include "hosts/portal/service.h"

#include <sys/random.h>

#include <QtCore/QJsonObject>
#include <QtCore/QLoggingCategory>
#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusError>

#include "hosts/channel/portal_settings.h"

namespace kesto {
namespace {

// Numbers stay numbers; everything else becomes text if it can.
QJsonObject toJson(const QVariantMap& map) {
  QJsonObject object;
  for (auto it = map.begin(); it != map.end(); ++it) {
    if (it.value().typeId() == QMetaType::Double) {
      object.insert(it.key(), it.value().toDouble());
    } else if (it.value().canConvert<QString>()) {
      object.insert(it.key(), it.value().toString());
    }
  }
  return object;
}

// Without a list, an application can write every format.
bool canWritePdf(const QVariantMap& options) {
  const QVariant formats = options.value(QStringLiteral("supported_output_file_formats"));
  return !formats.isValid() || formats.toStringList().contains(u"pdf");
}

QJsonObject openMessage(const QString& appId, const QString& parentWindow, const QString& title,
                        const QVariantMap& options) {
  return {{QStringLiteral("do"), QStringLiteral("open")},
          {QStringLiteral("title"), title},
          {QStringLiteral("parentWindow"), parentWindow},
          {QStringLiteral("appId"), appId},
          {QStringLiteral("acceptLabel"), options.value(QStringLiteral("accept_label")).toString()},
          {QStringLiteral("hasCurrentPage"), options.value(QStringLiteral("has_current_page")).toBool()},
          {QStringLiteral("hasSelection"), options.value(QStringLiteral("has_selected_pages")).toBool()},
          {QStringLiteral("canWritePdf"), canWritePdf(options)},
          {QStringLiteral("modal"), options.value(QStringLiteral("modal"), true).toBool()}};
}

}  // namespace

PortalService::PortalService(QDBusConnection bus, QString dialog, std::chrono::milliseconds lifetime)
    : m_bus(std::move(bus)), m_dialog(std::move(dialog)), m_lifetime(lifetime) {
  // The bus offers a method only if the types of its parameters are registered by their names.
  qRegisterMetaType<QDBusObjectPath>();
  qRegisterMetaType<QDBusUnixFileDescriptor>();
  qRegisterMetaType<QDBusMessage>();
}

Outcome PortalService::start() {
  const auto refused = [&](const char* what) {
    // The bus does not report an error when another service has the name.
    const QString reason = m_bus.lastError().message();
    return Outcome::failed(QLatin1String(what) + (reason.isEmpty() ? reason : QStringLiteral(": ") + reason));
  };
  if (!m_bus.isConnected()) return refused("cannot connect to the session bus");
  // The object comes first, because a client that waits for the name calls it at once.
  if (!m_bus.registerObject(QLatin1String(objectPath), this, QDBusConnection::ExportAllSlots))
    return refused("another program has the portal's object path");
  if (!m_bus.registerService(QLatin1String(busName))) return refused("another portal is already running");
  return Outcome::done();
}

void PortalService::PreparePrint(const QDBusObjectPath& handle, const QString& appId,
                                 const QString& parentWindow, const QString& title,
                                 const QVariantMap& settings, const QVariantMap& pageSetup,
                                 const QVariantMap& options, const QDBusMessage& call, uint& /*response*/,
                                 QVariantMap& /*results*/) {
  std::unique_ptr<PortalRequest> request = accept(handle, call);
  if (!request) return;
  QJsonObject open = openMessage(appId, parentWindow, title, options);
  open.insert(QStringLiteral("settings"), withoutPrivateKeys(toJson(settings)));
  open.insert(QStringLiteral("pageSetup"), toJson(pageSetup));
  open.insert(QStringLiteral("document"), false);
  openDialog(senderOf(handle), open, std::move(request), -1);
}

void PortalService::Print(const QDBusObjectPath& handle, const QString& appId, const QString& parentWindow,
                          const QString& title, const QDBusUnixFileDescriptor& document,
                          const QVariantMap& options, const QDBusMessage& call, uint& /*response*/,
                          QVariantMap& /*results*/) {
  std::unique_ptr<PortalRequest> request = accept(handle, call);
  if (!request) return;
  const int descriptor = document.fileDescriptor();
  const QString client = senderOf(handle);
  const quint32 token = options.value(QStringLiteral("token")).toUInt();
  DialogSession* session = sessionOf(token);
  if (session != nullptr && session->waitsFor(token, client)) {
    if (const Outcome printing = session->print(title, descriptor, &request)) return;
    // That dialog is just ending, so the user is asked again.
  }
  QJsonObject open = openMessage(appId, parentWindow, title, options);
  open.insert(QStringLiteral("settings"), QJsonObject());
  open.insert(QStringLiteral("pageSetup"), QJsonObject());
  open.insert(QStringLiteral("document"), true);
  openDialog(client, open, std::move(request), descriptor);
}

// Defers the answer to a call if its client exists; null when the request was answered as failed.
std::unique_ptr<PortalRequest> PortalService::accept(const QDBusObjectPath& handle,
                                                     const QDBusMessage& call) {
  auto request = std::make_unique<PortalRequest>(m_bus, call);
  if (senderOf(handle).isNull()) {
    qWarning("a request's handle does not name its client");
    return nullptr;
  }
  if (const Outcome exported = request->exportAt(handle); !exported) {
    qWarning("refused a request: %ls", qUtf16Printable(exported.reason()));
    return nullptr;
  }
  return request;
}

bool PortalService::hasTooMany(const QString& client, const QString& appId) const {
  int dialogs = 0;
  for (const auto* session : findChildren<DialogSession*>(QString(), Qt::FindDirectChildrenOnly))
    dialogs += session->isOf(client, appId) ? 1 : 0;
  return dialogs >= mostDialogs;
}

void PortalService::openDialog(const QString& client, const QJsonObject& open,
                               std::unique_ptr<PortalRequest> request, int document) {
  const QString appId = open.value(QStringLiteral("appId")).toString();
  if (hasTooMany(client, appId)) {
    qWarning("a client already has %d print dialogs; no more are opened for it", mostDialogs);
    return;
  }
  // The session notices the end of its client only after its creation, so an earlier end is checked here.
  auto* session = new DialogSession(m_bus, Ticket{client, appId, drawToken(), m_lifetime}, this);
  if (!m_bus.interface()->isServiceRegistered(client)) return session->deleteLater();
  if (const Outcome opened = session->open(m_dialog, open, std::move(request), document); !opened)
    qWarning("cannot open the print dialog: %ls", qUtf16Printable(opened.reason()));
}

// The session of a token, whether its ticket is valid or not; null when there is none.
DialogSession* PortalService::sessionOf(quint32 token) const {
  for (auto* session : findChildren<DialogSession*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (session->token() == token) return session;
  }
  return nullptr;
}

// An unused token that nobody can guess; never 0, which means none.
quint32 PortalService::drawToken() const {
  quint32 token = 0;
  while (token == 0 || sessionOf(token) != nullptr) {
    if (::getrandom(&token, sizeof token, 0) != sizeof token) token = 0;
  }
  return token;
}

}  // namespace kesto
