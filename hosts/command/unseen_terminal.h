// A terminal that does not show what is typed, for as long as a secret is asked for.
#pragma once

#include <sys/types.h>
#include <termios.h>

#include "hosts/command/held_signals.h"
#include "platform/descriptor.h"

namespace kesto {

/// While it lives, the terminal has no echo. A signal that would end the program ends a reading from the
/// terminal, and is sent again once the echo is back. A child process gives the echo back when the program
/// ends in any other way, and for as long as it is stopped.
class UnseenTerminal {
 public:
  /// `terminal` is an open descriptor, which must outlive this.
  explicit UnseenTerminal(int terminal);
  ~UnseenTerminal();
  UnseenTerminal(const UnseenTerminal&) = delete;
  UnseenTerminal& operator=(const UnseenTerminal&) = delete;

  /// Waits until a line can be read. False once a signal has come that ends the program.
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
