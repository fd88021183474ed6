// A print server, asked over one connection.
#pragma once

#include <cups/cups.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <chrono>
#include <memory>
#include <optional>
#include <vector>

#include "hosts/cups/http_connection.h"
#include "hosts/cups/ipp_reply.h"
#include "hosts/cups/queue_options.h"
#include "platform/outcome.h"

namespace kesto {

struct FreeDest {
  void operator()(cups_dest_t* dest) const;
};

/// A queue with its options, as libcups gives it.
using Destination = std::unique_ptr<cups_dest_t, FreeDest>;

/// What a printer prints with, such as its black toner.
struct Supply {
  QString name;
  QString color;   ///< "#RRGGBB", as the printer says it; may be empty or another word.
  int level = -1;  ///< In percent; negative when the printer does not know.
};

/// What a list of queues shows for one queue.
struct QueueSummary {
  QString name;
  QString info;          ///< The queue's description, as its administrator wrote it.
  QString deviceUri;     ///< Where it sends its jobs.
  QString state;         ///< "idle", "processing" or "stopped".
  QString stateMessage;  ///< The server's message about it, such as why it is stopped or accepts no jobs.
  bool isAccepting = true;
  QString location;                ///< Where it stands, as its administrator wrote it.
  int jobs = 0;                    ///< Jobs that it has not finished.
  QString model;                   ///< Of the printer.
  QStringList stateReasons{};      ///< The keywords of "printer-state-reasons".
  std::vector<Supply> supplies{};  ///< Empty when the printer names none.
  bool isOnNetwork = false;        ///< No queue yet: the printer announces itself on the network.
};

/// One print server. Every operation ends in time and uses no more memory than `bounds.h` allows, whatever
/// the server does; on failure the outcome says what happened.
class PrintServer {
 public:
  /// Sends a document in parts.
  using Document = std::function<Outcome(const HttpRequest::Sink& sink)>;

  /// Connects to `address` ("host", "host:port" or the path of a socket), or to the server that CUPS_SERVER
  /// and the configuration name when it is null. `limit` applies to every wait without progress; `watchdog`
  /// ends all waits when it is interrupted; `passwords` has what a request needs that wants a password.
  static Outcome connect(const QString& address, std::chrono::milliseconds limit,
                         std::unique_ptr<PrintServer>* server,
                         const std::shared_ptr<Watchdog>& watchdog = std::make_shared<Watchdog>(),
                         const std::shared_ptr<PasswordKeeper>& passwords = {});

  /// The queue `name`, or the user's default queue when it is null, with what the server and the user keep
  /// for it.
  Outcome findQueue(const QString& name, Destination* destination);
  /// All queues by name, with one request for what a summary shows.
  Outcome listQueues(std::vector<QueueSummary>* queues);
  /// What the list shows for one queue; none when the server has no such queue.
  Outcome summarize(const QString& name, std::optional<QueueSummary>* queue);
  /// Sends one request as the user that it names, and reads the reply, whatever its status. Never asks for a
  /// password, and sends none.
  Outcome request(ipp_t* request, Ipp* reply);
  /// Like `request`, but fails with the server's words when the reply reports an error other than `allowed`.
  /// The user may be asked for a password unless the request is in another's name.
  Outcome ask(ipp_t* request, Ipp* reply, ipp_status_t allowed = IPP_STATUS_OK);
  /// Like `ask`, for operations that servers may allow at this resource alone. The document follows the
  /// request.
  Outcome order(ipp_t* request, const QByteArray& resource, Ipp* reply, const Document& document = {});
  /// Fetches a PPD or another file; null when there is none.
  Outcome fetch(const QByteArray& resource, qsizetype longest, QByteArray* bytes);
  /// Null when the user is not to be asked.
  PasswordKeeper* passwords() const { return m_http->passwords(); }
  /// All requests go to this resource, as with a printer that is its own server.
  void useResource(const QByteArray& resource) { m_resource = resource; }

 private:
  explicit PrintServer(std::unique_ptr<HttpConnection> http) : m_http(std::move(http)) {}
  Outcome exchange(ipp_t* request, HttpRequest message, Ipp* reply);
  Outcome findDefault(QueueName* name);

  std::unique_ptr<HttpConnection> m_http;
  QByteArray m_resource;  // null for those that a print server has for each kind of request
};

/// The value of a queue's option or attribute; null when it has none.
QString optionOf(const cups_dest_t& destination, const char* name);

/// Whether a print server may have a queue of that name: it has no control characters, "/" and "#".
bool isQueueName(QStringView name);
/// Whether a queue's name is the URI of a printer that is its own server, as in "ipp://host/ipp/print".
bool isPrinterUri(const QString& queue);
/// The URI that names a queue in requests, and the resource that takes its jobs.
QByteArray uriOfQueue(const QString& queue);
QByteArray resourceOfQueue(const QString& queue);

/// A request to the printer with this URI, about one of its jobs when `job` is not 0, as `user`.
Ipp requestTo(ipp_op_t operation, const QByteArray& printerUri, int job = 0, const char* user = cupsUser());

}  // namespace kesto
