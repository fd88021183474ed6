#include "demo/printer.h"

#include "demo/log.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

constexpr char linePrefix[] = "@KESTO ";
constexpr char passwordPrefix[] = "@PASSWORD ";
constexpr char endOfJob[] = "@END";
constexpr qint64 longestLine = 4096;
constexpr qint64 largestPiece = 65536;
constexpr int mostTicketLines = 200;

Outcome notTheFormat() {
  return Outcome::failed(QStringLiteral("not the filter's format"));
}

}  // namespace

RawPrinter::RawPrinter(JobStore& store) : m_store(store) {
  m_server.setSocketOptions(QLocalServer::UserAccessOption);
  connect(&m_server, &QLocalServer::newConnection, this, &RawPrinter::connectionArrived);
}

Outcome RawPrinter::listen(const QString& path) {
  if (m_server.listen(path)) return Outcome::done();
  return Outcome::failed(path + QStringLiteral(": ") + m_server.errorString());
}

void RawPrinter::setFault(const PrinterFault* fault) {
  m_fault = fault;
  logLine(QStringLiteral("printer: ") +
          (fault == nullptr ? QStringLiteral("ready") : QLatin1String(fault->description)));
  Q_EMIT faultChanged();
}

void RawPrinter::connectionArrived() {
  while (QLocalSocket* socket = m_server.nextPendingConnection()) {
    new PrinterConnection(socket, *this, m_store);  // owned by the socket
  }
}

PrinterConnection::PrinterConnection(QLocalSocket* socket, const RawPrinter& printer, JobStore& store)
    : QObject(socket), m_socket(socket), m_printer(printer), m_store(store) {
  connect(&printer, &RawPrinter::faultChanged, this, &PrinterConnection::takeFault);
  connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
  connect(socket, &QIODevice::readyRead, this, &PrinterConnection::bytesArrived);
}

PrinterConnection::~PrinterConnection() {
  if (!m_document.isOpen() && !m_waits) return;
  logLine(QStringLiteral("job %1 from %2: thrown away: the connection broke")
              .arg(m_ticket.job)
              .arg(m_ticket.user));
  m_document.remove();
}

void PrinterConnection::bytesArrived() {
  while (!m_waits && m_socket->state() == QLocalSocket::ConnectedState && m_socket->bytesAvailable() > 0) {
    Outcome taken = Outcome::done();
    if (m_pieceLeft > 0) {
      taken = takePiece();
    } else if (m_socket->canReadLine()) {
      const QByteArray line = m_socket->readLine(longestLine);
      taken = line.endsWith('\n') ? takeLine(line.chopped(1)) : notTheFormat();
    } else if (m_socket->bytesAvailable() > longestLine) {
      taken = notTheFormat();
    } else {
      return;
    }
    if (!taken) return refuse(taken.reason());
  }
}

Outcome PrinterConnection::takeLine(const QByteArray& line) {
  if (m_document.isOpen()) return takePieceSize(line);
  return line == endOfJob ? endJob() : takeTicketLine(line);
}

Outcome PrinterConnection::takeTicketLine(const QByteArray& line) {
  if (line.startsWith(passwordPrefix)) {
    m_password = QByteArray::fromPercentEncoding(line.mid(sizeof passwordPrefix - 1));
    return Outcome::done();
  }
  if (!line.isEmpty()) {
    const bool isTaken = ++m_ticketLines <= mostTicketLines && line.startsWith(linePrefix) &&
                         m_ticket.addLine(line.mid(sizeof linePrefix - 1));
    return isTaken ? Outcome::done() : notTheFormat();
  }
  if (m_ticket.job <= 0) return notTheFormat();
  if (!m_printer.admits(m_password)) return Outcome::failed(QStringLiteral("wrong password"));
  m_document.setFileName(m_store.newDocumentPath());
  constexpr QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner;
  return m_document.open(QIODevice::WriteOnly | QIODevice::NewOnly, ownerOnly)
             ? Outcome::done()
             : Outcome::failed(m_document.errorString());
}

Outcome PrinterConnection::takePieceSize(const QByteArray& line) {
  bool isNumber = false;
  m_pieceLeft = line.toLongLong(&isNumber);
  if (!isNumber || m_pieceLeft < 0 || m_pieceLeft > largestPiece) return notTheFormat();
  return m_pieceLeft == 0 ? endDocument() : Outcome::done();
}

Outcome PrinterConnection::takePiece() {
  const QByteArray bytes = m_socket->read(m_pieceLeft);
  m_pieceLeft -= bytes.size();
  return m_document.write(bytes) == bytes.size() ? Outcome::done()
                                                 : Outcome::failed(m_document.errorString());
}

Outcome PrinterConnection::endDocument() {
  // The rest of the buffer is written here, which fails when the disk is full.
  if (!m_document.flush()) return Outcome::failed(m_document.errorString());
  m_document.close();
  m_waits = m_printer.fault() != nullptr && m_ticket.retention() != Retention::HoldOnly;
  if (!m_waits) return acceptDocument();
  reportFault();
  return Outcome::done();
}

Outcome PrinterConnection::acceptDocument() {
  Outcome accepted = m_store.accept(m_ticket, m_document.fileName());
  m_ticket = {};
  m_ticketLines = 0;
  ++m_documents;
  return accepted;
}

void PrinterConnection::takeFault() {
  if (!m_waits) return;
  reportFault();
  if (m_printer.fault() != nullptr) return;
  m_waits = false;
  if (Outcome accepted = acceptDocument(); !accepted) return refuse(accepted.reason());
  bytesArrived();
}

void PrinterConnection::reportFault() {
  const PrinterFault* fault = m_printer.fault();
  if (!m_reported.isEmpty()) m_socket->write("STATE: -" + m_reported + '\n');
  m_reported = fault == nullptr ? "" : fault->reason;
  if (!m_reported.isEmpty()) m_socket->write("STATE: +" + m_reported + '\n');
  m_socket->write(QByteArray("INFO: ") + (fault == nullptr ? "Printing" : fault->message) + '\n');
}

Outcome PrinterConnection::endJob() {
  if (m_documents == 0 || m_ticketLines > 0) return notTheFormat();
  m_socket->write("taken\n");
  m_socket->disconnectFromServer();
  return Outcome::done();
}

void PrinterConnection::refuse(const QString& reason) {
  logLine(QStringLiteral("printer: a job was refused: ") + reason);
  m_socket->write("refused: " + shownText(reason).toUtf8() + '\n');
  m_socket->disconnectFromServer();
}

}  // namespace kesto
