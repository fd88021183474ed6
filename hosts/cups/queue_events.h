// Changes of a print server's queues, as the server reports them.
#pragma once

#include <QtCore/QSet>

#include "hosts/cups/print_server.h"

namespace kesto {

/// A subscription to events of all queues of one server. It is leased, and ends by itself when nobody asks
/// any more.
class QueueEvents {
 public:
  /// `server` must outlive the subscription.
  explicit QueueEvents(PrintServer& server) : m_server(server) {}

  /// Fails when the server refuses this user a subscription.
  Outcome subscribe();
  /// The queues that were changed, added or removed since the last call. Fails when the subscription has
  /// ended or the server does not answer.
  Outcome changedQueues(QSet<QString>* queues);
  /// Ends the subscription.
  void cancel();

 private:
  PrintServer& m_server;
  int m_id = 0;
  int m_sequence = 1;  // of the next event to ask for
};

}  // namespace kesto
