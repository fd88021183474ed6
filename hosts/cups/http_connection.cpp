#include "hosts/cups/http_connection.h"

#include <sys/socket.h>

#include <cstring>
#include <future>

#include "hosts/cups/bounds.h"
#include "hosts/cups/faults.h"

namespace kesto {
namespace {

constexpr qsizetype blockSize = 65536;
// How long a document waits for the server's "100 Continue", which old servers do not send.
constexpr std::chrono::milliseconds leave(1000);
// How often the wait for an address checks whether to give up.
constexpr std::chrono::milliseconds look(50);

// Without this, closing an encrypted connection waits for the other side.
void shutDown(http_t* http) {
  if (httpGetFd(http) >= 0) ::shutdown(httpGetFd(http), SHUT_RDWR);
}

// Gives a connection up. Without the flush libcups would keep what it has unpacked of a reply that broke off.
void letGo(http_t* http) {
  shutDown(http);
  httpFlush(http);
}

// libcups accepts any number as a status, even one that its type cannot hold.
http_status_t nextStatus(http_t* http) {
  const int status = httpUpdate(http);
  const bool isOfHttp = status >= HTTP_STATUS_CONTINUE && status < 600;
  return isOfHttp ? static_cast<http_status_t>(status) : HTTP_STATUS_ERROR;
}

bool isRedirect(http_status_t status) {
  return status >= HTTP_STATUS_MULTIPLE_CHOICES && status < HTTP_STATUS_BAD_REQUEST;
}

}  // namespace

void CloseHttp::operator()(http_t* http) const {
  letGo(http);
  httpClose(http);
}

// libcups calls this when a wait has reached the limit, but also when an encrypted record contains nothing
// for it. In the latter case the wait goes on.
int HttpConnection::giveUp(http_t* http, void* connection) {
  auto* self = static_cast<HttpConnection*>(connection);
  if (Clock::now() < self->m_waitBegan + self->m_limit * 9 / 10) return 1;  // libcups's clock is coarse
  self->m_isSilent = true;
  shutDown(http);
  return 0;
}

// A look-up cannot be interrupted, so it runs in a thread of its own, which is abandoned if necessary.
Outcome HttpConnection::findAddresses(const QByteArray& host, int port) {
  std::packaged_task<Addresses()> task([host, port] {
    return Addresses(httpAddrGetList(host.constData(), AF_UNSPEC, QByteArray::number(port).constData()));
  });
  std::future<Addresses> found = task.get_future();
  std::thread(std::move(task)).detach();
  const auto end = Clock::now() + m_limit;
  while (found.wait_for(std::min(look, m_limit)) != std::future_status::ready) {
    if (m_watchdog->isInterrupted() || Clock::now() >= end)
      return Outcome::failed(Faults::tr("looking up the print server %1 took too long").arg(m_name));
  }
  m_addresses = found.get();
  return m_addresses ? Outcome::done()
                     : Outcome::failed(Faults::tr("there is no print server named %1").arg(m_name));
}

Outcome HttpConnection::open(std::chrono::milliseconds limit, std::shared_ptr<Watchdog> watchdog,
                             std::unique_ptr<HttpConnection>* connection) {
  connection->reset();
  std::unique_ptr<HttpConnection> made(new HttpConnection(limit, std::move(watchdog)));
  const QByteArray host = cupsServer();
  const int port = ippPort();
  made->m_name = QString::fromUtf8(host);
  if (!host.startsWith('/')) made->m_name += QStringLiteral(":%1").arg(port);
  if (Outcome found = made->findAddresses(host, port); !found) return found;
  made->m_http.reset(httpConnect2(host.constData(), port, made->m_addresses.get(), AF_UNSPEC,
                                  cupsEncryption(), 1, 0, nullptr));
  if (!made->m_http) return Outcome::failed(QStringLiteral("not enough memory for a connection"));
  httpSetTimeout(made->m_http.get(), std::chrono::duration<double>(limit).count(), giveUp, made.get());
  if (Outcome connected = made->reconnect(); !connected) return connected;
  *connection = std::move(made);
  return Outcome::done();
}

Outcome HttpConnection::reconnect() {
  http_t* http = m_http.get();
  letGo(http);
  m_isSilent = false;
  m_isUsable = false;
  m_waitBegan = Clock::now();
  const Watch watch(*m_watchdog, http, m_addresses.get(), m_limit * waitsOfConnect);
  if (httpReconnect2(http, static_cast<int>(m_limit.count()), m_watchdog->cancelFlag()) == 0 &&
      !watch.hasCut()) {
    m_isUsable = true;
    return Outcome::done();
  }
  m_status = HTTP_STATUS_ERROR;
  if (m_isSilent || watch.hasCut()) return noAnswer(watch);
  if (cupsEncryption() == HTTP_ENCRYPTION_REQUIRED || cupsEncryption() == HTTP_ENCRYPTION_ALWAYS)
    return Outcome::failed(Faults::tr("cannot connect to the print server %1 with encryption").arg(m_name));
  return Outcome::failed(Faults::tr("cannot connect to the print server %1. Is it running?").arg(m_name));
}

Outcome HttpConnection::exchange(const HttpRequest& request, QByteArray* reply) {
  for (int tries = 1;; ++tries) {
    // If something can be read before a request, it is the end of the connection.
    if (m_isUsable && httpCheck(m_http.get()) != 0) m_isUsable = false;
    if (!m_isUsable) {
      if (Outcome connected = reconnect(); !connected) return connected;
    }
    if (Outcome answered = attempt(request, reply); !answered) return answered;
    if (m_status == HTTP_STATUS_OK) return Outcome::done();
    if (tries == mostAttempts || !canTryAgain(request)) return outcomeOfStatus();
  }
}

// Leaves the connection usable only if the whole reply was read.
Outcome HttpConnection::attempt(const HttpRequest& request, QByteArray* reply) {
  m_isUsable = false;
  m_isSilent = false;
  m_hasBegunDocument = false;
  m_status = HTTP_STATUS_ERROR;
  m_waitBegan = Clock::now();
  Watch watch(*m_watchdog, m_http.get(), m_addresses.get(), m_limit * waitsOfReply);
  if (Outcome sent = send(request, watch); !sent) return sent;
  if (m_status == HTTP_STATUS_CONTINUE) {
    watch.restart(m_limit);
    m_waitBegan = Clock::now();
    do
      m_status = nextStatus(m_http.get());
    while (m_status == HTTP_STATUS_CONTINUE);
  }
  // libcups takes what arrived before the cut for the whole head, and below for the whole reply.
  if (m_isSilent || watch.hasCut()) m_status = HTTP_STATUS_ERROR;
  if (m_status == HTTP_STATUS_ERROR) return noAnswer(watch);
  if (m_status != HTTP_STATUS_OK) return Outcome::done();
  watch.restart(m_limit * waitsOfReply);
  Outcome received = receive(request.longestReply, reply);
  if (m_isSilent || watch.hasCut()) return noAnswer(watch);
  if (!received) return received;
  m_isUsable = qstricmp(httpGetField(m_http.get(), HTTP_FIELD_CONNECTION), "close") != 0;
  return Outcome::done();
}

// Afterwards the status is HTTP_STATUS_CONTINUE, or an early answer that arrived before the whole request was
// sent.
Outcome HttpConnection::send(const HttpRequest& request, Watch& watch) {
  http_t* http = m_http.get();
  httpClearFields(http);
  // Credentials from an earlier attempt on this connection, if any.
  if (const char* user = httpGetAuthString(http); user != nullptr)
    httpSetField(http, HTTP_FIELD_AUTHORIZATION, user);
  if (request.body.isEmpty()) {
    if (httpGet(http, request.resource.constData()) != 0) return noAnswer(watch);
  } else {
    httpSetField(http, HTTP_FIELD_CONTENT_TYPE, "application/ipp");
    httpSetLength(http, request.document ? 0 : static_cast<std::size_t>(request.body.size()));
    httpSetExpect(http, HTTP_STATUS_CONTINUE);
    if (httpPost(http, request.resource.constData()) != 0) return noAnswer(watch);
    const auto size = static_cast<std::size_t>(request.body.size());
    // A server that asks for a password may answer and close the connection before it reads the body.
    if (httpWrite2(http, request.body.constData(), size) < 0 && (m_isSilent || watch.hasCut()))
      return noAnswer(watch);
  }
  m_status = HTTP_STATUS_CONTINUE;
  return request.document ? sendDocument(request, watch) : Outcome::done();
}

Outcome HttpConnection::sendDocument(const HttpRequest& request, Watch& watch) {
  http_t* http = m_http.get();
  if (httpFlushWrite(http) < 0) return noAnswer(watch);
  watch.restart(m_limit + leave);
  if (httpWait(http, static_cast<int>(leave.count())) != 0) m_status = nextStatus(http);
  if (m_status != HTTP_STATUS_CONTINUE) return Outcome::done();
  watch.restart({});
  m_hasBegunDocument = true;
  Outcome sent =
      request.document([&](const char* bytes, qsizetype count) { return sendPart(bytes, count, watch); });
  // The server may have answered already.
  if (m_status != HTTP_STATUS_CONTINUE)
    return m_status == HTTP_STATUS_ERROR ? noAnswer(watch) : Outcome::done();
  if (!sent) m_status = HTTP_STATUS_ERROR;
  if (sent && httpWrite2(http, "", 0) < 0) return noAnswer(watch);
  return sent;
}

Outcome HttpConnection::sendPart(const char* bytes, qsizetype count, Watch& watch) {
  http_t* http = m_http.get();
  m_waitBegan = Clock::now();
  if (httpCheck(http) != 0) {
    watch.restart(m_limit);
    m_status = nextStatus(http);
    watch.restart({});
    if (m_status != HTTP_STATUS_CONTINUE)
      return Outcome::failed(Faults::tr("the print server %1 stopped reading the document").arg(m_name));
  }
  if (httpWrite2(http, bytes, static_cast<std::size_t>(count)) >= 0) return Outcome::done();
  m_status = HTTP_STATUS_ERROR;
  return noAnswer(watch);
}

Outcome HttpConnection::receive(qsizetype longest, QByteArray* reply) {
  const auto hasField = [&](http_field_t field) { return *httpGetField(m_http.get(), field) != '\0'; };
  Outcome brokenOff = Outcome::failed(Faults::tr("the print server's answer is incomplete"));
  reply->clear();
  QByteArray block(blockSize, Qt::Uninitialized);
  for (;;) {
    m_waitBegan = Clock::now();
    const ssize_t count = httpRead2(m_http.get(), block.data(), static_cast<std::size_t>(block.size()));
    if (count < 0) return brokenOff;
    if (count == 0) break;
    reply->append(block.constData(), count);
    if (reply->size() > longest) return Outcome::failed(Faults::tr("the print server's answer is too large"));
  }
  // Without a length the end of the connection ends the reply.
  const bool hasLength = hasField(HTTP_FIELD_CONTENT_LENGTH) || hasField(HTTP_FIELD_TRANSFER_ENCODING);
  const bool isWhole = !hasLength || httpGetState(m_http.get()) == HTTP_STATE_WAITING;
  return isWhole ? Outcome::done() : brokenOff;
}

// Whether another attempt may succeed, now with credentials or with encryption.
bool HttpConnection::canTryAgain(const HttpRequest& request) {
  http_t* http = m_http.get();
  if (m_status == HTTP_STATUS_UPGRADE_REQUIRED && httpIsEncrypted(http) == 0) {
    const Watch watch(*m_watchdog, http, m_addresses.get(), m_limit * waitsOfConnect);
    letGo(http);
    httpReconnect2(http, static_cast<int>(m_limit.count()), m_watchdog->cancelFlag());
    m_isUsable = httpEncryption(http, HTTP_ENCRYPTION_REQUIRED) == 0;
    return m_isUsable;
  }
  if (m_hasBegunDocument) return false;
  const char* method = request.body.isEmpty() ? "GET" : "POST";
  return m_status == HTTP_STATUS_UNAUTHORIZED && request.mayAskPassword &&
         cupsDoAuthentication(http, method, request.resource.constData()) == 0;
}

Outcome HttpConnection::noAnswer(const Watch& watch) const {
  if (m_watchdog->isInterrupted()) return Outcome::failed(QStringLiteral("interrupted"));
  if (m_isSilent || watch.hasCut()) {
    const QString seconds = QString::number(std::chrono::duration<double>(m_limit).count());
    return Outcome::failed(Faults::tr("the print server %1 did not answer within %2 s").arg(m_name, seconds));
  }
  return Outcome::failed(Faults::tr("the print server %1 closed the connection").arg(m_name));
}

Outcome HttpConnection::outcomeOfStatus() const {
  if (isRedirect(m_status)) {
    return Outcome::failed(
        Faults::tr(
            "the print server %1 redirected to another address (HTTP status %2); redirects are not followed")
            .arg(m_name)
            .arg(m_status));
  }
  // libcups has a status of its own for a password that was not given.
  const bool isPassword =
      m_status == HTTP_STATUS_UNAUTHORIZED || m_status >= HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED;
  if (isPassword) return Outcome::failed(Faults::tr("the print server %1 asks for a password").arg(m_name));
  return Outcome::failed(Faults::tr("the print server %1 answered: %2 (HTTP status %3)")
                             .arg(m_name, QString::fromUtf8(httpStatus(m_status)))
                             .arg(m_status));
}

}  // namespace kesto
