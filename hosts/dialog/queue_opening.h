// The queue that a print dialog wants, and the state of its opening.
#pragma once

#include <QtCore/QTimer>

#include "hosts/cups/queue_client.h"
#include "hosts/cups/queue_watch.h"
#include "hosts/dialog/widgets/queue_list_model.h"

namespace kesto {

/// One queue at a time: which is wanted, and whether it is open. The first listed queue that accepts jobs
/// replaces a missing default queue.
class QueueOpening : public QObject {
  Q_OBJECT

 public:
  enum class State {
    Asked,   ///< The print server is asked for it.
    Open,    ///< It can be printed on.
    Gone,    ///< It was opened, but the print server no longer lists it.
    Failed,  ///< It cannot be opened; `fault` says why.
  };

  /// `queues` shows what `watch` lists. All three must outlive this object.
  QueueOpening(QueueWatch& watch, QueueClient& client, const QueueListModel& queues);

  /// Asks for a queue, the user's default one when `name` is null, and then for the list of all.
  void start(const QString& name);
  /// Like `start`, for a queue that an application remembers. When it cannot be opened, the default queue
  /// replaces it.
  void suggest(const QString& name);
  /// Gives up the queue and asks for another.
  void want(const QString& name);
  /// Gives up the queue and asks for no other.
  void leave();
  /// Asks again after a fault.
  void retry();
  /// Accepts an open queue as the wanted one.
  void take(Queue queue);
  /// Call these when the list is complete, when one of its queues was added, changed or removed, and when
  /// there is no list.
  void takeList();
  void takeChange();
  void takeListFault(const QString& reason);

  State state() const { return m_state; }
  bool isOpen() const { return m_state == State::Open || m_state == State::Gone; }
  /// Whether "Save as PDF" is wanted in place of a queue. It is open at once.
  bool isPdf() const { return m_wanted == QueueListModel::pdfName; }
  /// Whether `settled` has been emitted for the wanted queue.
  bool isSettled() const { return m_isSettled; }
  /// The wanted queue's name; null for the default queue until that is known.
  const QString& wanted() const { return m_wanted; }
  /// Why there is no queue, if that is known; otherwise null.
  const QString& fault() const { return m_fault; }
  /// What the list says about the open queue, else what arrived with it.
  QueueSummary summary() const;

 Q_SIGNALS:
  /// The receiver must give up the queue.
  void left();
  /// The wanted queue is open, and the receiver's who moves it away.
  void opened(kesto::Queue& queue);
  /// The state, the fault or the summary may have changed.
  void changed();
  /// The wanted queue is open, or cannot be opened. It follows `opened` after one pass of the event loop.
  void settled();

 private:
  void reset();
  void ask();
  void listNow();
  void takeOpenFault(const QString& reason);
  void settleWithout();
  void settle();

  QueueWatch& m_watch;
  QueueClient& m_client;
  const QueueListModel& m_queues;
  QTimer m_listDelay;  // until a queue that does not answer no longer holds up the list
  State m_state = State::Asked;
  bool m_isSettled = false;
  bool m_isListed = false;
  bool m_isAccepting = true;  // the open queue, when it was opened
  QString m_wanted;
  QString m_suggested;  // null after another queue has replaced it
  QString m_fault;
  QString m_openFault;  // of the wanted queue
  QString m_listFault;
};

}  // namespace kesto
