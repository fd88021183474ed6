// The printer itself, which takes jobs on its owner's socket.
//
// It receives what the demo filter writes, and a last line from the backend. Each document begins with lines
// "@KESTO name=value", with percent-encoded values, and an empty line. Then the document follows in pieces: a
// line with the piece's size in decimal, at most 65536, and that many bytes. A size of 0 ends the document.
// Another document may follow. After the last one comes the line "@END". The printer answers "taken" when it
// has every document. Otherwise it answers "refused: REASON" as soon as it knows, and ends the connection.
#pragma once

#include <QtCore/QFile>
#include <QtCore/QObject>
#include <QtNetwork/QLocalServer>
#include <QtNetwork/QLocalSocket>

#include "demo/job_store.h"

namespace kesto {

/// Listens, and hands each complete document to the store. A document that breaks off or has no lines in
/// front is deleted, and its job is refused.
class RawPrinter : public QObject {
  Q_OBJECT

 public:
  /// `store` outlives the printer.
  explicit RawPrinter(JobStore& store);

  /// Listens at `path`, where only the owner may connect.
  Outcome listen(const QString& path);

 private:
  void connectionArrived();

  JobStore& m_store;
  QLocalServer m_server;
};

/// One connection to the printer. Owned by its socket, which is deleted when the connection has ended.
class PrinterConnection : public QObject {
  Q_OBJECT

 public:
  PrinterConnection(QLocalSocket* socket, JobStore& store);
  ~PrinterConnection() override;

 private:
  void bytesArrived();
  Outcome takeLine(const QByteArray& line);
  Outcome takeTicketLine(const QByteArray& line);
  Outcome takePieceSize(const QByteArray& line);
  Outcome takePiece();
  Outcome endDocument();
  Outcome endJob();
  void refuse(const QString& reason);

  QLocalSocket* m_socket;
  JobStore& m_store;
  JobTicket m_ticket;
  int m_ticketLines = 0;
  int m_documents = 0;  // handed to the store
  QFile m_document;     // open while a document arrives
  qint64 m_pieceLeft = 0;
};

}  // namespace kesto
