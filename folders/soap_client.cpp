#include "folders/soap_client.h"

#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkProxy>
#include <QtNetwork/QNetworkReply>

#include "platform/platform.h"
#include "platform/private_file.h"

namespace kesto {
namespace {

constexpr std::chrono::milliseconds slice{1000};
constexpr std::chrono::milliseconds requestTimeOut{60000};

QNetworkRequest requestTo(const QUrl& url, qsizetype bodySize) {
  QNetworkRequest request(url);
  request.setRawHeader("SOAPAction", "\"SoapActionDummy\"");
  request.setRawHeader("Content-Type", "application/soap; charset=\"utf-8\"");
  request.setRawHeader("Content-Length", QByteArray::number(bodySize));
  // The answer comes as it is: no compression to unpack, nothing of a cache, no other host.
  request.setRawHeader("Accept-Encoding", "identity");
  request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
  request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
  request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
  request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
  request.setTransferTimeout(static_cast<int>(requestTimeOut.count()));
  return request;
}

// Whether the whole answer came, be it an HTTP error. What breaks the connection or the chunks of the body comes as an
// error of the transport (the first hundred) or of the protocol.
bool isAnswered(const QNetworkReply& reply) {
  const QNetworkReply::NetworkError error = reply.error();
  if (error != QNetworkReply::NoError && error <= QNetworkReply::UnknownNetworkError) return false;
  if (error == QNetworkReply::ProtocolUnknownError || error == QNetworkReply::ProtocolFailure) return false;
  return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
}

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

KestoPrintPdeVq250nJCSOAPClient::KestoPrintPdeVq250nJCSOAPClient(QUrl url, Platform& platform, SoapContext* context,
                                                                 std::chrono::milliseconds limit)
    : m_url(std::move(url)), m_platform(platform), m_context(context), m_limit(limit) {}

KestoPrintPdeVq250nJCSOAPClient::~KestoPrintPdeVq250nJCSOAPClient() = default;

void KestoPrintPdeVq250nJCSOAPClient::sendMessage(const QByteArray& body) {
  using Client = KestoPrintPdeVq250nJCSOAPClient;
  QNetworkAccessManager manager;
  manager.setProxy(QNetworkProxy::NoProxy);
  m_finished = Finished::Running;
  m_receivedData.clear();
  const std::unique_ptr<QNetworkReply> reply(manager.post(requestTo(m_url, body.size()), body));
  m_reply = reply.get();
  connect(m_reply, &QNetworkReply::metaDataChanged, this, &Client::connectionDidReceiveResponse);
  connect(m_reply, &QIODevice::readyRead, this, &Client::connectionDidReceiveData);
  connect(m_reply, &QNetworkReply::finished, this, &Client::replyFinished);
  QTimer timer;
  timer.setSingleShot(true);
  connect(&timer, &QTimer::timeout, this, &Client::firedByTimer);
  timer.start(m_limit);

  waitUntilFinished();

  timer.stop();
  m_reply->disconnect(this);
  if (m_finished != Finished::Answered) m_reply->abort();
  m_reply = nullptr;
  if (m_finished == Finished::Answered) {
    // Without the file there is nothing new to read; that is not reported.
    (void)writePrivateFile(answerFilePath(m_platform), m_receivedData);
  } else if (m_finished != Finished::Cancelled) {
    m_context->recieveEndCallback();
  }
  m_receivedData.clear();
}

void KestoPrintPdeVq250nJCSOAPClient::waitUntilFinished() {
  while (m_finished == Finished::Running) {
    QEventLoop loop;
    connect(this, &KestoPrintPdeVq250nJCSOAPClient::finishedChanged, &loop, &QEventLoop::quit);
    QTimer::singleShot(slice, &loop, &QEventLoop::quit);
    loop.exec();
  }
}

void KestoPrintPdeVq250nJCSOAPClient::cancel() { finish(Finished::Cancelled); }

// The first event that ends the exchange decides.
void KestoPrintPdeVq250nJCSOAPClient::finish(Finished state) {
  if (m_finished != Finished::Running) return;
  m_finished = state;
  Q_EMIT finishedChanged();
}

// A later response, if one comes, starts the body afresh.
void KestoPrintPdeVq250nJCSOAPClient::connectionDidReceiveResponse() { m_receivedData.clear(); }

void KestoPrintPdeVq250nJCSOAPClient::connectionDidReceiveData() {
  m_receivedData += m_reply->readAll();
  if (m_receivedData.size() > largestAnswer) connectionDidFailWithError();
}

void KestoPrintPdeVq250nJCSOAPClient::connectionDidFinishLoading() { finish(Finished::Answered); }

void KestoPrintPdeVq250nJCSOAPClient::connectionDidFailWithError() { finish(Finished::Failed); }

void KestoPrintPdeVq250nJCSOAPClient::firedByTimer() { finish(Finished::TimedOut); }

void KestoPrintPdeVq250nJCSOAPClient::replyFinished() {
  connectionDidReceiveData();
  if (isAnswered(*m_reply)) {
    connectionDidFinishLoading();
  } else {
    connectionDidFailWithError();
  }
}

}  // namespace kesto
