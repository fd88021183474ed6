#include "folders/host_lookup.h"

#include <fcntl.h>
#include <netdb.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QtCore/QSocketNotifier>
#include <array>
#include <atomic>
#include <csignal>
#include <cstring>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

namespace kesto {

struct HostLookup::Answer {
  Answer() = default;
  ~Answer() {
    if (addrinfo* list = first.load(); list != nullptr) ::freeaddrinfo(list);
  }
  Answer(const Answer&) = delete;
  Answer& operator=(const Answer&) = delete;

  std::atomic<addrinfo*> first = nullptr;
};

HostLookup::HostLookup() = default;

HostLookup::~HostLookup() = default;

bool HostLookup::start(const QString& host, quint16 port) {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) return false;
  m_bell.reset(ends[0]);
  Descriptor bell(ends[1]);
  m_answer = std::make_shared<Answer>();
  m_notifier = std::make_unique<QSocketNotifier>(m_bell.get(), QSocketNotifier::Read);
  connect(m_notifier.get(), &QSocketNotifier::activated, this, &HostLookup::take);
  // The thread does not use Qt, because it may outlive Qt's objects.
  auto ask = [answer = m_answer, name = host.toStdString(), service = std::to_string(port),
              bell = std::move(bell)] {
    addrinfo hints{};
    hints.ai_flags = AI_NUMERICSERV | AI_NUMERICHOST;
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* list = nullptr;
    bool isFound = ::getaddrinfo(name.c_str(), service.c_str(), &hints, &list) == 0;
    // Of a name, only addresses that this machine can reach at all.
    hints.ai_flags = AI_NUMERICSERV | AI_ADDRCONFIG;
    if (!isFound) isFound = ::getaddrinfo(name.c_str(), service.c_str(), &hints, &list) == 0;
    if (isFound) answer->first = list;
    [[maybe_unused]] const ssize_t written = ::write(bell.get(), "", 1);
  };
  // The thread blocks all signals: they are for the program's own threads, and SIGPIPE must not end the
  // program when nobody reads the answer any more.
  sigset_t all{};
  sigset_t before{};
  ::sigfillset(&all);
  ::pthread_sigmask(SIG_SETMASK, &all, &before);
  bool isStarted = true;
  try {
    std::thread(std::move(ask)).detach();
  } catch (const std::system_error&) {
    isStarted = false;
    m_notifier.reset();
  }
  ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
  return isStarted;
}

void HostLookup::take() {
  m_notifier->setEnabled(false);
  QList<SocketAddress> addresses;
  for (const addrinfo* each = m_answer->first; each != nullptr; each = each->ai_next) {
    SocketAddress& address = addresses.emplace_back();
    std::memcpy(&address.storage, each->ai_addr, each->ai_addrlen);
    address.length = each->ai_addrlen;
  }
  Q_EMIT found(addresses);
}

}  // namespace kesto
