#include "platform/secret.h"

#include <cstring>

namespace kesto {
namespace {

template <class Buffer>
void wipeOwn(Buffer& buffer) {
  if (buffer.isDetached()) {
    // Wipes everything that is allocated, because a buffer can hold parts of a longer text around its own.
    // The text need not begin at the start of the storage, from which the capacity is counted.
    auto& storage = buffer.data_ptr();
    ::explicit_bzero(storage.data() - storage.freeSpaceAtBegin(),
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
