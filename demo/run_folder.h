// The folder that a running demo printer keeps everything in, and by which the other commands find it.
#pragma once

#include <QtCore/QFile>
#include <QtCore/QString>

#include "platform/outcome.h"

namespace kesto {

/// A folder taken by one process at a time. It is made when it is not there, and removed with all that is in
/// it by the destructor; what a printer left in it that was ended hard goes first.
class RunFolder {
 public:
  RunFolder() = default;
  ~RunFolder();
  RunFolder(const RunFolder&) = delete;
  RunFolder& operator=(const RunFolder&) = delete;

  /// Where a printer runs that was given no folder: "kesto-demo" in an ordinary user's runtime folder, else a
  /// folder with the user's number where temporary files are, in /tmp when the path would be too long for the
  /// sockets in it.
  static QString standardPath();

  /// Takes `path`. Fails when a printer runs there, when it is not this user's, or when it holds anything of
  /// others.
  Outcome take(const QString& path);
  /// The path of something in the folder.
  QString path(const QString& name) const;
  /// The path of a socket in a folder that nobody but the owner passes, which `take` makes.
  QString socketPath(const QString& name) const;
  /// Makes a folder in it, with this mode whatever the process masks.
  Outcome makeFolder(const QString& name, unsigned int mode) const;
  /// Lets a group pass through the folder, though not look around in it. Fails when a folder above keeps it
  /// out.
  Outcome admitGroup(unsigned int group) const;

 private:
  Outcome make() const;
  Outcome lock();

  QString m_path;
  QFile m_lock;  // open and locked while the folder is this process's
};

}  // namespace kesto
