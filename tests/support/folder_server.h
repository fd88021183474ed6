// The printer's end of the folder exchange, in the test's own thread, where the exchange runs the event loop.
#pragma once

#include <sys/socket.h>

#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>
#include <functional>

#include "tests/support/printing.h"

namespace kesto::test {

/// An answer as it is sent.
inline QByteArray httpAnswer(const QByteArray& body, const QByteArray& status = "200 OK",
                             const QByteArray& headers = {}) {
  return "HTTP/1.1 " + status +
         "\r\nConnection: close\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n" + headers +
         "\r\n" + body;
}

/// An envelope around the children of the response.
inline QByteArray envelope(const QByteArray& response) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<s:Envelope "
         "xmlns:s=\"http://schemas.xmlsoap.org/soap/envelope/\">"
         "\n <s:Body>\n  <r>" +
         response + "</r>\n </s:Body>\n</s:Envelope>\n";
}

/// A good answer with the folders "A|B"; a name that ends in "*" is protected.
inline QByteArray folders(const Text& names) {
  QByteArray files;
  for (QByteArray name : names.toUtf8().split('|')) {
    const bool isProtected = name.endsWith('*');
    if (isProtected) name.chop(1);
    files += "<file><name>" + name + "</name><password>" + (isProtected ? "true" : "false") +
             "</password><dir>true</dir></file>";
  }
  return envelope("<result-code>ok</result-code><files>" + files + "</files>");
}

/// Serves one answer per connection, on a port that the system chooses.
class FolderServer : public QTcpServer {
 public:
  enum class End { Close, Reset, StayOpen };

  FolderServer() {
    listen(QHostAddress::LocalHost);
    connect(this, &QTcpServer::newConnection, this, [this] { serve(nextPendingConnection()); });
  }

  QString address() const { return QStringLiteral("127.0.0.1:%1").arg(serverPort()); }
  QString url() const { return QStringLiteral("http://") + address() + QStringLiteral("/kesto-mfp-srv"); }

  QByteArray answer = httpAnswer(folders("Art|Maps*"));
  End end = End::Close;
  std::function<void()> onRequest;  ///< Called when a request is complete, before the answer.
  QList<QByteArray> requests;       ///< Heads and bodies, as received.

 private:
  void serve(QTcpSocket* socket) {
    socket->setParent(this);
    connect(socket, &QTcpSocket::readyRead, socket, [this, socket, received = QByteArray()]() mutable {
      received += socket->readAll();
      const qsizetype head = received.indexOf("\r\n\r\n");
      const qsizetype length = received.indexOf("Content-Length: ");
      if (head < 0 || length < 0) return;
      const qsizetype body =
          received.mid(length + 16, received.indexOf('\r', length) - length - 16).toLongLong();
      if (received.size() < head + 4 + body) return;
      requests.append(std::exchange(received, {}));
      if (onRequest) onRequest();
      respond(socket);
    });
  }

  void respond(QTcpSocket* socket) {
    socket->write(answer);
    if (end == End::Close) socket->disconnectFromHost();
    if (end == End::Reset) {
      socket->flush();
      const linger atOnce{.l_onoff = 1,
                          .l_linger = 0};  // otherwise closing would end the connection in order
      EXPECT_EQ(::setsockopt(static_cast<int>(socket->socketDescriptor()), SOL_SOCKET, SO_LINGER, &atOnce,
                             sizeof atOnce),
                0);
      socket->abort();
    }
  }
};

}  // namespace kesto::test
