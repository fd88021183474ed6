// The panel's alerts as message boxes.
#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

#include "platform/alert_presenter.h"

namespace kesto {

/// Shows the panel's alerts over the dialog, with the one button that the panel names.
class DialogAlerts : public AlertPresenter {
 public:
  /// The window over which alerts appear; without one they are not shown.
  void setWindow(QWidget* window) { m_window = window; }
  void runInformationalAlert(const QString& title, const QString& message, const QString& button) override;

 private:
  QPointer<QWidget> m_window;
};

}  // namespace kesto
