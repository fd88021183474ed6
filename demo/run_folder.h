// The folder where a running demo printer keeps everything, and where the other commands find it.
#pragma once

#include <QtCore/QFile>
#include <QtCore/QString>

#include "platform/outcome.h"

namespace kesto {

/// A folder that one process uses at a time. It is created if necessary, and the destructor removes it with
/// everything in it. What a killed printer left in it is removed first.
class RunFolder {
 public:
  RunFolder() = default;
  ~RunFolder();
  RunFolder(const RunFolder&) = delete;
  RunFolder& operator=(const RunFolder&) = delete;

  /// The default folder: "kesto-demo" in an ordinary user's runtime folder, else a folder with the user's
  /// number in the temporary directory, or in /tmp when the path would be too long for sockets.
  static QString standardPath();

  /// Takes `path`. Fails when a printer runs there, when it belongs to another user, or when it contains
  /// other files.
  Outcome take(const QString& path);
  /// The path of a file in the folder.
  QString path(const QString& name) const;
  /// The path of a socket in a subfolder that only the owner can enter, which `take` creates.
  QString socketPath(const QString& name) const;
  /// Creates a folder in it with this mode, whatever the process's mask.
  Outcome makeFolder(const QString& name, unsigned int mode) const;
  /// Lets a group pass through the folder, but not list it. Fails when a parent folder keeps the group out.
  Outcome admitGroup(unsigned int group) const;

 private:
  Outcome make() const;
  Outcome lock();

  QString m_path;
  QFile m_lock;  // open and locked while the folder is this process's
};

}  // namespace kesto
