#include "hosts/cups/http_connection.h"

#include <sys/socket.h>

#include <cstring>

#include "hosts/cups/bounds.h"
#include "hosts/cups/faults.h"
#include "hosts/cups/server_addresses.h"
#include "platform/secret.h"

namespace kesto {
namespace {

constexpr qsizetype blockSize = 65536;
// How long a document waits for the server's "100 Continue", which old servers do not send.
constexpr std::chrono::milliseconds leave(1000);

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

// HTTP/1.0 closes the connection after an answer unless it says otherwise, HTTP/1.1 the other way round.
bool staysOpen(http_t* http) {
  const char* connection = httpGetField(http, HTTP_FIELD_CONNECTION);
  return httpGetVersion(http) < HTTP_VERSION_1_1 ? qstricmp(connection, "keep-alive") == 0
                                                 : qstricmp(connection, "close") != 0;
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

HttpConnection::~HttpConnection() {
  if (m_given) wipe(*m_given);
}

Outcome HttpConnection::open(std::chrono::milliseconds limit, std::shared_ptr<Watchdog> watchdog,
                             std::shared_ptr<PasswordKeeper> passwords,
                             std::unique_ptr<HttpConnection>* connection) {
  connection->reset();
  std::unique_ptr<HttpConnection> made(new HttpConnection(limit, std::move(watchdog), std::move(passwords)));
  made->m_host = cupsServer();
  made->m_port = ippPort();
  made->m_name = QString::fromUtf8(made->m_host);
  if (!made->m_host.startsWith('/')) made->m_name += QStringLiteral(":%1").arg(made->m_port);
  if (Outcome found = findAddresses(made->m_host, made->m_port, made->m_name, limit, *made->m_watchdog,
                                    &made->m_addresses);
      !found)
    return found;
  if (Outcome prepared = made->prepare(); !prepared) return prepared;
  if (Outcome connected = made->reconnect(); !connected) return connected;
  *connection = std::move(made);
  return Outcome::done();
}

// Makes a connection that knows no password, and does not connect it yet.
Outcome HttpConnection::prepare() {
  m_http.reset(httpConnect2(m_host.constData(), m_port, m_addresses.get(), AF_UNSPEC, cupsEncryption(), 1, 0,
                            nullptr));
  if (!m_http) return Outcome::failed(QStringLiteral("not enough memory for a connection"));
  httpSetTimeout(m_http.get(), std::chrono::duration<double>(m_limit).count(), giveUp, this);
  m_hasGiven = false;
  m_isUsable = false;
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
  m_refusal = QString();
  for (int tries = 1;; ++tries) {
    // If something can be read before a request, it is the end of the connection.
    if (m_isUsable && httpCheck(m_http.get()) != 0) m_isUsable = false;
    const bool isNew = !m_isUsable;
    if (isNew) {
      if (Outcome connected = reconnect(); !connected) return connected;
    }
    if (request.isSecret) {
      if (Outcome isPrivate = makePrivate(); !isPrivate) return isPrivate;
    }
    Outcome answered = attempt(request, reply);
    // A server may close a connection just when it is used again.
    if (!answered && m_isClosed && !isNew && request.isQuestion) continue;
    if (!answered) return answered;
    if (m_status == HTTP_STATUS_OK) return Outcome::done();
    if (tries == mostAttempts || !canTryAgain(request)) return outcomeOfStatus();
  }
}

// Leaves the connection usable only if the whole reply was read.
Outcome HttpConnection::attempt(const HttpRequest& request, QByteArray* reply) {
  m_isUsable = false;
  m_isSilent = false;
  m_isClosed = false;
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
  m_isUsable = staysOpen(m_http.get());
  return Outcome::done();
}

// Afterwards the status is HTTP_STATUS_CONTINUE, or an early answer that arrived before the whole request was
// sent.
Outcome HttpConnection::send(const HttpRequest& request, Watch& watch) {
  http_t* http = m_http.get();
  httpClearFields(http);
  // Credentials from an earlier attempt on this connection, if any.
  if (const char* user = httpGetAuthString(http); user != nullptr && request.mayAskPassword)
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
  if (m_status == HTTP_STATUS_UPGRADE_REQUIRED && httpIsEncrypted(m_http.get()) == 0) return encrypt();
  return m_status == HTTP_STATUS_UNAUTHORIZED && request.mayAskPassword && !m_hasBegunDocument &&
         authenticate(request);
}

bool HttpConnection::encrypt() {
  http_t* http = m_http.get();
  const Watch watch(*m_watchdog, http, m_addresses.get(), m_limit * waitsOfConnect);
  letGo(http);
  httpReconnect2(http, static_cast<int>(m_limit.count()), m_watchdog->cancelFlag());
  m_isUsable = httpEncryption(http, HTTP_ENCRYPTION_REQUIRED) == 0;
  return m_isUsable;
}

// Nobody on the network can read along.
bool HttpConnection::isPrivate() const {
  return httpIsEncrypted(m_http.get()) != 0 || httpAddrLocalhost(httpGetAddress(m_http.get())) != 0;
}

Outcome HttpConnection::makePrivate() {
  if (isPrivate() || encrypt()) return Outcome::done();
  return Outcome::failed(Faults::tr("cannot connect to the print server %1 with encryption").arg(m_name));
}

// libcups finds the way of authentication, and asks for a password if that is the way. It would send a
// refused password a second time before it asks for another, so it is given a new connection.
bool HttpConnection::authenticate(const HttpRequest& request) {
  if (m_hasGiven) return bool(prepare());
  // This method sends the password itself.
  const QByteArray methods(httpGetField(m_http.get(), HTTP_FIELD_WWW_AUTHENTICATE));
  if (methods.toLower().contains("basic") && !isPrivate()) {
    const Outcome made = makePrivate();
    if (!made) m_refusal = made.reason();
    return bool(made);
  }
  cupsSetPasswordCB2(askPassword, this);
  const char* method = request.body.isEmpty() ? "GET" : "POST";
  const bool isReady = cupsDoAuthentication(m_http.get(), method, request.resource.constData()) == 0;
  cupsSetPasswordCB2(
      [](const char*, http_t*, const char*, const char*, void*) -> const char* { return nullptr; }, nullptr);
  wipe(m_password);
  return isReady;
}

const char* HttpConnection::askPassword(const char* /*prompt*/, http_t* /*http*/, const char* /*method*/,
                                        const char* /*resource*/, void* connection) {
  return static_cast<HttpConnection*>(connection)->findPassword();
}

const char* HttpConnection::findPassword() {
  if (m_passwords == nullptr) return nullptr;
  PasswordQuestion question{.subject = m_name};
  question.proposed.user = QString::fromUtf8(cupsUser());
  Credentials found;
  if (Outcome asked = m_passwords->find(question, m_given, &found); !asked) {
    m_refusal = asked.reason();
    return nullptr;
  }
  cupsSetUser(found.user.toUtf8().constData());
  m_password = found.password.toUtf8();
  if (m_given) wipe(*m_given);
  m_given = std::move(found);
  m_hasGiven = true;
  return m_password.constData();
}

Outcome HttpConnection::noAnswer(const Watch& watch) {
  if (m_watchdog->isInterrupted()) return Outcome::failed(QStringLiteral("interrupted"));
  if (m_isSilent || watch.hasCut()) {
    const QString seconds = QString::number(std::chrono::duration<double>(m_limit).count());
    return Outcome::failed(Faults::tr("the print server %1 did not answer within %2 s").arg(m_name, seconds));
  }
  m_isClosed = true;
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
  if (isPassword && !m_refusal.isNull()) return Outcome::failed(m_refusal);
  if (isPassword) return Outcome::failed(Faults::tr("the print server %1 asks for a password").arg(m_name));
  return Outcome::failed(Faults::tr("the print server %1 answered: %2 (HTTP status %3)")
                             .arg(m_name, QString::fromUtf8(httpStatus(m_status)))
                             .arg(m_status));
}

}  // namespace kesto
