#include "hosts/dialog/widgets/password_dialog.h"

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include "hosts/dialog/widgets/accessible.h"
#include "hosts/dialog/widgets/mnemonics.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "platform/secret.h"
#include "platform/shown_text.h"

namespace kesto {

PasswordDialog::PasswordDialog(const QString& document, QWidget* parent)
    : QDialog(parent), m_field(new QLineEdit(this)), m_message(new QLabel(this)) {
  setWindowTitle(tr("Protected document"));
  auto* text = new QLabel(this);
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  text->setText(tr("%1 is protected by a password. Enter the password to print the document.")
                    .arg(document.isEmpty() ? tr("The document") : shownText(document)));
  m_field->setEchoMode(QLineEdit::Password);
  m_field->setMaxLength(longest / 3);  // a character of UTF-16 has at most three bytes in UTF-8
  m_field->setAccessibleName(tr("Password"));
  m_field->setObjectName(QStringLiteral("documentPassword"));
  m_message->setTextFormat(Qt::PlainText);
  m_message->setWordWrap(true);
  m_message->setObjectName(QStringLiteral("passwordMessage"));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
  m_open = buttons->addButton(QString(), QDialogButtonBox::AcceptRole);
  setPlainText(*m_open, tr("Open"));
  setPlainText(*buttons->button(QDialogButtonBox::Cancel), tr("Cancel"));
  auto* column = new QVBoxLayout(this);
  for (QWidget* part : {static_cast<QWidget*>(text), static_cast<QWidget*>(m_field),
                        static_cast<QWidget*>(m_message), static_cast<QWidget*>(buttons)})
    column->addWidget(part);
  m_open->setEnabled(false);
  connect(m_field, &QLineEdit::textChanged, this,
          [this](const QString& typed) { m_open->setEnabled(!typed.isEmpty()); });
  connect(buttons, &QDialogButtonBox::accepted, this, &PasswordDialog::take);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  assignMnemonics(*this);
  m_field->setFocus();
}

PasswordDialog::~PasswordDialog() {
  QString typed = m_field->text();
  m_field->clear();
  wipe(typed);
}

void PasswordDialog::setBusy(bool isBusy) {
  m_field->setEnabled(!isBusy);
  m_open->setEnabled(!isBusy && !m_field->text().isEmpty());
}

void PasswordDialog::askAgain(const QString& reason) {
  setBusy(false);
  m_message->setText(reason);
  m_field->setAccessibleDescription(reason);
  m_field->selectAll();
  m_field->setFocus();
  announce(*m_message, reason);
}

void PasswordDialog::take() {
  QByteArray password = m_field->text().toUtf8();
  const WipedAtEnd wiped(password);
  setBusy(true);
  Q_EMIT entered(password);
}

}  // namespace kesto
