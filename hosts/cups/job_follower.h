// Follows a job on a print server without blocking the caller.
#pragma once

#include <QtCore/QObject>
#include <QtCore/QTimer>
#include <memory>

#include "hosts/cups/sent_job.h"
#include "hosts/cups/server_address.h"
#include "hosts/cups/worker_thread.h"

namespace kesto {

/// Follows one job from its sending to its end. It asks twice a second for what has happened, and only then
/// for the job; without a subscription it asks for the job itself. Signals come in the thread of this object.
class JobFollower : public QObject {
  Q_OBJECT

 public:
  /// Begins to follow the job, which has a queue.
  JobFollower(const ServerAddress& server, const SentJob& job);
  ~JobFollower() override;

  /// Has the server cancel the job.
  void cancel();

 Q_SIGNALS:
  /// What the server says, whenever it has changed. Nothing follows the report of a finished job.
  void reported(const kesto::JobReport& report);
  /// The server has not answered within the limit of its address, or does not know the job any more. Nothing
  /// follows.
  void lost(const QString& reason);
  void cancelFailed(const QString& reason);

 private:
  class Work;

  void ask();

  std::shared_ptr<Watchdog> m_watchdog = std::make_shared<Watchdog>();
  std::shared_ptr<Mailbox> m_mailbox = std::make_shared<Mailbox>(this);
  std::shared_ptr<Work> m_work;  // of the thread
  QTimer m_pause;
  WorkerThread m_thread;
};

}  // namespace kesto
