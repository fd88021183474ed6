// A lock between processes, held on a folder.
#pragma once

#include <QtCore/QString>
#include <chrono>

#include "platform/descriptor.h"
#include "platform/outcome.h"

namespace kesto {

/// Held by one process at a time, and by one FolderLock within it. It goes with its object, and with a
/// process that is killed.
class FolderLock {
 public:
  /// Waits for the lock on an existing folder, at most `limit`; no file is made for it. Fails when the lock
  /// is not free within it, or the folder cannot be opened. On a file system without such locks it succeeds.
  Outcome take(const QString& path, std::chrono::milliseconds limit);

 private:
  Descriptor m_folder;
};

}  // namespace kesto
