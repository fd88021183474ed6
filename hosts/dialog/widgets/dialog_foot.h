// The foot of a print dialog: what there is to say, how far the job is, and the buttons.
#pragma once

#include <QtWidgets/QWidget>

class QDialogButtonBox;
class QLabel;
class QProgressBar;
class QPushButton;

namespace kesto {

/// Shows what it is told; what the buttons do is the dialog's affair.
class DialogFoot : public QWidget {
  Q_OBJECT

 public:
  explicit DialogFoot(QWidget* parent);

  /// The default button of the window.
  QPushButton& printButton() { return *m_print; }
  /// Shows a message, and has it read out; none when it is empty.
  void showMessage(const QString& message);
  /// Shows or hides the progress of a job, of which nothing is known yet.
  void showProgress(bool isShown);
  /// Shows how many bytes of a document have gone out; all of them are -1 when that is not known.
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
