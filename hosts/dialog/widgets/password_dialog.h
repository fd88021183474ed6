// Asks for the password of a document.
#pragma once

#include <QtWidgets/QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace kesto {

/// A small dialog that stays until the password is right, or the user has given up.
class PasswordDialog : public QDialog {
  Q_OBJECT

 public:
  /// What a pipe takes at once. A document's password has at most 127 bytes.
  static constexpr int longest = 3072;

  /// `document` is the document's name.
  PasswordDialog(const QString& document, QWidget* parent);
  ~PasswordDialog() override;

  /// While a password is tried there is nothing to enter.
  void setBusy(bool isBusy);
  /// Shows why the password was not taken, and asks for another.
  void askAgain(const QString& reason);

 Q_SIGNALS:
  /// In UTF-8, at most `longest` bytes. It is wiped afterwards, so nobody may keep it.
  void entered(const QByteArray& password);

 private:
  void take();

  QLineEdit* m_field;
  QLabel* m_message;
  QPushButton* m_open;
};

}  // namespace kesto
