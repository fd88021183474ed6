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

namespace kesto {
namespace {

// A rename is on disk only once its folder is synced.
void syncFolder(const QString& path) {
  const int folder = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0) return;
  ::fsync(folder);
  ::close(folder);
}

constexpr qsizetype randomLetters = 6;

// A temporary file of `path`: its name, a dot and random letters. No other file that is written here has such
// a name, since their own ends in an extension.
bool isTemporaryOf(const QString& fileName, const QString& name) {
  const auto isLetter = [](QChar c) { return c.unicode() < 0x80 && c.isLetter(); };
  const QStringView letters = QStringView(name).last(qMin(randomLetters, name.size()));
  return name.size() == fileName.size() + 1 + randomLetters && name.startsWith(fileName + u'.') &&
         std::all_of(letters.begin(), letters.end(), isLetter);
}

// Removes what writers left that were killed: a living one has its temporary file locked.
void removeAbandoned(const QString& path) {
  const QFileInfo file(path);
  const QStringList names = file.dir().entryList(QDir::Files | QDir::Hidden);
  for (const QString& name : names) {
    if (!isTemporaryOf(file.fileName(), name)) continue;
    const QByteArray left = QFile::encodeName(file.dir().filePath(name));
    const int descriptor = ::open(left.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) continue;
    if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0) ::unlink(left.constData());
    ::close(descriptor);
  }
}

// A file that is as it is to become needs no sync of the disk, which costs more than all the rest.
bool isAlready(const QString& path, const QByteArray& bytes) {
  return isPrivate(path) && readOwnFile(path, bytes.size()) == bytes;
}

}  // namespace

bool isPrivate(const QString& path) {
  constexpr QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                        QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
  return (QFile::permissions(path) & others) == 0;
}

Outcome writePrivateFile(const QString& path, const QByteArray& bytes) {
  if (isAlready(path, bytes)) return Outcome::done();
  removeAbandoned(path);
  // A QTemporaryFile has mode 0600 from its creation on, and goes with its object unless it is renamed. Where
  // the file system can, it has no name before it is asked for: a writer that is killed then leaves nothing.
  QTemporaryFile file(path + QStringLiteral(".XXXXXX"));
  const auto failed = [&](const QString& reason) {
    return Outcome::failed(path + QStringLiteral(": ") + reason);
  };
  if (!file.open()) return failed(file.errorString());
  // Where files cannot be locked none is ever taken for abandoned.
  ::flock(file.handle(), LOCK_EX | LOCK_NB);
  if (file.write(bytes) != bytes.size() || !file.flush()) return failed(file.errorString());
  if (::fsync(file.handle()) != 0) return failed(qt_error_string(errno));
  const QByteArray temporary = QFile::encodeName(file.fileName());
  if (std::rename(temporary.constData(), QFile::encodeName(path).constData()) != 0) {
    return failed(qt_error_string(errno));
  }
  file.setAutoRemove(false);
  syncFolder(QFileInfo(path).absolutePath());
  return Outcome::done();
}

std::optional<QByteArray> readOwnFile(const QString& path, qsizetype limit) {
  const int descriptor =
      ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (descriptor < 0) return std::nullopt;
  QFile file;
  if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
    ::close(descriptor);
    return std::nullopt;
  }
  struct stat info {};
  if (::fstat(descriptor, &info) != 0 || !S_ISREG(info.st_mode) || info.st_uid != getuid() ||
      info.st_size > limit) {
    return std::nullopt;
  }
  QByteArray bytes = file.read(limit);
  if (file.error() != QFile::NoError) return std::nullopt;
  return bytes;
}

}  // namespace kesto
