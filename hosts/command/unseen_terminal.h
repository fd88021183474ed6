// A terminal that does not show what is typed while a secret is asked for.
#pragma once

#include <sys/types.h>
#include <termios.h>

#include "hosts/command/held_signals.h"
#include "platform/descriptor.h"

namespace kesto {

/// While it exists, the terminal has no echo. A signal that would end the program ends the reading, and is
/// sent again after the echo is restored. A child process restores the echo when the program ends in any
/// other way, and while it is stopped.
class UnseenTerminal {
 public:
  /// `terminal` is an open descriptor, which must outlive this.
  explicit UnseenTerminal(int terminal);
  ~UnseenTerminal();
  UnseenTerminal(const UnseenTerminal&) = delete;
  UnseenTerminal& operator=(const UnseenTerminal&) = delete;

  /// Waits until a line can be read. False when a signal has arrived that ends the program.
  bool waitForLine() const;
  bool isInterrupted() const { return m_signals.hasCome(); }

 private:
  void startGuard();

  HeldSignals m_signals;
  int m_terminal;
  termios m_shown{};
  termios m_hidden{};
  Descriptor m_life;  // a pipe that closes with the program
  pid_t m_guard = -1;
};

}  // namespace kesto
