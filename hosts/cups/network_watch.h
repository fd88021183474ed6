// Follows the printers that announce themselves on the network without blocking the window.
#pragma once

#include <QtCore/QObject>
#include <memory>
#include <vector>

#include "hosts/cups/network_printers.h"
#include "hosts/cups/worker_thread.h"

namespace kesto {

/// Looks again and again while it exists, in a thread of its own. Without Avahi it does nothing. The signal
/// is emitted in the thread of this object.
class NetworkWatch : public QObject {
  Q_OBJECT

 public:
  NetworkWatch();
  ~NetworkWatch() override;

  /// Begins to look.
  void start();

 Q_SIGNALS:
  /// All printers, by name, after one has come or gone.
  void changed(const std::vector<kesto::QueueSummary>& printers);

 private:
  class Rounds;

  std::shared_ptr<Rounds> m_rounds;  // of the thread
  WorkerThread m_thread;
};

}  // namespace kesto
