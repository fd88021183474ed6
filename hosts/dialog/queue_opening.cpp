#include "hosts/dialog/queue_opening.h"

#include <chrono>
#include <utility>

#include "hosts/dialog/widgets/plain_text.h"

namespace kesto {
namespace {

constexpr std::chrono::milliseconds longestListDelay(250);

}  // namespace

QueueOpening::QueueOpening(QueueWatch& watch, QueueClient& client, const QueueListModel& queues)
    : m_watch(watch), m_client(client), m_queues(queues) {
  connect(&client, &QueueClient::opened, this, [this](Queue& queue) { take(std::move(queue)); });
  connect(&client, &QueueClient::openFailed, this, &QueueOpening::takeOpenFault);
  m_listDelay.setSingleShot(true);
  m_listDelay.setInterval(longestListDelay);
  connect(&m_listDelay, &QTimer::timeout, this, [this] { m_watch.start(); });
}

void QueueOpening::start(const QString& name) {
  m_wanted = name;
  m_listDelay.start();
  ask();
}

// A long list keeps the scheduler and this program busy, so the wanted queue and its panel come first.
void QueueOpening::listNow() {
  if (!m_listDelay.isActive()) return;
  m_listDelay.stop();
  m_watch.start();
}

void QueueOpening::suggest(const QString& name) {
  m_suggested = name;
  start(name);
}

void QueueOpening::want(const QString& name) {
  m_wanted = name;
  m_suggested = QString();
  leave();
  isPdf() ? take({.id = name, .isFile = true}) : ask();
}

void QueueOpening::leave() {
  m_client.forget();
  reset();
  Q_EMIT left();
}

void QueueOpening::retry() {
  if (!m_listFault.isNull()) {
    m_listFault = QString();
    m_isListed = false;
    m_watch.start();
  }
  // The default queue may exist by now, so the list is not shown as an answer before that is known.
  reset();
  ask();
}

void QueueOpening::reset() {
  m_state = State::Asked;
  m_isSettled = false;
  m_fault = QString();
  m_openFault = QString();
}

void QueueOpening::ask() {
  Q_EMIT changed();
  const QueueSummary* known = m_queues.queue(m_wanted);
  m_client.open(m_wanted, known != nullptr && known->isOnNetwork ? std::optional(*known) : std::nullopt);
}

void QueueOpening::take(Queue queue) {
  reset();
  m_wanted = queue.id;
  m_suggested = QString();
  m_isAccepting = !queue.destination || optionOf(*queue.destination, "printer-is-accepting-jobs") != u"false";
  m_state = State::Open;
  Q_EMIT opened(queue);
  takeChange();
  // Lets the window handle pending events before the panel becomes visible.
  QMetaObject::invokeMethod(this, &QueueOpening::settle, Qt::QueuedConnection);
}

void QueueOpening::takeList() {
  m_listFault = QString();
  m_isListed = true;
  takeChange();
  if (m_wanted.isNull()) settleWithout();
}

void QueueOpening::takeChange() {
  if (!isOpen()) return;
  m_state = m_isListed && !isPdf() && !isPrinterUri(m_wanted) && m_queues.rowOf(m_wanted) < 0 ? State::Gone
                                                                                              : State::Open;
  Q_EMIT changed();
}

void QueueOpening::takeListFault(const QString& reason) {
  m_listFault = asSentence(reason);
  if (isOpen()) return;
  m_fault = m_listFault;
  Q_EMIT changed();
  settleWithout();
}

void QueueOpening::takeOpenFault(const QString& reason) {
  if (isOpen()) return;  // A queue that was handed over meanwhile stays.
  if (!m_suggested.isNull() && m_suggested == m_wanted) {
    return want({});
  }
  listNow();
  m_openFault = asSentence(reason);
  settleWithout();
}

// The requested queue does not exist. In place of a missing default queue the first one that accepts jobs is
// used when the list has arrived.
void QueueOpening::settleWithout() {
  if (m_openFault.isNull()) return;
  QString fault = m_openFault;
  if (m_wanted.isNull() && !m_listFault.isNull()) {
    fault = m_listFault;
  } else if (m_wanted.isNull()) {
    if (!m_isListed) return;
    for (const QueueSummary& queue : m_queues.queues()) {
      if (queue.isAccepting) return want(queue.name);
    }
    fault = tr("No printer is accepting jobs. Check the printers in the system settings, then try again.");
  }
  m_state = State::Failed;
  m_fault = fault;
  Q_EMIT changed();
  settle();
}

void QueueOpening::settle() {
  if (m_state == State::Asked || std::exchange(m_isSettled, true)) return;
  Q_EMIT settled();
  listNow();
}

QueueSummary QueueOpening::summary() const {
  if (!isOpen()) return {};
  const QueueSummary* listed = m_queues.queue(m_wanted);
  if (listed != nullptr) return *listed;
  QueueSummary summary;
  summary.isAccepting = m_isAccepting;
  return summary;
}

}  // namespace kesto
