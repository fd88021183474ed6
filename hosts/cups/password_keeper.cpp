#include "hosts/cups/password_keeper.h"

#include <utility>

#include "hosts/cups/faults.h"
#include "platform/secret.h"

namespace kesto {
namespace {

Outcome failureOf(const PasswordQuestion& question, const QString& reason) {
  if (question.wasWrong) {
    return Outcome::failed(
        question.isPrinter
            ? Faults::tr("wrong user name or password for the printer \"%1\"").arg(question.subject)
            : Faults::tr("wrong user name or password for the print server %1").arg(question.subject));
  }
  const QString asks = question.isPrinter
                           ? Faults::tr("the printer \"%1\" asks for a password").arg(question.subject)
                           : Faults::tr("the print server %1 asks for a password").arg(question.subject);
  return Outcome::failed(reason.isEmpty() ? asks : asks + QStringLiteral(": ") + reason);
}

QString keyOf(const PasswordQuestion& question) {
  return (question.isPrinter ? u'p' : u's') + question.subject;
}

}  // namespace

std::optional<Credentials> PasswordKeeper::kept(const PasswordQuestion& question) {
  const std::lock_guard lock(m_mutex);
  const auto found = m_kept.find(keyOf(question));
  return found == m_kept.end() ? std::nullopt : std::optional(*found);
}

void wipe(Credentials& credentials) {
  wipe(credentials.password);
}

PasswordKeeper::~PasswordKeeper() {
  for (Credentials& each : m_kept)
    wipe(each);
}

Outcome PasswordKeeper::find(PasswordQuestion question, const std::optional<Credentials>& refused,
                             Credentials* found) {
  const std::lock_guard lock(m_mutex);
  const QString key = keyOf(question);
  const auto kept = m_kept.find(key);
  if (kept != m_kept.end() && *kept != refused) {
    *found = *kept;
    return Outcome::done();
  }
  m_kept.remove(key);  // whoever was refused with them has them still, and wipes them
  question.wasWrong = refused.has_value();
  if (refused) {
    question.proposed.domain = refused->domain;
    question.proposed.user = refused->user;
  }
  if (m_declined.contains(key) && m_declined.value(key) == m_round) return failureOf(question, {});
  auto& [round, tries] = m_tries[key];
  if (std::exchange(round, m_round) != m_round) tries = 0;
  const bool isOver = tries++ == mostTries;
  if (Outcome asked = isOver ? Outcome::failed({}) : m_ask(question, found); !asked) {
    m_declined.insert(key, m_round);
    return failureOf(question, asked.reason());
  }
  m_kept.insert(key, *found);
  return Outcome::done();
}

}  // namespace kesto
