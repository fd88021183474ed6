// The queue that a print dialog wants, and what became of opening it.
#pragma once

#include "hosts/cups/queue_client.h"
#include "hosts/cups/queue_watch.h"
#include "hosts/dialog/widgets/queue_list_model.h"

namespace kesto {

/// One queue at a time: which is wanted, and whether it is open. The first listed queue that takes jobs
/// stands in for a default queue that does not exist.
class QueueOpening : public QObject {
  Q_OBJECT

 public:
  enum class State {
    Asked,   ///< The print server is asked for it.
    Open,    ///< It can be printed on.
    Gone,    ///< It was opened, and the print server does not list it any more.
    Failed,  ///< It cannot be opened; `fault` says why.
  };

  /// `queues` shows what `watch` lists. All three must outlive this object.
  QueueOpening(QueueWatch& watch, QueueClient& client, const QueueListModel& queues);

  /// Asks for a queue, the user's default one when `name` is null, and for the list of all.
  void start(const QString& name);
  /// As `start`, for a queue that an application remembers: the default one stands in for it when it cannot
  /// be opened.
  void suggest(const QString& name);
  /// Lets go of the queue and asks for another.
  void want(const QString& name);
  /// Lets go of the queue, and asks for no other.
  void leave();
  /// Asks again after a fault.
  void retry();
  /// Takes a queue that is open as the wanted one.
  void take(Queue queue);
  /// The list has been filled; one of its queues has come, changed or gone; there is no list.
  void takeList();
  void takeChange();
  void takeListFault(const QString& reason);

  State state() const { return m_state; }
  bool isOpen() const { return m_state == State::Open || m_state == State::Gone; }
  /// Whether `settled` has been emitted for the wanted queue.
  bool isSettled() const { return m_isSettled; }
  /// The wanted queue's name; null for the default queue until that is known.
  const QString& wanted() const { return m_wanted; }
  /// Why there is no queue, as far as it is known; null otherwise.
  const QString& fault() const { return m_fault; }
  /// What the list says of the open queue, else what came with it.
  QueueSummary summary() const;

 Q_SIGNALS:
  /// The queue is to be let go of.
  void left();
  /// The wanted queue is open, and the receiver's who moves it away.
  void opened(kesto::Queue& queue);
  /// The state, the fault or the summary may be another.
  void changed();
  /// The wanted queue is open, or cannot be opened. Follows `opened` once the event loop has had a turn.
  void settled();

 private:
  void reset();
  void ask();
  void takeOpenFault(const QString& reason);
  void settleWithout();
  void settle();

  QueueWatch& m_watch;
  QueueClient& m_client;
  const QueueListModel& m_queues;
  State m_state = State::Asked;
  bool m_isSettled = false;
  bool m_isListed = false;
  bool m_isAccepting = true;  // the open queue, when it was opened
  QString m_wanted;
  QString m_suggested;  // null once another queue stands in for it
  QString m_fault;
  QString m_openFault;  // of the wanted queue
  QString m_listFault;
};

}  // namespace kesto
