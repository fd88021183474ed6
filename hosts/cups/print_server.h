// A connection to a print server, on which no wait is longer than its limit and a second.
#pragma once

#include <cups/cups.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <chrono>
#include <memory>
#include <optional>
#include <vector>

#include "hosts/cups/ipp_reply.h"
#include "platform/outcome.h"

namespace kesto {

struct CloseHttp {
  void operator()(http_t* http) const;
};
struct FreeDest {
  void operator()(cups_dest_t* dest) const;
};

/// A queue with its options, as libcups gives it.
using Destination = std::unique_ptr<cups_dest_t, FreeDest>;

/// What a list of queues shows of one.
struct QueueSummary {
  QString name;
  QString info;       ///< The queue's description, as people wrote it.
  QString deviceUri;  ///< Where it sends its jobs.
  QString state;      ///< "idle", "processing" or "stopped".
  bool isAccepting = true;
};

/// One print server. Every operation ends within the time limit of each of its waits, and a second more, by
/// which libcups counts; outcomes carry libcups's text.
class PrintServer {
 public:
  /// Connects to `address` ("host" or "host:port"), or to the server that CUPS_SERVER and the configuration
  /// name when it is null.
  static Outcome connect(const QString& address, std::chrono::milliseconds limit,
                         std::unique_ptr<PrintServer>* server);

  /// Whether the server answers at all.
  Outcome probe();
  /// The queue `name`, or the user's default queue when it is null.
  Outcome findQueue(const QString& name, Destination* destination);
  /// All queues by name, by one request for what a summary shows.
  Outcome listQueues(std::vector<QueueSummary>* queues);
  /// What the list shows of one queue; none when the server has no such queue.
  Outcome summarize(const QString& name, std::optional<QueueSummary>* queue);
  /// Sends one request, as whom it names, and reads the reply, whatever its status; never asks for a
  /// password.
  Outcome request(ipp_t* request, Ipp* reply);
  /// As `request`, but fails on a reply that tells of an error, unless that is `allowed`.
  Outcome ask(ipp_t* request, Ipp* reply, ipp_status_t allowed = IPP_STATUS_OK);

  /// For libcups's calls.
  http_t* http() const { return m_http.get(); }

 private:
  explicit PrintServer(http_t* http) : m_http(http) {}
  Outcome exchange(ipp_t* request, QByteArray* reply);

  std::unique_ptr<http_t, CloseHttp> m_http;
};

/// The value of a queue's option or attribute; null when it has none.
QString optionOf(const cups_dest_t& destination, const char* name);

/// The URI by which requests name a queue.
QByteArray uriOfQueue(const QString& queue);

/// A request to the printer with this URI, about one of its jobs when `job` is not 0, as `user`.
Ipp requestTo(ipp_op_t operation, const QByteArray& printerUri, int job = 0, const char* user = cupsUser());

/// libcups's last error as an outcome, behind what was tried.
Outcome lastCupsError(const QString& attempt);

}  // namespace kesto
