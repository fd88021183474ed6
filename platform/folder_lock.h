// A lock between processes, held on a folder.
#pragma once

#include <QtCore/QString>
#include <chrono>

#include "platform/descriptor.h"
#include "platform/export.h"
#include "platform/outcome.h"

namespace kesto {

/// Held by one process at a time, and by one FolderLock within it. It is released with the object, and when
/// the process is killed.
class KESTO_EXPORT FolderLock {
 public:
  /// Waits at most `limit` for the lock on an existing folder; no file is created for it. Fails when the lock
  /// does not become free in time or the folder cannot be opened. Succeeds on a file system without such
  /// locks.
  Outcome take(const QString& path, std::chrono::milliseconds limit);

 private:
  Descriptor m_folder;
};

}  // namespace kesto
