// The choice of a printer, with its state.
#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QComboBox>
#include <functional>

#include "hosts/dialog/widgets/queue_list_model.h"

class QLabel;
class QPushButton;

namespace kesto {

class PrinterDetails;

/// A list of queues, with a filter to type into when there are many, and a line with a message about the
/// chosen one. A text in the field other than the chosen queue's is pending: it chooses nothing until it is
/// confirmed with Enter or by leaving the field. A text that is set whole, without typing, chooses at once.
class QueueChooser : public QWidget {
  Q_OBJECT

 public:
  explicit QueueChooser(QWidget* parent);

  const QueueListModel& model() const { return m_model; }
  /// The field for this choice's label.
  QWidget* field() const { return m_combo; }
  /// News about the queues. The chosen queue and what is being typed stay.
  void setQueues(const std::vector<QueueSummary>& queues);
  void setQueue(const QueueSummary& queue);
  void removeQueue(const QString& name);
  void setNetwork(const std::vector<QueueSummary>& printers);
  /// Whether another queue may be chosen. What is known of this one can be seen in any case.
  void setChoosable(bool isChoosable);
  /// Adds "Save as PDF" to the list.
  void offerPdf();
  /// Shows `name` as the chosen queue, listed or not, instead of what was typed; emits nothing.
  void setCurrent(const QString& name);
  /// Like `setCurrent`, but what is being typed stays.
  void takeCurrent(const QString& name);
  /// Whether the field shows a text other than the chosen queue's.
  bool isPending() const { return !m_typed.isNull(); }
  /// Shows a text about the chosen queue with an icon, and a button to try again after a fault.
  void showState(const QString& text, StateIcon::Kind kind);
  /// Offers the details of the chosen queue, and shows them anew where they are open; nothing is offered of a
  /// queue without a name.
  void showDetails(const QueueSummary& queue);

 Q_SIGNALS:
  /// The user has chosen a queue.
  void chosen(const QString& name);
  /// The text in the field has become pending or is no longer pending.
  void pendingChanged();
  void retryAsked();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // What a text names.
  struct Match {
    QString queue;  // null unless it is one
    int count = 0;  // two for all above one
  };

  void buildList();
  void offerFilter();
  void takeText(const QString& text, bool isWhole);
  void confirmText();
  void choose(const QString& name);
  void setTyped(const QString& text);
  Match match(const QString& text, Qt::MatchFlag kind) const;
  QString currentText() const;
  QString pendingText() const;
  void update(const std::function<void()>& change = {});
  bool isFault() const { return m_kind == StateIcon::Kind::Fault; }
  void updateLine();
  void openDetails();

  QueueListModel m_model;
  QString m_current;
  QString m_typed;  // the pending text, null when the field shows the chosen queue
  QString m_text;
  StateIcon::Kind m_kind = StateIcon::Kind::None;
  bool m_isUpdating = false;  // the field is changing because of the list, not by a choice
  QComboBox* m_combo;
  StateIcon* m_icon;
  QLabel* m_state;
  QPushButton* m_retry;
  QPushButton* m_more;
  QueueSummary m_summary;  // of the chosen queue
  QPointer<PrinterDetails> m_details;
};

}  // namespace kesto
