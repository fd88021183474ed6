// Passwords that print servers and printers ask for while the dialog is open.
#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>

#include "hosts/cups/server_address.h"

class QWidget;

namespace kesto {

class CredentialsDialog;

/// Asks the user in a small dialog, while the thread that needs the password waits and the window does not.
class PasswordAsking : public QObject {
  Q_OBJECT

 public:
  /// The dialogs belong to `window`, which must outlive this object.
  explicit PasswordAsking(QWidget& window);
  ~PasswordAsking() override;

  /// The server, with this as the way to its passwords.
  ServerAddress with(ServerAddress server) const;
  /// Lets the user be asked again for a password that was not given: something is tried anew.
  void allowAgain() { m_keeper->allowAgain(); }
  /// Asks nothing any more, and gives no answer to who waits for one.
  void close();

 private:
  struct Desk;

  void show(const PasswordQuestion& question);
  void answer(std::optional<Credentials> credentials);

  QWidget& m_window;
  std::shared_ptr<Desk> m_desk;  // shared with the threads, which can outlive this object
  std::shared_ptr<PasswordKeeper> m_keeper;
  QPointer<CredentialsDialog> m_dialog;
};

}  // namespace kesto
