// Reads one HTTP/1.x response from the bytes of a connection as they come.
//
// Qt's own HTTP client takes a chunked body that breaks off behind a chunk for a whole one, and sends a
// request anew when the connection drops; an answer of the printer must be whole or count as failed, and is
// asked for once.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayList>

namespace kesto {

/// Takes the head (past any interim responses) and the body of a response, by its length, in chunks, or up to
/// the end of the connection.
class HttpResponse {
 public:
  /// `largestBody` bounds the body; a longer one makes the response bad.
  explicit HttpResponse(qsizetype largestBody) : m_largestBody(largestBody) {}

  /// Takes the next bytes of the connection.
  void take(const QByteArray& bytes);
  /// The connection has ended: a body without a length is whole, anything unfinished is bad.
  void end();

  /// The response is there, whole.
  bool isWhole() const { return m_state == State::Whole; }
  /// It is no HTTP response, broke off, or is too long.
  bool isBad() const { return m_state == State::Bad; }
  /// The HTTP status; 0 before the head is there.
  int status() const { return m_status; }
  /// The body so far.
  const QByteArray& receivedData() const { return m_receivedData; }

 private:
  enum class State { Head, Counted, UntilEnd, ChunkSize, Chunk, ChunkEnd, Trailer, Whole, Bad };

  bool step();
  bool takeHeadLine(const QByteArray& line);
  bool takeCounted();
  bool takeLine(QByteArray* line);
  State stateBehindHead(const QByteArrayList& lines);
  State stateOfChunk(const QByteArray& line);

  qsizetype m_largestBody;
  State m_state = State::Head;
  QByteArrayList m_headLines;
  qsizetype m_headSize = 0;  // of all heads
  int m_status = 0;
  qsizetype m_remaining = 0;  // bytes of the body or chunk to come
  QByteArray m_pending;       // received, not yet taken
  QByteArray m_receivedData;
};

}  // namespace kesto
