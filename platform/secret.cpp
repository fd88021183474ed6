#include "platform/secret.h"

#include <openssl/crypto.h>

namespace kesto {
namespace {

template <class Buffer>
void wipeOwn(Buffer& buffer) {
  if (buffer.isDetached()) {
    // All that is allocated: around its text a buffer can hold parts of a longer one. Its text need not begin
    // where the storage does, which its capacity counts from.
    auto& storage = buffer.data_ptr();
    OPENSSL_cleanse(storage.data() - storage.freeSpaceAtBegin(),
                    static_cast<std::size_t>(storage.constAllocatedCapacity()) * sizeof *storage.data());
  }
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
