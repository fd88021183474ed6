#include "hosts/cups/queue_watch.h"

#include <QtCore/QSet>

#include "hosts/cups/queue_events.h"

namespace kesto {
namespace {

constexpr std::chrono::seconds pollInterval(3);
constexpr const char* queueEvents[] = {"printer-state-changed", "printer-added", "printer-deleted",
                                       "printer-modified"};

}  // namespace

// The work of the thread; its results become signals of the watch.
class QueueWatch::Follower {
 public:
  Follower(QueueWatch* watch, ServerAddress server)
      : m_watch(watch), m_mailbox(watch), m_address(std::move(server)) {}

  // Called in the watch's thread: afterwards nothing is reported or waited for.
  void leave() { m_mailbox.close(); }
  void interrupt() { m_watchdog->interrupt(); }

  void list() {
    stop();
    std::vector<QueueSummary> queues;
    Outcome listed = m_address.connect(&m_server, m_watchdog);
    if (listed) listed = m_server->listQueues(&queues);
    if (!listed) return report(listed);
    m_mailbox.answer([watch = m_watch, queues] { Q_EMIT watch->listed(queues); });
    m_hasListed = true;
    m_isLost = false;
    // Without a subscription the list stays as it was.
    m_events.emplace(*m_server);
    if (!m_events->subscribe(queueEvents)) m_events.reset();
  }

  void follow() {
    if (m_isLost) return list();
    if (!m_events) return;
    std::vector<ServerEvent> events;
    Outcome asked = m_events->take(&events);
    if (!asked) {
      // The scheduler closes idle connections, and forgets subscriptions when it restarts.
      return list();
    }
    QSet<QString> names;
    for (const ServerEvent& event : events)
      names.insert(event.queue);
    for (const QString& name : std::as_const(names))
      tell(name);
  }

  void stop() {
    if (m_events) m_events->cancel();
    m_events.reset();
    m_server.reset();
  }

 private:
  void report(const Outcome& failure) {
    stop();
    m_isLost = m_hasListed;
    m_mailbox.answer([watch = m_watch, reason = failure.reason()] { Q_EMIT watch->failed(reason); });
  }

  void tell(const QString& name) {
    std::optional<QueueSummary> queue;
    // A failure here is repaired by the next listing.
    if (!m_server->summarize(name, &queue)) return;
    if (queue) {
      m_mailbox.answer([watch = m_watch, queue = *queue] { Q_EMIT watch->changed(queue); });
    } else {
      m_mailbox.answer([watch = m_watch, name] { Q_EMIT watch->removed(name); });
    }
  }

  QueueWatch* m_watch;  // used only in its own thread
  Mailbox m_mailbox;
  std::shared_ptr<Watchdog> m_watchdog = std::make_shared<Watchdog>();
  ServerAddress m_address;
  std::unique_ptr<PrintServer> m_server;
  std::optional<QueueEvents> m_events;  // none while nothing is followed
  bool m_hasListed = false;
  bool m_isLost = false;  // there was a list, but the server no longer answers
};

QueueWatch::QueueWatch(const ServerAddress& server)
    : m_follower(std::make_shared<Follower>(this, server)),
      m_thread([follower = m_follower] { follower->interrupt(); }) {
  m_poll.setInterval(pollInterval);
  m_poll.setTimerType(Qt::VeryCoarseTimer);
  connect(&m_poll, &QTimer::timeout, this,
          [this] { m_thread.post([follower = m_follower] { follower->follow(); }); });
}

QueueWatch::~QueueWatch() {
  m_follower->leave();
  m_thread.post([follower = m_follower] { follower->stop(); });
}

void QueueWatch::start() {
  m_thread.post([follower = m_follower] { follower->list(); });
  m_poll.start();
}

}  // namespace kesto
