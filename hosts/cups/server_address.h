// The print server that a program uses, and the connections to it.
#pragma once

#include <QtCore/QUrl>
#include <chrono>
#include <memory>

#include "hosts/cups/print_server.h"

namespace kesto {

/// The port of printers and print servers.
inline constexpr int standardIppPort = 631;

/// Where the print server is, and as which user to ask it.
struct ServerAddress {
  QString address;  ///< "host", "host:port" or the path of a socket; null for the one of the environment.
  QString user;     ///< Null for the account's name.
  bool encrypt = false;
  QByteArray resource{};  ///< Of a printer that is its own server, else null.
  /// Has the user's passwords; null when the user is not to be asked.
  std::shared_ptr<PasswordKeeper> passwords{};
  std::chrono::milliseconds limit = std::chrono::seconds(5);  ///< For each wait without progress.

  /// This server, or the printer itself when the queue's name is a printer's URI.
  ServerAddress forQueue(const QString& queue) const {
    ServerAddress server = *this;
    if (!isPrinterUri(queue)) return server;
    const QUrl uri(queue);
    server.address = QStringLiteral("%1:%2").arg(uri.host()).arg(uri.port(standardIppPort));
    server.encrypt = encrypt || uri.scheme() == u"ipps";
    server.resource = resourceOfQueue(queue);
    return server;
  }

  /// Opens a new connection for the calling thread, whatever server its last one was to.
  Outcome connect(std::unique_ptr<PrintServer>* server,
                  const std::shared_ptr<Watchdog>& watchdog = std::make_shared<Watchdog>()) const {
    // libcups keeps these for each thread.
    static const thread_local http_encryption_t usualEncryption = cupsEncryption();
    static const thread_local QByteArray usualUser = cupsUser();
    cupsSetEncryption(encrypt ? HTTP_ENCRYPTION_REQUIRED : usualEncryption);
    cupsSetUser(user.isNull() ? usualUser.constData() : user.toUtf8().constData());
    Outcome connected = PrintServer::connect(address, limit, server, watchdog, passwords);
    if (connected) (*server)->useResource(resource);
    return connected;
  }
};

}  // namespace kesto
