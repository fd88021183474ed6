// Wiping memory that held a pass code, a login name or a password.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include "platform/export.h"

namespace kesto {

/// Overwrites the storage and makes the buffer null. Storage that is shared with another buffer stays as it
/// is, for that buffer to wipe.
KESTO_EXPORT void wipe(QByteArray& bytes);
KESTO_EXPORT void wipe(QString& text);

/// Wipes a buffer at the end of its scope; the buffer outlives it.
template <class Buffer>
class WipedAtEnd {
 public:
  explicit WipedAtEnd(Buffer& buffer) : m_buffer(buffer) {}
  ~WipedAtEnd() { wipe(m_buffer); }
  WipedAtEnd(const WipedAtEnd&) = delete;
  WipedAtEnd& operator=(const WipedAtEnd&) = delete;

 private:
  Buffer& m_buffer;
};

}  // namespace kesto
