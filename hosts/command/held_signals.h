// Signals that would end the program, held back until what they interrupt has been put right.
#pragma once

#include <array>
#include <csignal>

namespace kesto {

/// While it lives, such a signal is noted and interrupts a wait; at its end it is sent again. One that the
/// program was started to ignore stays ignored. One at a time.
class HeldSignals {
 public:
  /// `flags` as of sigaction: with SA_RESETHAND a signal that comes twice ends the program at once.
  explicit HeldSignals(int flags = 0);
  ~HeldSignals();
  HeldSignals(const HeldSignals&) = delete;
  HeldSignals& operator=(const HeldSignals&) = delete;

  /// Whether one has come.
  bool hasCome() const;
  /// It came too late, and is not sent again.
  void drop();

 private:
  static constexpr std::array signals{SIGINT, SIGTERM, SIGHUP, SIGQUIT};
  std::array<struct sigaction, signals.size()> m_before{};
};

}  // namespace kesto
