// The addresses of a print server.
#pragma once

#include <QtCore/QString>
#include <chrono>

#include "hosts/cups/watchdog.h"
#include "platform/outcome.h"

namespace kesto {

/// Looks up `host`: a name, an address in numbers or the path of a socket. Ends within `limit`, or soon after
/// `watchdog` is interrupted. `name` stands for the server in messages.
Outcome findAddresses(const QByteArray& host, int port, const QString& name, std::chrono::milliseconds limit,
                      const Watchdog& watchdog, Addresses* addresses);

}  // namespace kesto
