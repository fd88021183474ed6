#include "demo/folder_service.h"

#include <sys/socket.h>

#include <QtCore/QXmlStreamReader>

#include "demo/log.h"

namespace kesto {
namespace {

constexpr qsizetype largestRequest = qsizetype{64} * 1024;
constexpr std::chrono::seconds requestTimeOut{30};

// The parts of a request that the service reads.
struct Request {
  QByteArray method;
  QByteArray path;
  qsizetype bodyStart = 0;
  qsizetype bodySize = 0;
};

// None until the head is complete; a request without a body has the size 0.
std::optional<Request> headOf(const QByteArray& bytes) {
  const qsizetype end = bytes.indexOf("\r\n\r\n");
  if (end < 0) return std::nullopt;
  QList<QByteArray> lines = bytes.left(end).split('\n');
  const QList<QByteArray> first = lines.takeFirst().split(' ');
  Request request{.method = first.value(0), .path = first.value(1), .bodyStart = end + 4};
  for (const QByteArray& line : lines) {
    const qsizetype colon = line.indexOf(':');
    if (line.left(colon).toLower() == "content-length")
      request.bodySize = line.mid(colon + 1).trimmed().toLongLong();
  }
  return request;
}

// Whether the body asks for the folders: an envelope whose body contains the operation.
bool asksForFolders(const QByteArray& body) {
  QXmlStreamReader xml(body);
  while (!xml.atEnd()) {
    xml.readNext();
    if (xml.isStartElement() && xml.name() == u"list-files") return true;
  }
  return false;
}

// The answer's head; without a size the end of the connection ends the body.
QByteArray headOfAnswer(const char* status, std::optional<qsizetype> bodySize, const char* header) {
  QByteArray head = QByteArray("HTTP/1.1 ") + status + "\r\n" + header;
  if (bodySize) head += "Content-Length: " + QByteArray::number(*bodySize) + "\r\n";
  return head + "Content-Type: text/xml; charset=\"utf-8\"\r\nConnection: close\r\n\r\n";
}

}  // namespace

FolderService::FolderService(DemoFolders folders, const Misbehaviour& behaviour)
    : m_folders(std::move(folders)), m_behaviour(behaviour) {
  connect(&m_server, &QTcpServer::newConnection, this, &FolderService::connectionArrived);
}

Outcome FolderService::listen(std::optional<quint16> port) {
  if (!port && m_server.listen(QHostAddress::LocalHost, 80)) return Outcome::done();
  if (m_server.listen(QHostAddress::LocalHost, port.value_or(0))) return Outcome::done();
  return Outcome::failed(QStringLiteral("the folder service cannot listen on port %1: %2")
                             .arg(port.value_or(0))
                             .arg(m_server.errorString()));
}

QString FolderService::address() const {
  return QStringLiteral("127.0.0.1:%1").arg(m_server.serverPort());
}

void FolderService::connectionArrived() {
  while (QTcpSocket* socket = m_server.nextPendingConnection()) {
    new FolderConnection(socket, m_folders, m_behaviour);  // owned by the socket
  }
}

FolderConnection::FolderConnection(QTcpSocket* socket, const DemoFolders& folders,
                                   const Misbehaviour& behaviour)
    : QObject(socket), m_socket(socket), m_folders(folders), m_behaviour(behaviour) {
  connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
  if (behaviour.delivery == Delivery::CloseAtOnce) {
    logLine(QStringLiteral("folders: closed a connection at once"));
    socket->abort();
    return;
  }
  connect(socket, &QIODevice::readyRead, this, &FolderConnection::bytesArrived);
  connect(&m_requestTimer, &QTimer::timeout, socket, &QAbstractSocket::abort);
  m_requestTimer.start(requestTimeOut);
}

void FolderConnection::bytesArrived() {
  m_request += m_socket->readAll();
  const bool isTooLong = m_request.size() > largestRequest;
  const std::optional<Request> request = headOf(m_request);
  if (!isTooLong && (!request || m_request.size() - request->bodyStart < request->bodySize)) return;
  disconnect(m_socket, &QIODevice::readyRead, this, nullptr);
  m_requestTimer.stop();
  if (isTooLong) return refuse("413 Content Too Large");
  logLine(QStringLiteral("folders: %1 %2")
              .arg(QString::fromLatin1(request->method), QString::fromLatin1(request->path)));
  if (request->path != "/kesto-mfp-srv") return refuse("404 Not Found");
  if (request->method != "POST") return refuse("405 Method Not Allowed");
  answer(m_request.mid(request->bodyStart, request->bodySize));
}

void FolderConnection::refuse(const char* status) {
  logLine(QStringLiteral("folders: refused: %1").arg(QLatin1String(status)));
  sendWhole(status, "", {});
}

void FolderConnection::answer(const QByteArray& body) {
  if (!asksForFolders(body)) {
    logLine(QStringLiteral("folders: asked for an unknown operation"));
    return sendWhole("200 OK", "", envelopeOf("<result-code>unsupported-operation</result-code>\n"));
  }
  const char* name = m_behaviour.name;
  logLine(name == nullptr ? QStringLiteral("folders: listed %1").arg(m_folders.size())
                          : QStringLiteral("folders: misbehaving: %1").arg(QLatin1String(name)));
  const QByteArray list = m_behaviour.body(m_folders);
  switch (m_behaviour.delivery) {
    case Delivery::Whole:
      return sendWhole(m_behaviour.status, m_behaviour.header, list);
    case Delivery::Endless:
      return sendEndless(list);
    case Delivery::Trickle:
      return sendTrickle(list);
    case Delivery::Reset:
      return sendHalf(list);
    case Delivery::Never:
    case Delivery::CloseAtOnce:
      return;
  }
}

void FolderConnection::sendWhole(const char* status, const char* header, const QByteArray& body) {
  m_socket->write(headOfAnswer(status, body.size(), header) + body);
  m_socket->disconnectFromHost();
}

void FolderConnection::sendEndless(const QByteArray& body) {
  // An endless body is sent without a length.
  m_socket->write(headOfAnswer("200 OK", std::nullopt, "") + body);
  const QByteArray more = elementOf({QStringLiteral("One more"), false}).repeated(1000);
  connect(m_socket, &QIODevice::bytesWritten, this, [this, more] {
    if (m_socket->bytesToWrite() == 0) m_socket->write(more);
  });
}

void FolderConnection::sendTrickle(const QByteArray& body) {
  m_socket->write(headOfAnswer("200 OK", body.size(), ""));
  auto* timer = new QTimer(this);
  connect(timer, &QTimer::timeout, this, [this, timer, rest = body]() mutable {
    m_socket->write(rest.left(1));
    rest.remove(0, 1);
    if (!rest.isEmpty()) return;
    timer->stop();
    m_socket->disconnectFromHost();
  });
  timer->start(std::chrono::seconds(1));
}

void FolderConnection::sendHalf(const QByteArray& body) {
  m_socket->write(headOfAnswer("200 OK", body.size(), "") + body.left(body.size() / 2));
  connect(m_socket, &QIODevice::bytesWritten, this, [this] {
    if (m_socket->bytesToWrite() > 0) return;
    // Closing a connection with a linger time of zero resets it.
    const linger none{.l_onoff = 1, .l_linger = 0};
    ::setsockopt(static_cast<int>(m_socket->socketDescriptor()), SOL_SOCKET, SO_LINGER, &none, sizeof none);
    m_socket->abort();
  });
}

}  // namespace kesto
