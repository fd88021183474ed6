// A notification of the desktop.
#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

class QDBusMessage;

namespace kesto {

/// One notification at a time, with one action. It stays until the user or `close` takes it away, and goes
/// with the object.
class DesktopNotice : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;
  ~DesktopNotice() override { close(); }

  /// Shows a notification in place of an earlier one. `action` is the label of its button; a click on the
  /// whole does the same. `unavailable` follows on a desktop that has no notifications.
  void show(const QString& title, const QString& text, const QString& action);
  void close();

 Q_SIGNALS:
  void actionPressed();
  void dismissed();
  void unavailable();

 private Q_SLOTS:
  void takeAction(quint32 id, const QString& action);
  void takeClosing(quint32 id, quint32 reason);

 private:
  quint32 m_id = 0;  // the desktop's, 0 for none
  bool m_isConnected = false;
};

}  // namespace kesto
