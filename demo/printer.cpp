#include "demo/printer.h"

#include "demo/log.h"

namespace kesto {
namespace {

constexpr char linePrefix[] = "@KESTO ";
constexpr qint64 longestLine = 4096;
constexpr qint64 largestPiece = 65536;
constexpr int mostTicketLines = 200;

}  // namespace

RawPrinter::RawPrinter(JobStore& store) : m_store(store) {
  connect(&m_server, &QTcpServer::newConnection, this, &RawPrinter::connectionArrived);
}

Outcome RawPrinter::listen() {
  if (m_server.listen(QHostAddress::LocalHost, 0)) return Outcome::done();
  return Outcome::failed(QStringLiteral("the printer has no port: ") + m_server.errorString());
}

void RawPrinter::connectionArrived() {
  while (QTcpSocket* socket = m_server.nextPendingConnection()) {
    new PrinterConnection(socket, m_store);  // owned by the socket
  }
}

PrinterConnection::PrinterConnection(QTcpSocket* socket, JobStore& store)
    : QObject(socket), m_socket(socket), m_store(store) {
  connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
  connect(socket, &QIODevice::readyRead, this, &PrinterConnection::bytesArrived);
}

PrinterConnection::~PrinterConnection() {
  if (!m_document.isOpen()) return;
  logLine(QStringLiteral("job %1 from %2: thrown away: it broke off").arg(m_ticket.job).arg(m_ticket.user));
  m_document.remove();
}

void PrinterConnection::bytesArrived() {
  while (m_socket->isOpen() && m_socket->bytesAvailable() > 0) {
    if (m_pieceLeft > 0) {
      takePiece();
    } else if (m_socket->canReadLine()) {
      const QByteArray line = m_socket->readLine(longestLine);
      if (!line.endsWith('\n') || !takeLine(line.chopped(1)))
        return giveUp(QStringLiteral("not the filter's format"));
    } else if (m_socket->bytesAvailable() > longestLine) {
      return giveUp(QStringLiteral("a line without end"));
    } else {
      return;
    }
  }
}

bool PrinterConnection::takeLine(const QByteArray& line) {
  return m_document.isOpen() ? takePieceSize(line) : takeTicketLine(line);
}

bool PrinterConnection::takeTicketLine(const QByteArray& line) {
  if (!line.isEmpty()) {
    return ++m_ticketLines <= mostTicketLines && line.startsWith(linePrefix) &&
           m_ticket.addLine(line.mid(sizeof linePrefix - 1));
  }
  m_document.setFileName(m_store.newDocumentPath());
  constexpr QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner;
  return m_ticket.job > 0 && m_document.open(QIODevice::WriteOnly | QIODevice::NewOnly, ownerOnly);
}

bool PrinterConnection::takePieceSize(const QByteArray& line) {
  bool isNumber = false;
  m_pieceLeft = line.toLongLong(&isNumber);
  if (!isNumber || m_pieceLeft < 0 || m_pieceLeft > largestPiece) return false;
  if (m_pieceLeft == 0) endDocument();
  return true;
}

void PrinterConnection::takePiece() {
  const QByteArray bytes = m_socket->read(m_pieceLeft);
  m_pieceLeft -= bytes.size();
  if (m_document.write(bytes) != bytes.size()) giveUp(m_document.errorString());
}

void PrinterConnection::endDocument() {
  m_document.close();
  m_store.accept(m_ticket, m_document.fileName());
  m_ticket = {};
  m_ticketLines = 0;
}

void PrinterConnection::giveUp(const QString& reason) {
  logLine(QStringLiteral("printer: a connection was refused: ") + reason);
  m_socket->abort();
}

}  // namespace kesto
