#include "hosts/cups/server_addresses.h"

#include <arpa/inet.h>

#include <future>

#include "hosts/cups/faults.h"

namespace kesto {
namespace {

// How often the wait for an address checks whether to give up.
constexpr std::chrono::milliseconds look(50);

// Whether `host` is the path of a socket or an address in numbers.
bool needsNoLookUp(const QByteArray& host) {
  in6_addr address{};
  return host.startsWith('/') || ::inet_pton(AF_INET, host.constData(), &address) == 1 ||
         ::inet_pton(AF_INET6, host.constData(), &address) == 1;
}

}  // namespace

Outcome findAddresses(const QByteArray& host, int port, const QString& name, std::chrono::milliseconds limit,
                      const Watchdog& watchdog, Addresses* addresses) {
  std::packaged_task<Addresses()> task([host, port] {
    return Addresses(httpAddrGetList(host.constData(), AF_UNSPEC, QByteArray::number(port).constData()));
  });
  std::future<Addresses> found = task.get_future();
  // A look-up cannot be interrupted, so it runs in a thread of its own, which is abandoned if necessary.
  if (needsNoLookUp(host))
    task();
  else
    std::thread(std::move(task)).detach();
  const auto end = std::chrono::steady_clock::now() + limit;
  while (found.wait_for(std::min(look, limit)) != std::future_status::ready) {
    if (watchdog.isInterrupted() || std::chrono::steady_clock::now() >= end)
      return Outcome::failed(Faults::tr("looking up the print server %1 took too long").arg(name));
  }
  *addresses = found.get();
  return *addresses ? Outcome::done()
                    : Outcome::failed(Faults::tr("there is no print server named %1").arg(name));
}

}  // namespace kesto
