#include "folders/soap_client.h"

#include <QtCore/QEventLoop>
#include <QtCore/QTimer>

#include "panel/trace.h"
#include "platform/platform.h"
#include "platform/private_file.h"

namespace kesto {
namespace {

constexpr std::chrono::milliseconds slice{1000};

FolderFault faultOf(TcpStream::End how) {
  switch (how) {
    case TcpStream::End::Closed:
    case TcpStream::End::Reset:
      return FolderFault::Closed;
    case TcpStream::End::NotFound:
      return FolderFault::NotFound;
    case TcpStream::End::Refused:
      return FolderFault::Refused;
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
  TcpStream stream;
  connect(&stream, &TcpStream::received, this, &KestoPrintPdeVq250nJCSOAPClient::connectionDidReceiveData);
  connect(&stream, &TcpStream::ended, this, &KestoPrintPdeVq250nJCSOAPClient::connectionDidEnd);
  stream.open(m_url.host, m_url.port, requestFor(body));
  QTimer timer;
  timer.setSingleShot(true);
  timer.setTimerType(Qt::PreciseTimer);  // other timers may fire half a second early
  connect(&timer, &QTimer::timeout, this, &KestoPrintPdeVq250nJCSOAPClient::firedByTimer);
  timer.start(m_limit);

  waitUntilFinished();

  timer.stop();
  stream.disconnect(this);
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

void KestoPrintPdeVq250nJCSOAPClient::connectionDidReceiveData(const QByteArray& bytes) {
  if (m_finished != Finished::Running) return;
  const bool hadResponse = m_responseData.status() != 0;
  m_responseData.take(bytes);
  if (!hadResponse && m_responseData.status() != 0) connectionDidReceiveResponse();
  if (m_responseData.isWhole()) connectionDidFinishLoading();
  if (m_responseData.isBad()) connectionDidFailWithError(FolderFault::Unreadable);
}

// The end of the connection completes an answer without a length. Any other error, including a reset, breaks
// it.
void KestoPrintPdeVq250nJCSOAPClient::connectionDidEnd(TcpStream::End how) {
  if (m_finished != Finished::Running) return;
  if (how == TcpStream::End::NoResources) return connectionFail();
  if (how == TcpStream::End::Closed) m_responseData.end();
  if (m_responseData.isWhole()) {
    connectionDidFinishLoading();
  } else {
    connectionDidFailWithError(faultOf(how));
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
