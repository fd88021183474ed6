#include "hosts/command/held_signals.h"

namespace kesto {
namespace {

volatile std::sig_atomic_t caughtSignal = 0;

void rememberSignal(int signal) {
  caughtSignal = signal;
}

}  // namespace

HeldSignals::HeldSignals(int flags) {
  caughtSignal = 0;
  struct sigaction action {};
  action.sa_handler = rememberSignal;
  action.sa_flags = flags;
  for (std::size_t i = 0; i < signals.size(); ++i) {
    ::sigaction(signals.at(i), nullptr, &m_before.at(i));
    if (m_before.at(i).sa_handler != SIG_IGN) ::sigaction(signals.at(i), &action, nullptr);
  }
}

HeldSignals::~HeldSignals() {
  for (std::size_t i = 0; i < signals.size(); ++i)
    ::sigaction(signals.at(i), &m_before.at(i), nullptr);
  if (caughtSignal != 0) ::raise(caughtSignal);
}

bool HeldSignals::hasCome() const {
  return caughtSignal != 0;
}

void HeldSignals::drop() {
  caughtSignal = 0;
}

}  // namespace kesto
