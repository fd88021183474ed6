#include "hosts/dialog/password_asking.h"

#include <condition_variable>
#include <mutex>

#include "hosts/cups/worker_thread.h"
#include "hosts/dialog/widgets/credentials_dialog.h"

namespace kesto {

// Where the thread that asks waits for the answer. The keeper lets only one thread ask at a time.
struct PasswordAsking::Desk {
  explicit Desk(PasswordAsking* asking) : mailbox(asking) {}

  Outcome ask(PasswordAsking* asking, const PasswordQuestion& question, Credentials* found) {
    std::unique_lock lock(mutex);
    isAnswered = false;
    mailbox.answer([asking, question] { asking->show(question); });
    changed.wait(lock, [this] { return isAnswered || isClosed; });
    if (isClosed && answer) wipe(*answer);
    if (isClosed || !answer) return Outcome::failed({});
    *found = *std::exchange(answer, std::nullopt);
    return Outcome::done();
  }

  Mailbox mailbox;
  std::mutex mutex;
  std::condition_variable changed;
  std::optional<Credentials> answer;  // none when the user gave none
  bool isAnswered = false;
  bool isClosed = false;
};

PasswordAsking::PasswordAsking(QWidget& window)
    : m_window(window),
      m_desk(std::make_shared<Desk>(this)),
      m_keeper(std::make_shared<PasswordKeeper>(
          [desk = m_desk, this](const PasswordQuestion& question, Credentials* answer) {
            return desk->ask(this, question, answer);
          })) {}

PasswordAsking::~PasswordAsking() {
  close();
}

ServerAddress PasswordAsking::with(ServerAddress server) const {
  server.passwords = m_keeper;
  return server;
}

void PasswordAsking::close() {
  m_desk->mailbox.close();
  {
    const std::lock_guard lock(m_desk->mutex);
    m_desk->isClosed = true;
  }
  m_desk->changed.notify_all();
  if (m_dialog) m_dialog->close();
}

void PasswordAsking::show(const PasswordQuestion& question) {
  m_dialog = new CredentialsDialog(question, &m_window);
  m_dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(m_dialog, &QDialog::finished, this, [this](int result) {
    answer(result == QDialog::Accepted ? std::optional(m_dialog->answer()) : std::nullopt);
  });
  m_dialog->open();
}

void PasswordAsking::answer(std::optional<Credentials> credentials) {
  {
    const std::lock_guard lock(m_desk->mutex);
    m_desk->answer = std::move(credentials);
    m_desk->isAnswered = true;
  }
  m_desk->changed.notify_all();
}

}  // namespace kesto
