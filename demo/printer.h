// The printer itself: takes jobs on a raw TCP port of loopback.
//
// What arrives is what the demo filter writes. Each document begins with lines "@KESTO name=value", in which
// the value is percent-encoded, up to an empty line. Then the document comes in pieces: the piece's size in
// decimal on a line, 65536 at most, and as many bytes; a size of 0 ends the document. The next document may
// follow.
#pragma once

#include <QtCore/QFile>
#include <QtCore/QObject>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

#include "demo/job_store.h"

namespace kesto {

/// Listens, and hands each whole document to the store. A document that breaks off, or has no lines in front,
/// is thrown away.
class RawPrinter : public QObject {
  Q_OBJECT

 public:
  /// `store` outlives the printer.
  explicit RawPrinter(JobStore& store);

  /// Listens on a free port of 127.0.0.1.
  Outcome listen();
  quint16 port() const { return m_server.serverPort(); }

 private:
  void connectionArrived();

  JobStore& m_store;
  QTcpServer m_server;
};

/// One connection to the printer. Owned by its socket, which goes when the connection has ended.
class PrinterConnection : public QObject {
  Q_OBJECT

 public:
  PrinterConnection(QTcpSocket* socket, JobStore& store);
  ~PrinterConnection() override;

 private:
  void bytesArrived();
  bool takeLine(const QByteArray& line);
  bool takeTicketLine(const QByteArray& line);
  bool takePieceSize(const QByteArray& line);
  void takePiece();
  void endDocument();
  void giveUp(const QString& reason);

  QTcpSocket* m_socket;
  JobStore& m_store;
  JobTicket m_ticket;
  int m_ticketLines = 0;
  QFile m_document;  // open while a document arrives
  qint64 m_pieceLeft = 0;
};

}  // namespace kesto
