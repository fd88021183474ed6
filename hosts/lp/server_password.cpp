#include "hosts/lp/server_password.h"

#include "hosts/command/secret_input.h"
#include "hosts/lp/lp_texts.h"
#include "platform/secret.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

QString promptOf(const PasswordQuestion& question, const Credentials& answer) {
  const QString prompt = question.wasWrong ? LpTexts::tr("Wrong password. Password of %1 for %2")
                                           : LpTexts::tr("Password of %1 for %2");
  return prompt.arg(shownText(answer.user), shownText(question.subject));
}

// Without a terminal the reason also says what would do in its place.
Outcome askAtTerminal(const QString& prompt, QString* password) {
  const Outcome asked = askSecret(prompt, password);
  return asked ? asked
               : Outcome::failed(LpTexts::tr("%1; set it with --server-password-file").arg(asked.reason()));
}

void splitDomain(const PasswordQuestion& question, Credentials* answer) {
  const qsizetype end = answer->user.indexOf(u'\\');
  if (end < 0 || !question.wanted.contains(QStringLiteral("domain"))) return;
  answer->domain = answer->user.left(end);
  answer->user.remove(0, end + 1);
}

// Of the password file. In standard input the document may follow it.
struct FirstLine {
  FirstLine() = default;
  ~FirstLine() { wipe(text); }
  FirstLine(const FirstLine&) = delete;
  FirstLine& operator=(const FirstLine&) = delete;

  Outcome read(const QString& file) { return text.isNull() ? readSecretLine(file, &text) : Outcome::done(); }

  QString text;
};

}  // namespace

std::shared_ptr<PasswordKeeper> makePasswordKeeper(const std::optional<QString>& file) {
  const auto line = std::make_shared<FirstLine>();
  return std::make_shared<PasswordKeeper>(
      [file, line](const PasswordQuestion& question, Credentials* answer) {
        *answer = question.proposed;
        splitDomain(question, answer);
        if (!file) return askAtTerminal(promptOf(question, *answer), &answer->password);
        if (question.wasWrong) return Outcome::failed({});
        if (Outcome read = line->read(*file); !read)
          return Outcome::failed(QStringLiteral("--server-password-file: ") + read.reason());
        answer->password = line->text;
        return Outcome::done();
      });
}

}  // namespace kesto
