// The copy of a document that is read once.
#pragma once

#include <QtCore/QStringList>

#include "platform/descriptor.h"
#include "platform/outcome.h"

namespace kesto {

/// A file of this user's that no folder lists: whatever ends the program, nothing of it stays. It lies in the
/// first of several folders that has room for it, and moves on to the next when that becomes full.
class PrivateCopy {
 public:
  /// The user's temporary directory, then those of the system.
  static QStringList usualFolders();

  explicit PrivateCopy(QStringList folders = usualFolders()) : m_folders(std::move(folders)) {}

  /// Adds bytes at the end. Fails when no folder has room for the whole.
  Outcome append(const char* bytes, qint64 count);
  qint64 size() const { return m_size; }
  /// Hands the file over; none before something was added.
  Descriptor take() { return std::move(m_file); }

 private:
  bool moveOn();

  QStringList m_folders;  // not tried yet
  Descriptor m_file;
  qint64 m_size = 0;
};

/// Removes the copies with names that earlier versions left when they were killed; one that is open in some
/// process stays.
void removeLeftCopies();

}  // namespace kesto
