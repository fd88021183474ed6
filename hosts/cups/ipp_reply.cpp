#include "hosts/cups/ipp_reply.h"

#include <QtCore/QtEndian>
#include <algorithm>
#include <cstring>

#include "hosts/cups/bounds.h"
#include "hosts/cups/faults.h"

namespace kesto {
namespace {

constexpr qsizetype headerLength = 8;  // version, status, number of the request
constexpr int highestStatus = 0x05;    // the first byte of server errors, the highest statuses
constexpr int lastDelimiter = 0x0F;    // tags up to here begin a group or end the message

// Steps through the bytes; every step fails beyond their end.
class Cursor {
 public:
  explicit Cursor(const QByteArray& bytes)
      : m_bytes(bytes), m_position(std::min(headerLength, bytes.size())) {}

  // Negative at the end.
  int tag() { return m_position < m_bytes.size() ? static_cast<uchar>(m_bytes[m_position++]) : -1; }
  // Steps over a length and that many bytes. Returns the length; negative when bytes are missing.
  int skipText() {
    if (m_bytes.size() - m_position < 2) return -1;
    const int length = qFromBigEndian<quint16>(m_bytes.constData() + m_position);
    if (m_bytes.size() - m_position < 2 + length) return -1;
    m_position += 2 + length;
    return length;
  }

 private:
  const QByteArray& m_bytes;
  qsizetype m_position;
};

Outcome unreadable() {
  return Outcome::failed(Faults::tr("cannot read the print server's answer"));
}

Outcome tooLarge() {
  return Outcome::failed(Faults::tr("the print server's answer is too large"));
}

// How many collections are open after a value; negative when the value is not allowed here.
int depthAfter(int tag, int valueLength, int depth) {
  const bool isEnd = tag == IPP_TAG_END_COLLECTION;
  if (tag != IPP_TAG_BEGIN_COLLECTION && !isEnd) return depth;
  if (valueLength != 0) return -1;
  return isEnd ? depth - 1 : depth + 1;
}

// The same for the value that begins after its tag; negative also when bytes are missing.
int depthAfterValue(Cursor* cursor, int tag, int depth) {
  if (cursor->skipText() < 0) return -1;  // its name
  const int length = cursor->skipText();
  return length < 0 ? -1 : depthAfter(tag, length, depth);
}

// A message in memory, for libcups's reader.
struct Reader {
  const QByteArray& bytes;
  qsizetype position = 0;
};

ssize_t readFromMemory(void* context, ipp_uchar_t* buffer, std::size_t size) {
  auto* reader = static_cast<Reader*>(context);
  const qsizetype count = std::min(static_cast<qsizetype>(size), reader->bytes.size() - reader->position);
  std::memcpy(buffer, reader->bytes.constData() + reader->position, static_cast<std::size_t>(count));
  reader->position += count;
  return count;
}

ssize_t writeToMemory(void* context, ipp_uchar_t* buffer, std::size_t size) {
  static_cast<QByteArray*>(context)->append(reinterpret_cast<const char*>(buffer),
                                            static_cast<qsizetype>(size));
  return static_cast<ssize_t>(size);
}

}  // namespace

void FreeIpp::operator()(ipp_t* ipp) const {
  ippDelete(ipp);
}

Outcome checkReply(const QByteArray& bytes) {
  if (bytes.size() > longestReply) return tooLarge();
  // libcups's type for statuses cannot hold every number.
  if (bytes.size() < headerLength || static_cast<uchar>(bytes[2]) > highestStatus) return unreadable();
  Cursor cursor(bytes);
  int depth = 0;
  int groups = 0;
  int values = 0;
  for (;;) {
    const int tag = cursor.tag();
    // libcups does not read extended tags according to the format, and nobody sends them.
    if (tag < 0 || tag == IPP_TAG_EXTENSION) return unreadable();
    const bool isDelimiter = tag <= lastDelimiter;
    if (isDelimiter && depth != 0) return unreadable();
    if (tag == IPP_TAG_END) return Outcome::done();
    if (++(isDelimiter ? groups : values) > mostValues) return tooLarge();  // libcups keeps each of them
    if (!isDelimiter) depth = depthAfterValue(&cursor, tag, depth);
    if (depth < 0) return unreadable();
    if (depth > deepestCollection) return tooLarge();
  }
}

Outcome readReply(const QByteArray& bytes, Ipp* reply) {
  reply->reset();
  if (Outcome checked = checkReply(bytes); !checked) return checked;
  Ipp message(ippNew());
  Reader reader{bytes};
  if (ippReadIO(&reader, readFromMemory, 1, nullptr, message.get()) != IPP_STATE_DATA) return unreadable();
  *reply = std::move(message);
  return Outcome::done();
}

QStringList textsOf(ipp_attribute_t* attribute) {
  QStringList texts;
  for (int i = 0; i < ippGetCount(attribute); ++i)
    texts.append(QString::fromUtf8(ippGetString(attribute, i, nullptr)));
  return texts;
}

void askFor(ipp_t* request, std::span<const char* const> attributes) {
  ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                static_cast<int>(attributes.size()), nullptr, attributes.data());
}

QByteArray bytesOfRequest(ipp_t* request) {
  QByteArray bytes;
  bytes.reserve(static_cast<qsizetype>(ippLength(request)));  // growing would leave copies of what is secret
  ippSetState(request, IPP_STATE_IDLE);
  const bool isWritten = ippWriteIO(&bytes, writeToMemory, 1, nullptr, request) == IPP_STATE_DATA;
  return isWritten ? bytes : QByteArray();
}

}  // namespace kesto
