// The print server that a program speaks to, and the connections to it.
#pragma once

#include <chrono>
#include <memory>

#include "hosts/cups/print_server.h"

namespace kesto {

/// Where the print server is, and who asks it.
struct ServerAddress {
  QString address;  ///< "host", "host:port" or the path of a socket; null for the one of the environment.
  QString user;     ///< Null for the account's name.
  bool encrypt = false;
  std::chrono::milliseconds limit = std::chrono::seconds(5);  ///< For each wait without progress.

  /// A new connection, for the thread that calls.
  Outcome connect(std::unique_ptr<PrintServer>* server,
                  const std::shared_ptr<Watchdog>& watchdog = std::make_shared<Watchdog>()) const {
    if (encrypt) cupsSetEncryption(HTTP_ENCRYPTION_REQUIRED);
    if (!user.isNull()) cupsSetUser(user.toUtf8().constData());
    return PrintServer::connect(address, limit, server, watchdog);
  }
};

}  // namespace kesto
