// The choice of a printer, with its state.
#pragma once

#include <QtWidgets/QComboBox>

#include "hosts/dialog/widgets/queue_list_model.h"

class QLabel;
class QPushButton;

namespace kesto {

/// A list of queues, with a filter to type into when there are many, and a line for what there is to say
/// about the chosen one.
class QueueChooser : public QWidget {
  Q_OBJECT

 public:
  explicit QueueChooser(QWidget* parent);

  QueueListModel& model() { return m_model; }
  /// The field that the label of this choice belongs to.
  QWidget* field() const { return m_combo; }
  void setQueues(const std::vector<QueueSummary>& queues);
  /// Shows `name` as the chosen queue, listed or not; emits nothing.
  void setCurrent(const QString& name);
  /// Shows the state of the chosen queue.
  void showState();
  /// Shows a text in the state's place, with a button to try again behind a fault.
  void showText(const QString& text, bool isFault);

 Q_SIGNALS:
  /// The user has chosen a queue.
  void chosen(const QString& name);
  void retryAsked();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void offerFilter();
  void takeTypedName();

  QueueListModel m_model;
  QString m_current;
  QComboBox* m_combo;
  QLabel* m_state;
  QPushButton* m_retry;
};

}  // namespace kesto
