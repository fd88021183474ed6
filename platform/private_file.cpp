#include "platform/private_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryFile>
#include <algorithm>
#include <cerrno>
#include <cstdio>

#include "platform/descriptor.h"

namespace kesto {
namespace {

// A rename is on disk only once its folder is synced.
void syncFolder(const QString& path) {
  const Descriptor folder(::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder) ::fsync(folder.get());
}

const QString temporarySuffix = QStringLiteral(".XXXXXX");

// The name of a temporary file for `path`: the file's name, a dot and random letters. It cannot be mistaken
// for another file of the folder, because their names end in an extension.
bool isTemporaryOf(const QString& path, const QString& name) {
  const auto isLetter = [](QChar c) { return c.unicode() < 0x80 && c.isLetter(); };
  const QString pattern = QFileInfo(pathBeside(path, temporarySuffix)).fileName();
  const qsizetype letters = temporarySuffix.size() - 1;
  if (name.size() != pattern.size() || !name.startsWith(QStringView(pattern).chopped(letters))) return false;
  const QStringView random = QStringView(name).last(letters);
  return std::all_of(random.begin(), random.end(), isLetter);
}

// Removes temporary files whose writers were killed; a running writer holds a lock on its file.
void removeAbandoned(const QString& path) {
  const QFileInfo kept(path);
  const QStringList names = kept.dir().entryList(QDir::Files | QDir::Hidden);
  for (const QString& name : names) {
    if (!isTemporaryOf(path, name)) continue;
    const QByteArray left = QFile::encodeName(kept.dir().filePath(name));
    const Descriptor file(::open(left.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (file && ::flock(file.get(), LOCK_EX | LOCK_NB) == 0) ::unlink(left.constData());
  }
}

enum class Replaced { Done, Failed, Taken };

// Fails with the reason, or when the temporary file has disappeared.
Replaced replaceFile(const QString& path, const QByteArray& bytes, QString* reason) {
  // A QTemporaryFile has mode 0600 from its creation, and is removed with its object unless it is renamed.
  // Where the file system supports it, the file has no name until one is asked for, so that a killed writer
  // leaves nothing.
  QTemporaryFile file(pathBeside(path, temporarySuffix));
  const auto failed = [&](const QString& text) {
    *reason = text;
    return Replaced::Failed;
  };
  if (!file.open()) return failed(file.errorString());
  // Where files cannot be locked, none is ever considered abandoned.
  ::flock(file.handle(), LOCK_EX | LOCK_NB);
  if (file.write(bytes) != bytes.size() || !file.flush()) return failed(file.errorString());
  if (::fsync(file.handle()) != 0) return failed(qt_error_string(errno));
  const QByteArray temporary = QFile::encodeName(file.fileName());
  if (std::rename(temporary.constData(), QFile::encodeName(path).constData()) != 0) {
    if (errno == ENOENT && !QFile::exists(file.fileName())) return Replaced::Taken;
    return failed(qt_error_string(errno));
  }
  file.setAutoRemove(false);
  syncFolder(QFileInfo(path).absolutePath());
  return Replaced::Done;
}

}  // namespace

bool isPrivate(const QString& path) {
  constexpr QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                        QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
  return (QFile::permissions(path) & others) == 0;
}

QString pathBeside(const QString& path, const QString& suffix) {
  const qsizetype slash = path.lastIndexOf(u'/');
  QString name = path.sliced(slash + 1);
  while (QFile::encodeName(name + suffix).size() > longestFileName)
    name.chop(1);
  return path.first(slash + 1) + name + suffix;
}

// A file that would not change is not written: syncing the disk costs more than everything else.
bool holdsPrivately(const QString& path, const QByteArray& bytes) {
  return isPrivate(path) && readOwnFile(path, bytes.size()) == bytes;
}

Outcome writePrivateFile(const QString& path, const QByteArray& bytes) {
  if (holdsPrivately(path, bytes)) return Outcome::done();
  removeAbandoned(path);
  // A temporary file that has a name from the start can be considered abandoned before it is locked.
  constexpr int mostTries = 100;
  QString reason = qt_error_string(ENOENT);
  for (int tries = 0; tries < mostTries; ++tries) {
    const Replaced replaced = replaceFile(path, bytes, &reason);
    if (replaced == Replaced::Done) return Outcome::done();
    if (replaced == Replaced::Failed) break;
  }
  return Outcome::failed(path + QStringLiteral(": ") + reason);
}

std::optional<QByteArray> readOwnFile(const QString& path, qsizetype limit) {
  const Descriptor descriptor(
      ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  QFile file;
  if (!descriptor || !file.open(descriptor.get(), QIODevice::ReadOnly)) return std::nullopt;
  struct stat info {};
  if (::fstat(descriptor.get(), &info) != 0 || !S_ISREG(info.st_mode) || info.st_uid != getuid() ||
      info.st_size > limit) {
    return std::nullopt;
  }
  QByteArray bytes = file.read(info.st_size);
  if (file.error() != QFile::NoError) return std::nullopt;
  return bytes;
}

}  // namespace kesto
