#include "hosts/dialog/widgets/dialog_alerts.h"

#include <QtWidgets/QMessageBox>

namespace kesto {

void DialogAlerts::runInformationalAlert(const QString& title, const QString& message,
                                         const QString& button) {
  if (m_window == nullptr || !m_window->isVisible()) return;
  QMessageBox alert(QMessageBox::Information, title, message, QMessageBox::NoButton, m_window);
  alert.setTextFormat(Qt::PlainText);
  alert.addButton(button, QMessageBox::AcceptRole);
  alert.exec();
}

}  // namespace kesto
