// Opens queues of a print server and prints on them without blocking the window.
#pragma once

#include <QtCore/QObject>
#include <atomic>
#include <memory>

#include "hosts/cups/job_privacy.h"
#include "hosts/cups/print_job.h"
#include "hosts/cups/queue.h"
#include "hosts/cups/sent_job.h"
#include "hosts/cups/server_address.h"
#include "hosts/cups/worker_thread.h"

namespace kesto {

/// Opens one queue after the other, and sends jobs to them. Signals come in the thread of this object.
class QueueClient : public QObject {
  Q_OBJECT

 public:
  explicit QueueClient(ServerAddress server) : m_server(std::move(server)) {}
  ~QueueClient() override { m_mailbox->close(); }

  /// Opens a queue, the user's default one when `name` is null. The result of an earlier call is no longer
  /// reported. For a printer on the network the server first makes the queue.
  void open(const QString& name, const std::optional<QueueSummary>& announced = {});
  /// The result of an earlier `open` is no longer reported.
  void forget() { ++m_request; }
  /// Sends a job to the queue `name`. For a printer on the network the server first makes the queue.
  void send(const QString& name, const PrintJob& job, const std::optional<QueueSummary>& announced = {});
  /// Cancels a job, if that is possible.
  void cancel(const SentJob& job);
  /// Finds out what other users see of a job on the queue `name`.
  void checkPrivacy(const QString& name);
  /// Stops the job that is being sent; it then fails.
  void stopSending() { *m_isStopped = true; }

 Q_SIGNALS:
  /// The queue is open, and the receiver's who moves it away.
  void opened(kesto::Queue& queue);
  void openFailed(const QString& reason);
  /// Bytes of the document that were sent, and its size (-1 when unknown).
  void progressed(qint64 sent, qint64 total);
  void sent(int job);
  void sendFailed(const QString& reason);
  /// What other users see; on failure the outcome says why it is unknown.
  void privacyChecked(const kesto::Outcome& outcome, const kesto::JobPrivacy& privacy);

 private:
  ServerAddress m_server;
  int m_request = 0;
  // Shared with the thread, which can outlive this object.
  std::shared_ptr<Mailbox> m_mailbox = std::make_shared<Mailbox>(this);
  std::shared_ptr<Watchdog> m_watchdog = std::make_shared<Watchdog>();
  std::shared_ptr<std::atomic<bool>> m_isStopped = std::make_shared<std::atomic<bool>>(false);
  WorkerThread m_thread{[watchdog = m_watchdog] { watchdog->interrupt(); }};
};

}  // namespace kesto
