#include "demo/stop_signal.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QSocketNotifier>
#include <array>
#include <csignal>
#include <cstdint>

namespace kesto {
namespace {

int stopEvent = -1;

// A signal can arrive between any two instructions, so the handler makes only a system call.
void noteSignal(int /*signal*/) {
  const std::uint64_t one = 1;
  [[maybe_unused]] const ssize_t written = ::write(stopEvent, &one, sizeof one);
}

}  // namespace

StopSignal::StopSignal() {
  stopEvent = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
  auto* notifier = new QSocketNotifier(stopEvent, QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, qApp, &QCoreApplication::quit);
  struct sigaction action {};
  action.sa_handler = noteSignal;
  for (const int signal : std::array{SIGINT, SIGTERM, SIGHUP})
    ::sigaction(signal, &action, nullptr);
}

}  // namespace kesto
