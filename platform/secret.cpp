#include "platform/secret.h"

#include <openssl/crypto.h>

namespace kesto {
namespace {

template <class Buffer>
void wipeOwn(Buffer& buffer) {
  // Beyond its size a buffer can hold the end of a longer text.
  if (buffer.isDetached())
    OPENSSL_cleanse(buffer.data(), static_cast<std::size_t>(buffer.capacity()) * sizeof *buffer.data());
  buffer = Buffer();
}

}  // namespace

void wipe(QByteArray& bytes) {
  wipeOwn(bytes);
}
void wipe(QString& text) {
  wipeOwn(text);
}

}  // namespace kesto
