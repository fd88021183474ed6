// The backend of the desktop portal for printing: the interface on the bus, and its dialogs.
#pragma once

#include <QtCore/QObject>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusUnixFileDescriptor>
#include <chrono>
#include <memory>

#include "hosts/portal/dialog_session.h"
#include "hosts/portal/request.h"
#include "platform/outcome.h"

namespace kesto {

/// Answers `org.freedesktop.impl.portal.Print` on a bus. Every print has its own dialog. When the service
/// ends, dialogs that have a document go on, and all others close.
class PortalService : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Print")

 public:
  static constexpr char busName[] = "org.freedesktop.impl.portal.desktop.kesto";
  static constexpr char objectPath[] = "/org/freedesktop/portal/desktop";
  static constexpr std::chrono::minutes ticketLifetime{5};
  /// The most dialogs that one client or application can have at a time.
  static constexpr int mostDialogs = 8;

  /// Starts the program `dialog` for each request; a choice is valid for `lifetime`.
  PortalService(QDBusConnection bus, QString dialog, std::chrono::milliseconds lifetime = ticketLifetime);

  /// Puts the interface and the name on the bus. Fails without a bus, or when another service has the name.
  Outcome start();

 public Q_SLOTS:
  /// Called over the bus: lets the user choose for a later document. Answered later with "settings",
  /// "page-setup" and "token".
  void PreparePrint(const QDBusObjectPath& handle, const QString& appId, const QString& parentWindow,
                    const QString& title, const QVariantMap& settings, const QVariantMap& pageSetup,
                    const QVariantMap& options, const QDBusMessage& call, uint& response,
                    QVariantMap& results);
  /// Called over the bus: prints the document with the choices of the option "token", or lets the user choose
  /// first. Answered later.
  void Print(const QDBusObjectPath& handle, const QString& appId, const QString& parentWindow,
             const QString& title, const QDBusUnixFileDescriptor& document, const QVariantMap& options,
             const QDBusMessage& call, uint& response, QVariantMap& results);

 private:
  std::unique_ptr<PortalRequest> accept(const QDBusObjectPath& handle, const QDBusMessage& call);
  bool hasTooMany(const QString& client, const QString& appId) const;
  void openDialog(const QString& client, const QJsonObject& open, std::unique_ptr<PortalRequest> request,
                  int document);
  DialogSession* sessionOf(quint32 token) const;
  quint32 drawToken() const;

  QDBusConnection m_bus;
  QString m_dialog;
  std::chrono::milliseconds m_lifetime;
};

}  // namespace kesto
