// The printer itself, which takes jobs on its owner's socket.
//
// It receives what the demo filter writes, and from the backend a last line and, where the user has given a
// password, a first one, "@PASSWORD " and the password, percent-encoded. Each document begins with lines
// "@KESTO name=value", with percent-encoded values, and an empty line. Then the document follows in pieces: a
// line with the piece's size in decimal, at most 65536, and that many bytes. A size of 0 ends the document.
// Another document may follow. After the last one comes the line "@END". The printer answers "taken" when it
// has every document. Otherwise it answers "refused: REASON" as soon as it knows, and ends the connection.
// While a fault keeps it from printing a document, it does not go on, and writes lines that begin with
// "STATE: " and "INFO: ", which are for the scheduler.
#pragma once

#include <QtCore/QFile>
#include <QtCore/QObject>
#include <QtNetwork/QLocalServer>
#include <QtNetwork/QLocalSocket>

#include "demo/job_store.h"
#include "demo/printer_fault.h"

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

  /// Jobs without this password are refused; empty, as at first, admits all.
  void setPassword(const QByteArray& password) { m_password = password; }
  bool admits(const QByteArray& password) const { return m_password.isEmpty() || password == m_password; }

  /// Nothing is printed while the printer has a fault; null clears it.
  void setFault(const PrinterFault* fault);
  const PrinterFault* fault() const { return m_fault; }

 Q_SIGNALS:
  void faultChanged();

 private:
  void connectionArrived();

  JobStore& m_store;
  QByteArray m_password;
  const PrinterFault* m_fault = nullptr;
  QLocalServer m_server;
};

/// One connection to the printer. Owned by its socket, which is deleted when the connection has ended.
class PrinterConnection : public QObject {
  Q_OBJECT

 public:
  /// `printer` and `store` outlive the connection.
  PrinterConnection(QLocalSocket* socket, const RawPrinter& printer, JobStore& store);
  ~PrinterConnection() override;

 private:
  void bytesArrived();
  Outcome takeLine(const QByteArray& line);
  Outcome takeTicketLine(const QByteArray& line);
  Outcome takePieceSize(const QByteArray& line);
  Outcome takePiece();
  Outcome endDocument();
  Outcome acceptDocument();
  Outcome endJob();
  void takeFault();
  void reportFault();
  void refuse(const QString& reason);

  QLocalSocket* m_socket;
  const RawPrinter& m_printer;
  JobStore& m_store;
  QByteArray m_password;
  JobTicket m_ticket;
  int m_ticketLines = 0;
  int m_documents = 0;    // handed to the store
  QFile m_document;       // open while a document arrives
  bool m_waits = false;   // with a whole document, for the end of a fault
  QByteArray m_reported;  // the reason that the scheduler knows, empty for none
  qint64 m_pieceLeft = 0;
};

}  // namespace kesto
