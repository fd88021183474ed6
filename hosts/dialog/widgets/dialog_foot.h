// The foot of a print dialog: messages, the progress of the job, and the buttons.
#pragma once

#include <QtWidgets/QWidget>

class QDialogButtonBox;
class QLabel;
class QProgressBar;
class QPushButton;

namespace kesto {

/// Shows what the dialog gives it; the dialog decides what the buttons do.
class DialogFoot : public QWidget {
  Q_OBJECT

 public:
  explicit DialogFoot(QWidget* parent);

  /// The default button of the window.
  QPushButton& printButton() { return *m_print; }
  /// Shows a message and lets assistive technology read it out; an empty one hides it.
  void showMessage(const QString& message);
  /// Shows or hides the progress of a job, at first without a known extent.
  void showProgress(bool isShown);
  /// Shows how many bytes of a document were sent; the total is -1 when unknown.
  void setProgress(qint64 sent, qint64 total);
  /// There is nothing left to cancel.
  void offerClose();

 Q_SIGNALS:
  void printPressed();
  void cancelPressed();
  void helpPressed();

 private:
  QLabel* m_message;
  QProgressBar* m_progress;
  QDialogButtonBox* m_buttons;
  QPushButton* m_print;
};

}  // namespace kesto
