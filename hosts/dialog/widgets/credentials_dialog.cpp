#include "hosts/dialog/widgets/credentials_dialog.h"

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include "hosts/dialog/widgets/mnemonics.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "platform/secret.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

constexpr int longestEntry = 255;  // in the requests that carry it

QLabel* textLabel(const QString& name, const QString& text) {
  auto* label = new QLabel;
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setText(text);
  label->setHidden(text.isEmpty());
  return label;
}

}  // namespace

CredentialsDialog::CredentialsDialog(const PasswordQuestion& question, QWidget* parent) : QDialog(parent) {
  setWindowTitle(tr("Password required"));
  const QString asks = question.isPrinter ? tr("The printer %1 asks for your password.")
                                          : tr("The print server %1 asks for your password.");
  auto* form = new QFormLayout(this);
  form->addRow(textLabel(QStringLiteral("credentialsText"), asks.arg(shownText(question.subject))));
  form->addRow(textLabel(QStringLiteral("credentialsMessage"),
                         question.wasWrong ? tr("Wrong user name or password. Try again.") : QString()));
  const auto wants = [&](const char* name) { return question.wanted.contains(QLatin1String(name)); };
  if (wants("domain"))
    m_domain = addField(QStringLiteral("credentialsDomain"), tr("Domain:"), question.proposed.domain);
  if (wants("username"))
    m_user = addField(QStringLiteral("credentialsUser"), tr("User name:"), question.proposed.user);
  if (wants("password")) {
    m_password = addField(QStringLiteral("credentialsPassword"), tr("Password:"), {});
    m_password->setEchoMode(QLineEdit::Password);
    m_password->setAccessibleDescription(question.wasWrong ? tr("Wrong user name or password. Try again.")
                                                           : QString());
  }
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
  m_accept = buttons->addButton(QString(), QDialogButtonBox::AcceptRole);
  setPlainText(*m_accept, tr("OK"));
  setPlainText(*buttons->button(QDialogButtonBox::Cancel), tr("Cancel"));
  form->addRow(buttons);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  assignMnemonics(*this);
  updateButton();
  if (m_password != nullptr) m_password->setFocus();
}

CredentialsDialog::~CredentialsDialog() {
  if (m_password == nullptr) return;
  QString typed = m_password->text();
  m_password->clear();
  wipe(typed);
}

QLineEdit* CredentialsDialog::addField(const QString& name, const QString& label, const QString& text) {
  auto* field = new QLineEdit(text);
  field->setObjectName(name);
  field->setMaxLength(longestEntry);
  auto* title = new QLabel;
  title->setBuddy(field);
  setPlainText(*title, label);
  static_cast<QFormLayout*>(layout())->addRow(title, field);
  connect(field, &QLineEdit::textChanged, this, &CredentialsDialog::updateButton);
  return field;
}

void CredentialsDialog::updateButton() {
  const auto isFilled = [](const QLineEdit* field) { return field == nullptr || !field->text().isEmpty(); };
  if (m_accept != nullptr) m_accept->setEnabled(isFilled(m_user) && isFilled(m_password));
}

Credentials CredentialsDialog::answer() const {
  const auto textOf = [](const QLineEdit* field) { return field == nullptr ? QString() : field->text(); };
  return {.domain = textOf(m_domain), .user = textOf(m_user), .password = textOf(m_password)};
}

}  // namespace kesto
