#include "folders/http_response.h"

#include <QtCore/QList>
#include <algorithm>

namespace kesto {
namespace {

// A head or a line longer than these is no printer's.
constexpr qsizetype longestHead = 65536;
constexpr qsizetype longestLine = 4096;

constexpr int noContent = 204;
constexpr int notModified = 304;

// The value of a header; null when it is missing.
QByteArray headerOf(const QList<QByteArray>& lines, const QByteArray& name) {
  for (const QByteArray& line : lines) {
    const qsizetype colon = line.indexOf(':');
    if (colon > 0 && line.left(colon).trimmed().toLower() == name) return line.mid(colon + 1).trimmed();
  }
  return {};
}

bool isNumber(const QByteArray& text) {
  return !text.isEmpty() &&
         std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

void HttpResponse::take(const QByteArray& bytes) {
  m_pending += bytes;
  while (step()) {
  }
  if (m_body.size() > m_largestBody) m_state = State::Bad;
}

void HttpResponse::end() {
  if (m_state != State::Whole) m_state = m_state == State::UntilEnd ? State::Whole : State::Bad;
}

// Takes what it can; false when it needs more bytes or is done.
bool HttpResponse::step() {
  QByteArray line;
  switch (m_state) {
    case State::Head:
      return takeHead();
    case State::Counted:
      return takeCounted();
    case State::UntilEnd:
      m_body += std::exchange(m_pending, {});
      return false;
    case State::ChunkSize:
      if (!takeLine(&line)) return false;
      m_state = stateOfChunk(line);
      return true;
    case State::Chunk:
      return takeCounted();
    case State::ChunkEnd:
      if (!takeLine(&line)) return false;
      m_state = line.isEmpty() ? State::ChunkSize : State::Bad;
      return true;
    case State::Trailer:
      if (!takeLine(&line)) return false;
      if (line.isEmpty()) m_state = State::Whole;
      return true;
    case State::Whole:
    case State::Bad:
      break;
  }
  return false;
}

bool HttpResponse::takeLine(QByteArray* line) {
  const qsizetype end = m_pending.indexOf('\n');
  if (end < 0 || end > longestLine) {
    if (end > longestLine || m_pending.size() > longestLine) m_state = State::Bad;
    return false;
  }
  *line = m_pending.left(end);
  if (line->endsWith('\r')) line->chop(1);
  m_pending.remove(0, end + 1);
  return true;
}

bool HttpResponse::takeHead() {
  const qsizetype end = m_pending.indexOf("\r\n\r\n");
  if (end < 0 || end > longestHead) {
    if (m_pending.size() > longestHead) m_state = State::Bad;
    return false;
  }
  QList<QByteArray> lines = m_pending.left(end).split('\n');
  m_pending.remove(0, end + 4);
  const QList<QByteArray> first = lines.takeFirst().simplified().split(' ');
  m_status = first.value(1).toInt();
  if (!first.value(0).startsWith("HTTP/1.") || m_status < 100 || m_status > 999) {
    m_state = State::Bad;
    return false;
  }
  // An interim response: the real one follows.
  if (m_status >= 200) m_state = stateBehindHead(lines);
  return true;
}

HttpResponse::State HttpResponse::stateBehindHead(const QList<QByteArray>& lines) {
  if (m_status == noContent || m_status == notModified) return State::Whole;
  const QByteArray coding = headerOf(lines, "transfer-encoding").toLower();
  if (coding.endsWith("chunked")) return State::ChunkSize;
  const QByteArray length = headerOf(lines, "content-length");
  if (length.isNull()) return State::UntilEnd;
  m_remaining = isNumber(length) ? length.toLongLong() : -1;
  if (m_remaining < 0 || m_remaining > m_largestBody) return State::Bad;
  return m_remaining == 0 ? State::Whole : State::Counted;
}

HttpResponse::State HttpResponse::stateOfChunk(const QByteArray& line) {
  bool isHex = false;
  m_remaining = line.split(';').first().trimmed().toLongLong(&isHex, 16);  // extensions mean nothing here
  if (!isHex || m_remaining < 0 || m_remaining > m_largestBody) return State::Bad;
  return m_remaining == 0 ? State::Trailer : State::Chunk;
}

bool HttpResponse::takeCounted() {
  if (m_pending.isEmpty()) return false;
  const qsizetype count = std::min(m_remaining, m_pending.size());
  m_body += m_pending.left(count);
  m_pending.remove(0, count);
  m_remaining -= count;
  if (m_remaining > 0 || m_body.size() > m_largestBody) return false;
  m_state = m_state == State::Chunk ? State::ChunkEnd : State::Whole;
  return true;
}

}  // namespace kesto
