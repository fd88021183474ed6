// The printer itself: takes jobs on a socket of its owner's.
//
// What arrives is what the demo filter writes, and the backend's last line. Each document begins with lines
// "@KESTO name=value", in which the value is percent-encoded, up to an empty line. Then the document comes in
// pieces: the piece's size in decimal on a line, 65536 at most, and as many bytes; a size of 0 ends the
// document. The next document may follow. After the last one comes the line "@END", which the printer answers
// with the line "taken" when it has every document; otherwise it says "refused: REASON" as soon as it knows,
// and ends the connection.
#pragma once

#include <QtCore/QFile>
#include <QtCore/QObject>
#include <QtNetwork/QLocalServer>
#include <QtNetwork/QLocalSocket>

#include "demo/job_store.h"

namespace kesto {

/// Listens, and hands each whole document to the store. A document that breaks off, or has no lines in front,
/// is thrown away, and its job is not taken.
class RawPrinter : public QObject {
  Q_OBJECT

 public:
  /// `store` outlives the printer.
  explicit RawPrinter(JobStore& store);

  /// Listens at `path`, where nobody but the owner may connect.
  Outcome listen(const QString& path);

 private:
  void connectionArrived();

  JobStore& m_store;
  QLocalServer m_server;
};

/// One connection to the printer. Owned by its socket, which goes when the connection has ended.
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
