// Private copies of documents.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

#include "platform/descriptor.h"
#include "platform/outcome.h"

namespace kesto {

/// A file of this user that no folder lists, so that nothing of it remains, however the program ends. It is
/// in the first of several folders with room for it, and moves to the next when that becomes full.
class PrivateCopy {
 public:
  /// Uses the user's temporary directory, then those of the system.
  static QStringList usualFolders();

  explicit PrivateCopy(QStringList folders = usualFolders()) : m_folders(std::move(folders)) {}

  /// Adds bytes at the end, perhaps none. Fails when no folder has room for the whole.
  Outcome append(const char* bytes, qint64 count);
  qint64 size() const { return m_size; }
  /// Gives the file up to the caller; none before something was added.
  Descriptor take() { return std::move(m_file); }

 private:
  bool moveOn();

  QStringList m_folders;  // not tried yet
  Descriptor m_file;
  qint64 m_size = 0;
};

/// A path to an open file for the processes of this user, valid while its descriptor stays open.
QByteArray pathOf(int descriptor);

/// Removes named copies that earlier versions left when they were killed, unless a process has them open.
void removeLeftCopies();

}  // namespace kesto
