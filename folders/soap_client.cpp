#include "folders/soap_client.h"

#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtNetwork/QNetworkProxy>
#include <QtNetwork/QTcpSocket>

#include "panel/trace.h"
#include "platform/platform.h"
#include "platform/private_file.h"

namespace kesto {
namespace {

constexpr std::chrono::milliseconds slice{1000};
constexpr quint16 httpPort = 80;

}  // namespace

QString answerFilePath(Platform& platform) {
  const QString directory = platform.temporaryDirectory();
  return (directory.isNull() ? QStringLiteral("/tmp/") : directory) + QStringLiteral("vwxyz.xml");
}

std::unique_ptr<KestoPrintPdeVq250nJCSOAPClient> KestoPrintPdeVq250nJCSOAPClient::initWithServerName(
    const QString& serverName, Platform& platform, SoapContext* context, std::chrono::milliseconds limit) {
  const QUrl url(serverName, QUrl::StrictMode);
  if (!url.isValid()) return nullptr;
  return std::unique_ptr<KestoPrintPdeVq250nJCSOAPClient>(
      new KestoPrintPdeVq250nJCSOAPClient(url, platform, context, limit));
}

KestoPrintPdeVq250nJCSOAPClient::KestoPrintPdeVq250nJCSOAPClient(QUrl url, Platform& platform,
                                                                 SoapContext* context,
                                                                 std::chrono::milliseconds limit)
    : m_url(std::move(url)), m_platform(platform), m_context(context), m_limit(limit) {}

// The values keep their quotation marks; the printer's service compares them as they are.
QByteArray KestoPrintPdeVq250nJCSOAPClient::requestFor(const QByteArray& body) const {
  const QUrl::FormattingOptions encoded = QUrl::FullyEncoded;
  QByteArray target =
      m_url.toEncoded(encoded | QUrl::RemoveScheme | QUrl::RemoveAuthority | QUrl::RemoveFragment);
  if (!target.startsWith('/')) target.prepend('/');
  const QByteArray host = m_url.toEncoded(encoded | QUrl::RemoveScheme | QUrl::RemoveUserInfo |
                                          QUrl::RemovePath | QUrl::RemoveQuery | QUrl::RemoveFragment);
  return "POST " + target + " HTTP/1.1\r\n" + "Host: " + host.mid(2) + "\r\n" +
         "SOAPAction: \"SoapActionDummy\"\r\n"
         "Content-Type: application/soap; charset=\"utf-8\"\r\n"
         "Content-Length: " +
         QByteArray::number(body.size()) + "\r\n" + "Connection: close\r\n\r\n" + body;
}

void KestoPrintPdeVq250nJCSOAPClient::sendMessage(const QByteArray& body) {
  m_finished = Finished::Running;
  m_response = HttpResponse(largestAnswer);
  QTcpSocket socket;
  socket.setProxy(QNetworkProxy::NoProxy);
  const QByteArray request = requestFor(body);
  connect(&socket, &QTcpSocket::connected, this, [&] { socket.write(request); });
  connect(&socket, &QTcpSocket::readyRead, this, [&] { connectionDidReceiveData(socket); });
  connect(&socket, &QTcpSocket::errorOccurred, this, [&] { connectionDidEnd(socket); });
  socket.connectToHost(m_url.host(QUrl::FullyEncoded), static_cast<quint16>(m_url.port(httpPort)));
  QTimer timer;
  timer.setSingleShot(true);
  timer.setTimerType(Qt::PreciseTimer);  // any other may come half a second early
  connect(&timer, &QTimer::timeout, this, &KestoPrintPdeVq250nJCSOAPClient::firedByTimer);
  timer.start(m_limit);

  waitUntilFinished();

  timer.stop();
  socket.disconnect(this);
  socket.abort();
  if (m_finished == Finished::Answered) {
    // Without the file there is nothing new to read; that is not reported.
    (void)writePrivateFile(answerFilePath(m_platform), m_response.body());
  } else if (m_finished != Finished::Cancelled) {
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

// The first event that ends the exchange decides.
void KestoPrintPdeVq250nJCSOAPClient::finish(Finished state) {
  if (m_finished != Finished::Running) return;
  m_finished = state;
  Q_EMIT finishedChanged();
}

// Whatever its status, the response counts by its body.
void KestoPrintPdeVq250nJCSOAPClient::connectionDidReceiveResponse() {
  _PDELog(this, "HTTP status %@", QString::number(m_response.status()));
}

void KestoPrintPdeVq250nJCSOAPClient::connectionDidReceiveData(QTcpSocket& socket) {
  const bool hadResponse = m_response.status() != 0;
  m_response.take(socket.readAll());
  if (!hadResponse && m_response.status() != 0) connectionDidReceiveResponse();
  if (m_response.isWhole()) connectionDidFinishLoading();
  if (m_response.isBad()) connectionDidFailWithError();
}

// The end of the connection ends an answer without a length; any other error breaks it.
void KestoPrintPdeVq250nJCSOAPClient::connectionDidEnd(QTcpSocket& socket) {
  connectionDidReceiveData(socket);
  if (socket.error() == QAbstractSocket::RemoteHostClosedError) m_response.end();
  if (m_response.isWhole()) {
    connectionDidFinishLoading();
  } else {
    connectionDidFailWithError();
  }
}

void KestoPrintPdeVq250nJCSOAPClient::connectionDidFinishLoading() {
  finish(Finished::Answered);
}

void KestoPrintPdeVq250nJCSOAPClient::connectionDidFailWithError() {
  finish(Finished::Failed);
}

void KestoPrintPdeVq250nJCSOAPClient::firedByTimer() {
  finish(Finished::TimedOut);
}

}  // namespace kesto
