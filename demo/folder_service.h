// The printer's folder service: answers folder-list requests over HTTP on a port of loopback.
#pragma once

#include <QtCore/QObject>
#include <QtCore/QTimer>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>
#include <optional>

#include "demo/folder_list.h"
#include "demo/misbehaviour.h"
#include "platform/outcome.h"

namespace kesto {

/// Listens and answers every request with its folders, or misbehaves in the chosen way. Each connection
/// carries one request and one answer. Requests and faults are logged.
class FolderService : public QObject {
  Q_OBJECT

 public:
  FolderService(DemoFolders folders, const Misbehaviour& behaviour);

  /// Listens on `port` of 127.0.0.1; 0 means any free port. None means 80, or any free port when 80 is not
  /// available.
  Outcome listen(std::optional<quint16> port);
  /// "127.0.0.1:PORT".
  QString address() const;

 private:
  void connectionArrived();

  DemoFolders m_folders;
  Misbehaviour m_behaviour;
  QTcpServer m_server;
};

/// One connection to the service. Owned by its socket, which is deleted when the connection has ended.
class FolderConnection : public QObject {
  Q_OBJECT

 public:
  FolderConnection(QTcpSocket* socket, const DemoFolders& folders, const Misbehaviour& behaviour);

 private:
  void bytesArrived();
  void answer(const QByteArray& body);
  void refuse(const char* status);
  void sendWhole(const char* status, const char* header, const QByteArray& body);
  void sendEndless(const QByteArray& body);
  void sendTrickle(const QByteArray& body);
  void sendHalf(const QByteArray& body);

  QTcpSocket* m_socket;
  const DemoFolders& m_folders;
  const Misbehaviour& m_behaviour;
  QByteArray m_request;
  QTimer m_requestTimer;
};

}  // namespace kesto
