// An HTTP connection to a print server, on which every wait ends whatever the server does.
#pragma once

#include <cups/cups.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <chrono>
#include <functional>
#include <memory>

#include "hosts/cups/password_keeper.h"
#include "hosts/cups/watchdog.h"
#include "platform/outcome.h"

namespace kesto {

struct CloseHttp {
  void operator()(http_t* http) const;
};

/// A request: a GET when it has no body, else a POST of a message in IPP.
struct HttpRequest {
  /// Sends a part of the document.
  using Sink = std::function<Outcome(const char* bytes, qsizetype count)>;

  QByteArray resource;
  QByteArray body{};
  /// Sends what follows the body, part by part.
  std::function<Outcome(const Sink& sink)> document{};
  /// The longest accepted reply, in bytes.
  qsizetype longestReply = 0;
  /// Whether it goes out with the user's password, for which the user may be asked.
  bool mayAskPassword = false;
  /// Whether it changes nothing on the server, and so may be sent once more when a connection ends.
  bool isQuestion = false;
  /// Whether it has secrets in it, and so goes out encrypted unless the server is on this machine.
  bool isSecret = false;
};

/// One connection. libcups does HTTP, encryption and authentication; `passwords` has the user's passwords,
/// and without it the user is not asked. A watchdog limits every wait on the server. Without progress a
/// request fails after the limit. The head of a reply must arrive within the limit, the whole reply within
/// `waitsOfReply` times the limit. A document may take any time while it moves. Redirects are not followed.
class HttpConnection {
 public:
  /// Connects to the server that libcups has been given for this thread.
  static Outcome open(std::chrono::milliseconds limit, std::shared_ptr<Watchdog> watchdog,
                      std::shared_ptr<PasswordKeeper> passwords, std::unique_ptr<HttpConnection>* connection);

  ~HttpConnection();
  HttpConnection(const HttpConnection&) = delete;
  HttpConnection& operator=(const HttpConnection&) = delete;

  /// Sends a request and reads the reply; fails unless the server reports success.
  Outcome exchange(const HttpRequest& request, QByteArray* reply);
  /// The status of the last answer; HTTP_STATUS_ERROR without one.
  http_status_t status() const { return m_status; }
  /// Null when the user is not to be asked.
  PasswordKeeper* passwords() const { return m_passwords.get(); }

 private:
  using Watch = Watchdog::Watch;
  using Clock = std::chrono::steady_clock;

  HttpConnection(std::chrono::milliseconds limit, std::shared_ptr<Watchdog> watchdog,
                 std::shared_ptr<PasswordKeeper> passwords)
      : m_limit(limit), m_watchdog(std::move(watchdog)), m_passwords(std::move(passwords)) {}
  Outcome prepare();
  Outcome reconnect();
  bool isPrivate() const;
  Outcome makePrivate();
  Outcome attempt(const HttpRequest& request, QByteArray* reply);
  Outcome send(const HttpRequest& request, Watch& watch);
  Outcome sendDocument(const HttpRequest& request, Watch& watch);
  Outcome sendPart(const char* bytes, qsizetype count, Watch& watch);
  Outcome receive(qsizetype longest, QByteArray* reply);
  bool canTryAgain(const HttpRequest& request);
  bool encrypt();
  bool authenticate(const HttpRequest& request);
  const char* findPassword();
  Outcome noAnswer(const Watch& watch);
  Outcome outcomeOfStatus() const;
  static int giveUp(http_t* http, void* connection);
  static const char* askPassword(const char* prompt, http_t* http, const char* method, const char* resource,
                                 void* connection);

  QByteArray m_host;
  int m_port = 0;
  QString m_name;  // the server's name for the user
  std::chrono::milliseconds m_limit;
  std::shared_ptr<Watchdog> m_watchdog;
  std::shared_ptr<PasswordKeeper> m_passwords;
  std::optional<Credentials> m_given;  // to the server; right until it refuses them
  QByteArray m_password;               // as libcups reads it
  bool m_hasGiven = false;             // on this connection
  QString m_refusal;                   // why there is no password for it
  Addresses m_addresses;
  std::unique_ptr<http_t, CloseHttp> m_http;
  http_status_t m_status = HTTP_STATUS_ERROR;
  Clock::time_point m_waitBegan;
  bool m_isUsable = false;          // for another request
  bool m_isSilent = false;          // a wait was given up
  bool m_isClosed = false;          // by the server, before it answered
  bool m_hasBegunDocument = false;  // it can be read only once
};

}  // namespace kesto
