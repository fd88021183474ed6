// Lists the queues of a print server and follows their changes without blocking the window.
#pragma once

#include <QtCore/QObject>
#include <QtCore/QTimer>
#include <memory>
#include <vector>

#include "hosts/cups/server_address.h"
#include "hosts/cups/worker_thread.h"

namespace kesto {

/// Lists the queues once, then asks every few seconds for changes, and only about changed queues. Signals are
/// emitted in the thread of this object.
class QueueWatch : public QObject {
  Q_OBJECT

 public:
  explicit QueueWatch(const ServerAddress& server);
  ~QueueWatch() override;

  /// Lists the queues, again after a failure.
  void start();

 Q_SIGNALS:
  /// All queues, by name.
  void listed(const std::vector<kesto::QueueSummary>& queues);
  /// One queue was added or changed.
  void changed(const kesto::QueueSummary& queue);
  /// One queue was removed.
  void removed(const QString& name);
  /// The server does not answer, or refuses; nothing is followed until the next start.
  void failed(const QString& reason);

 private:
  class Follower;

  std::shared_ptr<Follower> m_follower;  // of the thread
  QTimer m_poll;
  WorkerThread m_thread;
};

}  // namespace kesto
