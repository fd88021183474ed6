#include "demo/control.h"

#include <QtCore/QJsonDocument>
#include <QtNetwork/QLocalSocket>

namespace kesto {
namespace {

constexpr int timeOutMs = 10'000;

QByteArray lineOf(const QJsonObject& object) {
  return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QJsonObject objectOf(const QByteArray& line) {
  return QJsonDocument::fromJson(line).object();
}

}  // namespace

QString wordOf(Release release) {
  switch (release) {
    case Release::Printed:
      return QStringLiteral("printed");
    case Release::Refused:
      return QStringLiteral("wrong pass code");
    case Release::NotHeld:
      return QStringLiteral("not held");
    case Release::NoSuchJob:
      return QStringLiteral("no such job");
    case Release::Failed:
      break;
  }
  return QStringLiteral("failed");
}

ControlServer::ControlServer(JobStore& store, SetFault setFault)
    : m_store(store), m_setFault(std::move(setFault)) {
  m_server.setSocketOptions(QLocalServer::UserAccessOption);
  connect(&m_server, &QLocalServer::newConnection, this, &ControlServer::connectionArrived);
}

Outcome ControlServer::listen(const QString& path) {
  return m_server.listen(path) ? Outcome::done()
                               : Outcome::failed(path + QStringLiteral(": ") + m_server.errorString());
}

void ControlServer::connectionArrived() {
  while (QLocalSocket* socket = m_server.nextPendingConnection()) {
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QIODevice::readyRead, this, [this, socket] {
      if (!socket->canReadLine()) return;
      socket->write(lineOf(answer(objectOf(socket->readLine()))));
      socket->disconnectFromServer();
    });
  }
}

QJsonObject ControlServer::answer(const QJsonObject& request) {
  if (request.value(QStringLiteral("do")) == QStringLiteral("release")) {
    const Release release = m_store.release(request.value(QStringLiteral("job")).toInt(),
                                            request.value(QStringLiteral("passCode")).toString());
    return {{QStringLiteral("release"), wordOf(release)}};
  }
  if (request.value(QStringLiteral("do")) == QStringLiteral("fault")) {
    const Outcome set = m_setFault(printerFaultNamed(request.value(QStringLiteral("fault")).toString()));
    return set ? QJsonObject() : QJsonObject{{QStringLiteral("error"), set.reason()}};
  }
  return {{QStringLiteral("jobs"), m_store.list()}};
}

Outcome askPrinter(const QString& path, const QJsonObject& request, QJsonObject* answer) {
  QLocalSocket socket;
  socket.connectToServer(path);
  if (!socket.waitForConnected(timeOutMs)) {
    return Outcome::failed(QStringLiteral("no demo printer is running at ") + path);
  }
  socket.write(lineOf(request));
  while (!socket.canReadLine()) {
    if (!socket.waitForReadyRead(timeOutMs))
      return Outcome::failed(QStringLiteral("the demo printer does not answer"));
  }
  *answer = objectOf(socket.readLine());
  return Outcome::done();
}

}  // namespace kesto
