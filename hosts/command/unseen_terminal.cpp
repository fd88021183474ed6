#include "hosts/command/unseen_terminal.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <string_view>

namespace kesto {
namespace {

// A child cannot wait for its parent to be stopped, so it checks regularly, at no measurable cost.
constexpr int lookEvery = 100;  // milliseconds

// What a guard needs. It is forked from a program with threads, so it calls only functions that are safe
// there.
struct Guard {
  int terminal = -1;
  int life = -1;
  std::array<char, 32> state{};  // the path of the program's state
  termios shown{};
  termios hidden{};

  [[noreturn]] void run() const;
  bool isProgramStopped() const;
  void change(const termios& from, const termios& to) const;
};

bool Guard::isProgramStopped() const {
  std::array<char, 256> text{};
  const Descriptor file(::open(state.data(), O_RDONLY | O_CLOEXEC));
  const ssize_t count = ::read(file.get(), text.data(), text.size());
  if (count <= 0) return false;
  // The state follows the program's name in brackets.
  const std::string_view line(text.data(), static_cast<std::size_t>(count));
  const std::size_t name = line.rfind(')');
  return name != std::string_view::npos && line.substr(name).starts_with(") T");
}

// Leaves modes alone that another program, such as a shell, has set meanwhile. Discards what was typed
// unseen.
void Guard::change(const termios& from, const termios& to) const {
  termios now{};
  if (::tcgetattr(terminal, &now) == 0 && now.c_lflag == from.c_lflag) ::tcsetattr(terminal, TCSAFLUSH, &to);
}

void Guard::run() const {
  // Keeps running in the background, whatever signals the terminal's keys send to the program.
  ::setpgid(0, 0);
  for (const int signal : {SIGINT, SIGQUIT, SIGHUP, SIGTERM, SIGTSTP, SIGTTIN, SIGTTOU})
    ::signal(signal, SIG_IGN);
  bool wasStopped = false;
  pollfd end{.fd = life, .events = POLLIN, .revents = 0};
  while (::poll(&end, 1, lookEvery) == 0) {
    const bool isStopped = isProgramStopped();
    if (isStopped != wasStopped) isStopped ? change(hidden, shown) : change(shown, hidden);
    wasStopped = isStopped;
  }
  change(hidden, shown);
  ::_exit(0);
}

}  // namespace

UnseenTerminal::UnseenTerminal(int terminal) : m_terminal(terminal) {
  ::tcgetattr(m_terminal, &m_shown);
  ::tcgetattr(m_terminal, &m_hidden);
  m_hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
  startGuard();
  ::tcsetattr(m_terminal, TCSAFLUSH, &m_hidden);
}

UnseenTerminal::~UnseenTerminal() {
  ::tcsetattr(m_terminal, TCSAFLUSH, &m_shown);
  if (m_guard < 0) return;
  m_life.reset();
  while (::waitpid(m_guard, nullptr, 0) < 0 && errno == EINTR) {
  }
}

bool UnseenTerminal::waitForLine() const {
  // A signal that arrives just before a wait does not interrupt it.
  pollfd input{.fd = m_terminal, .events = POLLIN, .revents = 0};
  while (!isInterrupted() && ::poll(&input, 1, lookEvery) <= 0) {
  }
  return !isInterrupted();
}

// Without a guard the echo is still off.
void UnseenTerminal::startGuard() {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) return;
  const Descriptor life(ends[0]);
  m_life.reset(ends[1]);
  Guard guard{.terminal = m_terminal, .life = life.get(), .state = {}, .shown = m_shown, .hidden = m_hidden};
  std::snprintf(guard.state.data(), guard.state.size(), "/proc/%d/stat", static_cast<int>(::getpid()));
  m_guard = ::fork();
  if (m_guard == 0) {
    m_life.reset();
    guard.run();
  }
  if (m_guard < 0) m_life.reset();
}

}  // namespace kesto
