#include "folders/http_response.h"

#include <algorithm>
#include <optional>

namespace kesto {
namespace {

// No printer sends a longer head or line.
constexpr qsizetype longestHead = 65536;

constexpr int noContent = 204;
constexpr int notModified = 304;

// The elements of all lines of a header that is a list, in lower case.
QByteArrayList headerOf(const QByteArrayList& lines, const QByteArray& name) {
  QByteArrayList elements;
  for (const QByteArray& line : lines) {
    const qsizetype colon = line.indexOf(':');
    if (colon <= 0 || line.left(colon).trimmed().toLower() != name) continue;
    for (const QByteArray& element : line.mid(colon + 1).toLower().split(','))
      elements.append(element.trimmed());
  }
  return elements;
}

// A length in bytes; none when it is not a number, is too large, or is given as several different numbers.
std::optional<qsizetype> lengthOf(const QByteArrayList& elements) {
  const QByteArray& text = elements.first();
  const bool isOne = elements.count(text) == elements.size() &&
                     std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
  bool fits = false;
  const qsizetype length = text.toLongLong(&fits);
  return isOne && fits ? std::optional(length) : std::nullopt;
}

}  // namespace

void HttpResponse::take(const QByteArray& bytes) {
  m_pending += bytes;
  while (step()) {
  }
  if (m_receivedData.size() > m_largestBody) m_state = State::Bad;
}

void HttpResponse::end() {
  if (m_state != State::Whole) m_state = m_state == State::UntilEnd ? State::Whole : State::Bad;
}

// Takes one element of the response; false when it needs more bytes or is done.
bool HttpResponse::step() {
  QByteArray line;
  switch (m_state) {
    case State::Head:
      if (!takeLine(&line)) return false;
      return takeHeadLine(line);
    case State::Counted:
      return takeCounted();
    case State::UntilEnd:
      m_receivedData += std::exchange(m_pending, {});
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
  if (end < 0 || end > longestHead) {
    if (m_pending.size() > longestHead) m_state = State::Bad;
    return false;
  }
  *line = m_pending.left(end);
  if (line->endsWith('\r')) line->chop(1);
  m_pending.remove(0, end + 1);
  return true;
}

bool HttpResponse::takeHeadLine(const QByteArray& line) {
  m_headSize += line.size();
  if (m_headSize > longestHead) m_state = State::Bad;
  if (!line.isEmpty()) {
    m_headLines.append(line);
    return m_state == State::Head;
  }
  const QByteArrayList lines = std::exchange(m_headLines, {});
  const QByteArrayList first = lines.value(0).simplified().split(' ');
  m_status = first.value(1).toInt();
  if (!first.value(0).startsWith("HTTP/1.") || m_status < 100 || m_status > 999) {
    m_state = State::Bad;
    return false;
  }
  // An interim response: the real one follows.
  if (m_status >= 200) m_state = stateBehindHead(lines);
  return true;
}

HttpResponse::State HttpResponse::stateBehindHead(const QByteArrayList& lines) {
  if (m_status == noContent || m_status == notModified) return State::Whole;
  const QByteArrayList codings = headerOf(lines, "transfer-encoding");
  if (codings.endsWith("chunked")) return State::ChunkSize;
  const QByteArrayList lengths = headerOf(lines, "content-length");
  if (lengths.isEmpty()) return State::UntilEnd;
  m_remaining = lengthOf(lengths).value_or(-1);
  if (m_remaining < 0 || m_remaining > m_largestBody) return State::Bad;
  return m_remaining == 0 ? State::Whole : State::Counted;
}

HttpResponse::State HttpResponse::stateOfChunk(const QByteArray& line) {
  bool isHex = false;
  m_remaining = line.split(';').first().trimmed().toLongLong(&isHex, 16);  // chunk extensions are ignored
  if (!isHex || m_remaining < 0 || m_remaining > m_largestBody) return State::Bad;
  return m_remaining == 0 ? State::Trailer : State::Chunk;
}

bool HttpResponse::takeCounted() {
  if (m_pending.isEmpty()) return false;
  const qsizetype count = std::min(m_remaining, m_pending.size());
  m_receivedData += m_pending.left(count);
  m_pending.remove(0, count);
  m_remaining -= count;
  if (m_remaining > 0 || m_receivedData.size() > m_largestBody) return false;
  m_state = m_state == State::Chunk ? State::ChunkEnd : State::Whole;
  return true;
}

}  // namespace kesto
