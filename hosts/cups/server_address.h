// The print server that a program uses, and the connections to it.
#pragma once

#include <chrono>
#include <memory>

#include "hosts/cups/print_server.h"

namespace kesto {

/// Where the print server is, and as which user to ask it.
struct ServerAddress {
  QString address;  ///< "host", "host:port" or the path of a socket; null for the one of the environment.
  QString user;     ///< Null for the account's name.
  bool encrypt = false;
  /// Has the user's passwords; null when the user is not to be asked.
  std::shared_ptr<PasswordKeeper> passwords{};
  std::chrono::milliseconds limit = std::chrono::seconds(5);  ///< For each wait without progress.

  /// Opens a new connection for the calling thread.
  Outcome connect(std::unique_ptr<PrintServer>* server,
                  const std::shared_ptr<Watchdog>& watchdog = std::make_shared<Watchdog>()) const {
    if (encrypt) cupsSetEncryption(HTTP_ENCRYPTION_REQUIRED);
    if (!user.isNull()) cupsSetUser(user.toUtf8().constData());
    return PrintServer::connect(address, limit, server, watchdog, passwords);
  }
};

}  // namespace kesto
