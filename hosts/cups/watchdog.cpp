#include "hosts/cups/watchdog.h"

#include <fcntl.h>
#include <sys/socket.h>

#include <atomic>

#include "platform/descriptor.h"

namespace kesto {
namespace {

// How soon a connection is cut after libcups has reconnected.
constexpr std::chrono::milliseconds nextLook(50);

bool isConnectedTo(int descriptor, http_addrlist_t* addresses) {
  http_addr_t peer{};
  socklen_t length = sizeof peer;
  if (::getpeername(descriptor, &peer.addr, &length) != 0) return false;
  for (http_addrlist_t* each = addresses; each != nullptr; each = each->next) {
    if (httpAddrEqual(&peer, &each->addr) != 0 && httpAddrPort(&peer) == httpAddrPort(&each->addr))
      return true;
  }
  return false;
}

// The number may belong to another file by now, because libcups closes and opens sockets in its own thread.
// So the descriptor is duplicated first, and shut down only if it leads to the print server.
void cut(http_t* http, http_addrlist_t* addresses) {
  const Descriptor held(::fcntl(httpGetFd(http), F_DUPFD_CLOEXEC, 0));
  if (held && isConnectedTo(held.get(), addresses)) ::shutdown(held.get(), SHUT_RDWR);
}

}  // namespace

void FreeAddresses::operator()(http_addrlist_t* addresses) const {
  httpAddrFreeList(addresses);
}

Watchdog::~Watchdog() {
  {
    const std::lock_guard lock(m_mutex);
    m_isGone = true;
  }
  m_changed.notify_all();
  if (m_thread.joinable()) m_thread.join();
}

void Watchdog::interrupt() {
  {
    const std::lock_guard lock(m_mutex);
    std::atomic_ref(m_isInterrupted).store(1);
  }
  m_changed.notify_all();
}

bool Watchdog::isInterrupted() const {
  const std::lock_guard lock(m_mutex);
  return m_isInterrupted != 0;
}

bool Watchdog::isDue() const {
  return m_isInterrupted != 0 || m_end <= Clock::now();
}

// Mostly the thread looks early enough of itself, and each waking costs a short program two switches between
// threads. Needs the lock.
void Watchdog::setEnd(std::optional<std::chrono::milliseconds> limit) {
  m_end = limit ? Clock::now() + *limit : Clock::time_point::max();
  if (m_isInterrupted != 0 || m_end < m_waking) m_changed.notify_all();
}

void Watchdog::run() {
  std::unique_lock lock(m_mutex);
  while (!m_isGone) {
    m_waking = m_http != nullptr ? m_end : Clock::time_point::max();
    if (m_http != nullptr && isDue()) {
      m_hasCut = true;
      cut(m_http, m_addresses);
      m_waking = Clock::now() + nextLook;
    }
    m_changed.wait_until(lock, m_waking);
  }
}

Watchdog::Watch::Watch(Watchdog& dog, http_t* http, http_addrlist_t* addresses,
                       std::optional<std::chrono::milliseconds> limit)
    : m_dog(dog) {
  const std::lock_guard lock(dog.m_mutex);
  dog.m_http = http;
  dog.m_addresses = addresses;
  dog.m_hasCut = false;
  dog.setEnd(limit);
  if (!dog.m_thread.joinable()) dog.m_thread = std::thread([&dog] { dog.run(); });
}

Watchdog::Watch::~Watch() {
  const std::lock_guard lock(m_dog.m_mutex);
  m_dog.m_http = nullptr;
}

void Watchdog::Watch::restart(std::optional<std::chrono::milliseconds> limit) {
  const std::lock_guard lock(m_dog.m_mutex);
  m_dog.setEnd(limit);
}

bool Watchdog::Watch::hasCut() const {
  const std::lock_guard lock(m_dog.m_mutex);
  return m_dog.m_hasCut;
}

}  // namespace kesto
