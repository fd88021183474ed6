// A lock between processes, held on a file of its own.
#pragma once

#include <QtCore/QString>
#include <chrono>

#include "platform/outcome.h"

namespace kesto {

/// Held by one process at a time, and by one FileLock within it. It goes with its object, and with a process
/// that is killed.
class FileLock {
 public:
  FileLock() = default;
  ~FileLock();
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;

  /// Waits for the lock on the file, which is made with mode 0600 and stays; at most `limit`. Fails when the
  /// lock is not free within it, or the file cannot be opened. On a file system without locks it succeeds.
  Outcome take(const QString& path, std::chrono::milliseconds limit);

 private:
  int m_descriptor = -1;
};

}  // namespace kesto
