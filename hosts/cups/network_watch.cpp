#include "hosts/cups/network_watch.h"

#include <QtCore/QSet>
#include <atomic>
#include <thread>

#include "hosts/cups/bounds.h"

namespace kesto {
namespace {

constexpr std::chrono::milliseconds roundTime(5000);
constexpr std::chrono::milliseconds roundPoll(50);

}  // namespace

// One search after the other, as libcups does not say that a printer is gone. Who misses two rounds is gone.
class NetworkWatch::Rounds : public std::enable_shared_from_this<NetworkWatch::Rounds> {
 public:
  explicit Rounds(NetworkWatch* watch) : m_watch(watch), m_mailbox(watch) {}

  // Called in the watch's thread: afterwards nothing is reported.
  void leave() {
    m_mailbox.close();
    stop();
  }
  void stop() { std::atomic_ref(*m_cancel).store(1); }

  void run() {
    while (!isStopped()) {
      const auto end = std::chrono::steady_clock::now() + roundTime;
      const bool isPossible =
          searchNetwork(roundTime, m_cancel, [self = shared_from_this()](const auto& each) {
            self->take(each);
            return true;
          });
      if (!isPossible) return;
      endRound();
      while (!isStopped() && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(roundPoll);
    }
  }

 private:
  struct Seen {
    QueueSummary printer;
    int missed = 0;  // rounds since then
  };

  bool isStopped() const { return std::atomic_ref(*m_cancel).load() != 0; }

  void take(const QueueSummary& printer) {
    const std::lock_guard lock(m_mutex);
    const bool isNew = !m_seen.contains(printer.name);
    if (isNew && m_seen.size() >= mostNetworkPrinters) return;
    m_seen.insert(printer.name, {printer, -1});
    if (isNew) report();
  }

  void endRound() {
    const std::lock_guard lock(m_mutex);
    for (Seen& each : m_seen)
      ++each.missed;
    if (m_seen.removeIf([](const auto& each) { return each.value().missed > 1; }) > 0) report();
  }

  void report() {
    std::vector<QueueSummary> printers;
    for (const Seen& each : std::as_const(m_seen))
      printers.push_back(each.printer);
    m_mailbox.answer([watch = m_watch, printers] { Q_EMIT watch->changed(printers); });
  }

  NetworkWatch* m_watch;  // used only in its own thread
  Mailbox m_mailbox;
  std::shared_ptr<int> m_cancel = std::make_shared<int>(0);
  std::mutex m_mutex;
  QMap<QString, Seen> m_seen;
};

NetworkWatch::NetworkWatch()
    : m_rounds(std::make_shared<Rounds>(this)), m_thread([rounds = m_rounds] { rounds->stop(); }) {}

NetworkWatch::~NetworkWatch() {
  m_rounds->leave();
}

void NetworkWatch::start() {
  m_thread.post([rounds = m_rounds] { rounds->run(); });
}

}  // namespace kesto
