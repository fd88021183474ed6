// The passwords that a user gives to print servers and printers while the program runs.
#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <atomic>
#include <functional>
#include <mutex>
#include <optional>

#include "platform/outcome.h"

namespace kesto {

/// Who a user is to a print server or a printer.
struct Credentials {
  QString domain{};  ///< Of a Windows network; null where none is asked for.
  QString user{};
  QString password{};

  bool operator==(const Credentials&) const = default;
};

/// What a print server or a printer asks of its user.
struct PasswordQuestion {
  QString subject{};       ///< The name of the server or printer.
  bool isPrinter = false;  ///< Else the print server itself asks.
  /// The names of what it asks for, as in the attribute "auth-info-required": "domain", "username",
  /// "password".
  QStringList wanted{QStringLiteral("username"), QStringLiteral("password")};
  Credentials proposed{};  ///< To begin with; without a password.
  bool wasWrong = false;   ///< What was given before was refused.
};

/// Asks the user when that is necessary, and keeps the answers in memory as long as it exists. May be used by
/// several threads at once; the others wait while the user is asked.
class PasswordKeeper {
 public:
  /// Asks the user, in the thread that needs the answer. Fails when the user gives none; the reason may be
  /// empty.
  using Ask = std::function<Outcome(const PasswordQuestion& question, Credentials* answer)>;
  /// How often a user may try.
  static constexpr int mostTries = 3;

  explicit PasswordKeeper(Ask ask) : m_ask(std::move(ask)) {}
  ~PasswordKeeper();
  PasswordKeeper(const PasswordKeeper&) = delete;
  PasswordKeeper& operator=(const PasswordKeeper&) = delete;

  /// The credentials for the question: those that are kept, unless they are `refused`, else what the user
  /// answers. Fails when the user has tried often enough, and when there is no answer; the reason says which,
  /// without the answer. From then on the user is not asked this again.
  Outcome find(PasswordQuestion question, const std::optional<Credentials>& refused, Credentials* found);
  /// What is kept for the question; none when nothing is.
  std::optional<Credentials> kept(const PasswordQuestion& question);
  /// Lets the user be asked again after a question that was not answered. Does not wait.
  void allowAgain() { ++m_round; }

 private:
  Ask m_ask;
  std::mutex m_mutex;
  QMap<QString, Credentials> m_kept;
  std::atomic<int> m_round = 0;
  QMap<QString, int> m_declined;               // the rounds in which questions were not answered
  QMap<QString, std::pair<int, int>> m_tries;  // the rounds of the last questions, and how many in them
};

/// Overwrites the password.
void wipe(Credentials& credentials);

}  // namespace kesto
