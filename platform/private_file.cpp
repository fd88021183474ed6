#include "platform/private_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryFile>
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

}  // namespace

Outcome writePrivateFile(const QString& path, const QByteArray& bytes) {
  // A QTemporaryFile has mode 0600 from its creation on, and goes with its object unless it is renamed.
  QTemporaryFile file(path + QStringLiteral(".XXXXXX"));
  const auto failed = [&](const QString& reason) {
    return Outcome::failed(path + QStringLiteral(": ") + reason);
  };
  if (!file.open()) return failed(file.errorString());
  const QByteArray temporary = QFile::encodeName(file.fileName());
  if (file.write(bytes) != bytes.size() || !file.flush()) return failed(file.errorString());
  if (::fsync(file.handle()) != 0) return failed(qt_error_string(errno));
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
