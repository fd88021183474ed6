// Asks for the user name and the password that a print server or a printer wants.
#pragma once

#include <QtWidgets/QDialog>

#include "hosts/cups/password_keeper.h"

class QLineEdit;

namespace kesto {

/// A small dialog with the fields that the question names. It is accepted with an answer.
class CredentialsDialog : public QDialog {
  Q_OBJECT

 public:
  CredentialsDialog(const PasswordQuestion& question, QWidget* parent);
  ~CredentialsDialog() override;

  /// What is entered.
  Credentials answer() const;

 private:
  QLineEdit* addField(const QString& name, const QString& label, const QString& text);
  void updateButton();

  QLineEdit* m_domain = nullptr;  // these three are null where nothing is asked for
  QLineEdit* m_user = nullptr;
  QLineEdit* m_password = nullptr;
  QPushButton* m_accept = nullptr;
};

}  // namespace kesto
