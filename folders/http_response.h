// Reads one HTTP/1.x response from the bytes of a connection as they arrive.
//
// Qt's own HTTP client accepts a chunked body that breaks off after a chunk as complete, and repeats a
// request when the connection drops. Here an answer is either complete or a failure, and the printer is asked
// once.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayList>

namespace kesto {

/// Takes the head of a response (after any interim responses) and its body: by its length, in chunks, or up
/// to the end of the connection.
class HttpResponse {
 public:
  /// A body longer than `largestBody` makes the response bad.
  explicit HttpResponse(qsizetype largestBody) : m_largestBody(largestBody) {}

  /// Takes the next bytes of the connection.
  void take(const QByteArray& bytes);
  /// Call this when the connection has ended: a body without a length is then complete, anything unfinished
  /// is bad.
  void end();

  /// Whether the response is complete.
  bool isWhole() const { return m_state == State::Whole; }
  /// Whether it is not an HTTP response, broke off or is too long.
  bool isBad() const { return m_state == State::Bad; }
  /// The HTTP status; 0 before the head is complete.
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
  qsizetype m_headSize = 0;  // of the response's head and those of interim responses
  int m_status = 0;
  qsizetype m_remaining = 0;  // bytes of the body or chunk to come
  QByteArray m_pending;       // received, not yet taken
  QByteArray m_receivedData;
};

}  // namespace kesto
