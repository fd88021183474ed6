// The foot of a print dialog: messages, the progress of the job, its paper, and the buttons.
#pragma once

#include "hosts/dialog/widgets/message_bar.h"

class QDialogButtonBox;
class QHBoxLayout;
class QProgressBar;
class QPushButton;

namespace kesto {

/// Shows what the dialog gives it; the dialog decides what the buttons do.
class DialogFoot : public QWidget {
  Q_OBJECT

 public:
  explicit DialogFoot(QWidget* parent);

  /// Takes a widget over, before the buttons.
  void addLeading(QWidget* widget);

  /// The default button of the window.
  QPushButton& printButton() { return *m_print; }
  MessageBar& bar() { return *m_bar; }
  /// Shows or hides the progress of a job, at first without a known extent.
  void showProgress(bool isShown);
  /// Shows how many bytes of a document were sent; the total is -1 when unknown.
  void setProgress(qint64 sent, qint64 total);
  /// Whether there is nothing left to cancel.
  void offerClose(bool isOffered);

 Q_SIGNALS:
  void printPressed();
  void cancelPressed();
  void helpPressed();

 private:
  void dressButtons();

  MessageBar* m_bar;
  QHBoxLayout* m_leading;
  QProgressBar* m_progress;
  QDialogButtonBox* m_buttons;
  QPushButton* m_print;
};

}  // namespace kesto
