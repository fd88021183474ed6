// Changes of a print server's queues, told by the server itself.
#pragma once

#include <QtCore/QSet>

#include "hosts/cups/print_server.h"

namespace kesto {

/// A subscription to what happens to the queues of one server. It is leased, and ends by itself when nobody
/// asks any more.
class QueueEvents {
 public:
  /// `server` must outlive the subscription.
  explicit QueueEvents(PrintServer& server) : m_server(server) {}

  /// Fails when the server gives no subscription to this user.
  Outcome subscribe();
  /// The queues that have changed, come or gone since it was last asked. Fails when the subscription has
  /// ended or the server does not answer.
  Outcome changedQueues(QSet<QString>* queues);
  /// Ends the subscription.
  void cancel();

 private:
  PrintServer& m_server;
  int m_id = 0;
  int m_sequence = 1;  // of the first event that is not known yet
};

}  // namespace kesto
