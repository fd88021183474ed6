// The backend of the desktop portal for printing: the interface on the bus, and the dialogs behind it.
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

/// Answers `org.freedesktop.impl.portal.Print` on a bus. Every print has a dialog of its own; dialogs that
/// hold a document go on when the service ends, all others close.
class PortalService : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Print")

 public:
  static constexpr char busName[] = "org.freedesktop.impl.portal.desktop.kesto";
  static constexpr char objectPath[] = "/org/freedesktop/portal/desktop";
  static constexpr std::chrono::minutes ticketLifetime{5};
  /// The most dialogs that one client, or one application, has at a time.
  static constexpr int mostDialogs = 8;

  /// Starts the program `dialog` for each request; a choice is kept for `lifetime`.
  PortalService(QDBusConnection bus, QString dialog, std::chrono::milliseconds lifetime = ticketLifetime);

  /// Puts the interface and the name on the bus. Fails without a bus, or when another has the name.
  Outcome start();

 public Q_SLOTS:
  /// Lets the user choose for a document that is to come; answered later with "settings", "page-setup" and
  /// "token". For the bus.
  void PreparePrint(const QDBusObjectPath& handle, const QString& appId, const QString& parentWindow,
                    const QString& title, const QVariantMap& settings, const QVariantMap& pageSetup,
                    const QVariantMap& options, const QDBusMessage& call, uint& response,
                    QVariantMap& results);
  /// Prints the document with the choices of the option "token", or lets the user choose first. Answered
  /// later. For the bus.
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
