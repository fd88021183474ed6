// What happens on a print server, as the server reports it.
#pragma once

#include <QtCore/QStringList>
#include <span>
#include <vector>

#include "hosts/cups/print_server.h"

namespace kesto {

/// One event. What it is not about is empty or 0.
struct ServerEvent {
  QString queue;
  int job = 0;
  int jobState = 0;
  QStringList jobReasons;
  QString text;  ///< The server's words.
};

/// A subscription to events of all queues of one server. It is leased, and ends by itself when nobody asks
/// any more.
class QueueEvents {
 public:
  /// `server` must outlive the subscription.
  explicit QueueEvents(PrintServer& server) : m_server(server) {}

  /// Subscribes to events by the standard's keywords. Fails when the server refuses this user a subscription.
  Outcome subscribe(std::span<const char* const> events);
  /// The events since the last call. Fails when the subscription has ended or the server does not answer.
  Outcome take(std::vector<ServerEvent>* events);
  /// Ends the subscription.
  void cancel();

 private:
  PrintServer& m_server;
  int m_id = 0;
  int m_sequence = 1;  // of the next event to ask for
};

}  // namespace kesto
