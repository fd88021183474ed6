// The queues of a print server, listed and followed without holding up the window.
#pragma once

#include <QtCore/QObject>
#include <QtCore/QTimer>
#include <memory>
#include <vector>

#include "hosts/cups/server_address.h"
#include "hosts/cups/worker_thread.h"

namespace kesto {

/// Lists the queues once, then asks every few seconds what has changed, and only about that. Signals come in
/// the thread of this object.
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
  /// One queue has come or changed.
  void changed(const kesto::QueueSummary& queue);
  /// One queue is gone.
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
