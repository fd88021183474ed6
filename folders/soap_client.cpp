#include "folders/soap_client.h"

#include <fcntl.h>
#include <poll.h>

#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtNetwork/QNetworkProxy>
#include <QtNetwork/QTcpSocket>

#include "folders/host_lookup.h"
#include "panel/trace.h"
#include "platform/descriptor.h"
#include "platform/platform.h"
#include "platform/private_file.h"

namespace kesto {
namespace {

constexpr std::chrono::milliseconds slice{1000};

// A second descriptor of a connection. Qt reports a reset as an orderly end and has closed its own descriptor
// by then; through this one the system still shows which of the two it was.
class SecondDescriptor {
 public:
  void take(const QTcpSocket& socket) {
    m_descriptor.reset(::fcntl(static_cast<int>(socket.socketDescriptor()), F_DUPFD_CLOEXEC, 0));
  }

  bool isTaken() const { return bool(m_descriptor); }

  // After an orderly end by the peer, this side can still send. True also when it cannot be known.
  bool wasReset() const {
    pollfd state{.fd = m_descriptor.get(), .events = 0, .revents = 0};
    return !m_descriptor || (::poll(&state, 1, 0) > 0 && (state.revents & (POLLHUP | POLLERR)) != 0);
  }

 private:
  Descriptor m_descriptor;
};

// Connects to the first address of a host that accepts the connection.
class Connector : public QObject {
 public:
  explicit Connector(QTcpSocket& socket) : m_socket(socket) {}

  // False when nothing can be tried. `onNoAddress` is called when the name is unknown.
  template <class OnNoAddress>
  bool start(const Endpoint& url, OnNoAddress onNoAddress) {
    m_port = url.port;
    QHostAddress numeric;
    if (numeric.setAddress(url.host)) {
      m_socket.connectToHost(numeric, m_port);
      return true;
    }
    connect(&m_lookup, &HostLookup::found, this, [this, onNoAddress](const QList<QHostAddress>& addresses) {
      m_addresses = addresses;
      if (!goOn()) onNoAddress();
    });
    return m_lookup.start(url.host);
  }

  // Tries the next address, when the socket is done with the last one; false when there is none.
  bool goOn() {
    if (m_addresses.isEmpty()) return false;
    QTimer::singleShot(
        0, this, [this, address = m_addresses.takeFirst()] { m_socket.connectToHost(address, m_port); });
    return true;
  }

 private:
  QTcpSocket& m_socket;
  quint16 m_port = 0;
  HostLookup m_lookup;
  QList<QHostAddress> m_addresses;  // still to be tried
};

FolderFault faultOf(QAbstractSocket::SocketError error) {
  switch (error) {
    case QAbstractSocket::HostNotFoundError:
      return FolderFault::NotFound;
    case QAbstractSocket::ConnectionRefusedError:
      return FolderFault::Refused;
    case QAbstractSocket::RemoteHostClosedError:
      return FolderFault::Closed;
    default:
      return FolderFault::Other;
  }
}

}  // namespace

QString answerFilePath(Platform& platform) {
  const QString directory = platform.temporaryDirectory();
  return (directory.isNull() ? QStringLiteral("/tmp/") : directory) + QStringLiteral("vwxyz.xml");
}

std::unique_ptr<KestoPrintPdeVq250nJCSOAPClient> KestoPrintPdeVq250nJCSOAPClient::initWithServerName(
    const QString& serverName, Platform& platform, SoapContext* context, std::chrono::milliseconds limit) {
  std::optional<Endpoint> url = endpointOf(serverName);
  if (!url) return nullptr;
  return std::unique_ptr<KestoPrintPdeVq250nJCSOAPClient>(
      new KestoPrintPdeVq250nJCSOAPClient(std::move(*url), platform, context, limit));
}

KestoPrintPdeVq250nJCSOAPClient::KestoPrintPdeVq250nJCSOAPClient(Endpoint url, Platform& platform,
                                                                 SoapContext* context,
                                                                 std::chrono::milliseconds limit)
    : m_url(std::move(url)), m_platform(platform), m_context(context), m_limit(limit) {}

// The values keep their quotation marks, because the printer's service compares them as they are.
QByteArray KestoPrintPdeVq250nJCSOAPClient::requestFor(const QByteArray& body) const {
  return "POST " + m_url.target + " HTTP/1.1\r\n" + "Host: " + m_url.hostField + "\r\n" +
         "SOAPAction: \"SoapActionDummy\"\r\n"
         "Content-Type: application/soap; charset=\"utf-8\"\r\n"
         "Content-Length: " +
         QByteArray::number(body.size()) + "\r\n" + "Connection: close\r\n\r\n" + body;
}

void KestoPrintPdeVq250nJCSOAPClient::sendMessage(const QByteArray& body) {
  m_finished = Finished::Running;
  m_fault = FolderFault::None;
  m_responseData = HttpResponse(answer_limits::bytes);
  QTcpSocket socket;
  socket.setProxy(QNetworkProxy::NoProxy);
  SecondDescriptor second;
  const QByteArray request = requestFor(body);
  connect(&socket, &QTcpSocket::connected, this, [&] {
    second.take(socket);
    socket.write(request);
  });
  connect(&socket, &QTcpSocket::readyRead, this, [&] { connectionDidReceiveData(socket); });
  Connector connector(socket);
  connect(&socket, &QTcpSocket::errorOccurred, this, [&] {
    if (second.isTaken() || !connector.goOn()) connectionDidEnd(socket, second.wasReset());
  });
  if (!connector.start(m_url, [this] { connectionDidFailWithError(FolderFault::NotFound); }))
    connectionFail();
  QTimer timer;
  timer.setSingleShot(true);
  timer.setTimerType(Qt::PreciseTimer);  // other timers may fire half a second early
  connect(&timer, &QTimer::timeout, this, &KestoPrintPdeVq250nJCSOAPClient::firedByTimer);
  timer.start(m_limit);

  waitUntilFinished();

  timer.stop();
  socket.disconnect(this);
  socket.abort();
  // Checked only now, because the waiting panel may have been destroyed in the same pass of the event loop in
  // which the exchange ended.
  if (m_finished == Finished::Cancelled) return;
  if (m_finished == Finished::Answered) {
    // Without the file there is nothing new to read, so the context is not notified.
    m_isKept = bool(writePrivateFile(answerFilePath(m_platform), m_responseData.receivedData()));
  } else {
    m_context->recieveEndCallback();
  }
}

void KestoPrintPdeVq250nJCSOAPClient::waitUntilFinished() {
  while (m_finished == Finished::Running) {
    QEventLoop loop;
    connect(this, &KestoPrintPdeVq250nJCSOAPClient::finishedChanged, &loop, &QEventLoop::quit);
    QTimer::singleShot(slice, &loop, &QEventLoop::quit);
    if (loop.exec() < 0) cancel();  // the application ends
  }
}

void KestoPrintPdeVq250nJCSOAPClient::cancel() {
  finish(Finished::Cancelled);
}

// The first event that ends the exchange decides; cancelling overrides it.
void KestoPrintPdeVq250nJCSOAPClient::finish(Finished state) {
  if (m_finished != Finished::Running && state != Finished::Cancelled) return;
  m_finished = state;
  Q_EMIT finishedChanged();
}

// The body counts, whatever the status of the response.
void KestoPrintPdeVq250nJCSOAPClient::connectionDidReceiveResponse() {
  _PDELog(m_context->controller(), "HTTP status %@", QString::number(m_responseData.status()));
}

void KestoPrintPdeVq250nJCSOAPClient::connectionDidReceiveData(QTcpSocket& socket) {
  if (m_finished != Finished::Running) return;
  const bool hadResponse = m_responseData.status() != 0;
  m_responseData.take(socket.readAll());
  if (!hadResponse && m_responseData.status() != 0) connectionDidReceiveResponse();
  if (m_responseData.isWhole()) connectionDidFinishLoading();
  if (m_responseData.isBad()) connectionDidFailWithError(FolderFault::Unreadable);
}

// The end of the connection completes an answer without a length. Any other error, including a reset, breaks
// it.
void KestoPrintPdeVq250nJCSOAPClient::connectionDidEnd(QTcpSocket& socket, bool wasReset) {
  connectionDidReceiveData(socket);
  if (m_finished != Finished::Running) return;
  if (socket.error() == QAbstractSocket::SocketResourceError) return connectionFail();
  if (socket.error() == QAbstractSocket::RemoteHostClosedError && !wasReset) m_responseData.end();
  if (m_responseData.isWhole()) {
    connectionDidFinishLoading();
  } else {
    connectionDidFailWithError(faultOf(socket.error()));
  }
}

// No connection could be made at all; nobody is notified.
void KestoPrintPdeVq250nJCSOAPClient::connectionFail() {
  _PDELog(m_context->controller(), "Connection fail");
  cancel();
}

void KestoPrintPdeVq250nJCSOAPClient::connectionDidFinishLoading() {
  finish(Finished::Answered);
}

void KestoPrintPdeVq250nJCSOAPClient::connectionDidFailWithError(FolderFault fault) {
  if (m_finished == Finished::Running) m_fault = fault;
  finish(Finished::Failed);
}

void KestoPrintPdeVq250nJCSOAPClient::firedByTimer() {
  if (m_finished == Finished::Running) m_fault = FolderFault::TimedOut;
  finish(Finished::TimedOut);
}

}  // namespace kesto
