// Signals that would end the program, held back until the program has cleaned up.
#pragma once

#include <array>
#include <csignal>

namespace kesto {

/// While it exists, such a signal is recorded and interrupts a wait; the destructor sends it again. A signal
/// that the program was started to ignore stays ignored. Only one may exist at a time.
class HeldSignals {
 public:
  /// `flags` as for sigaction: with SA_RESETHAND a signal that arrives twice ends the program at once.
  explicit HeldSignals(int flags = 0);
  ~HeldSignals();
  HeldSignals(const HeldSignals&) = delete;
  HeldSignals& operator=(const HeldSignals&) = delete;

  /// Whether a signal has arrived.
  bool hasCome() const;
  /// Call this when a signal arrived too late to matter; it is not sent again.
  void drop();

 private:
  static constexpr std::array signals{SIGINT, SIGTERM, SIGHUP, SIGQUIT};
  std::array<struct sigaction, signals.size()> m_before{};
};

}  // namespace kesto
