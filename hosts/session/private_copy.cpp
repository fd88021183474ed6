#include "hosts/session/private_copy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <array>
#include <cerrno>
#include <cstdlib>

#include "platform/environment.h"

namespace kesto {
namespace {

constexpr QLatin1String nameOfCopies("kesto-document");

// A file without a name. Where the file system does not support that, its name is removed at once.
Descriptor openUnnamed(const QString& folder) {
  const QByteArray path = QFile::encodeName(folder);
  Descriptor file(::open(path.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
  if (file) return file;
  QByteArray name = path + nameOfCopies.data() + ".XXXXXX";
  file.reset(::mkostemp(name.data(), O_CLOEXEC));
  if (file) ::unlink(name.constData());
  return file;
}

bool writeAll(int file, const char* bytes, qint64 count) {
  while (count > 0) {
    const ssize_t written = ::write(file, bytes, static_cast<std::size_t>(count));
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    bytes += written;
    count -= written;
  }
  return true;
}

// Writes the first `count` bytes of one file into another.
bool copyStart(int from, qint64 count, int to) {
  std::array<char, 65536> block{};
  for (qint64 copied = 0; copied < count;) {
    const auto wanted = static_cast<std::size_t>(qMin(qint64{block.size()}, count - copied));
    const ssize_t got = ::pread(from, block.data(), wanted, copied);
    if (got <= 0 || !writeAll(to, block.data(), got)) return false;
    copied += got;
  }
  return true;
}

// A write lease is granted only while no other process has the file open.
bool isOpenElsewhere(int file) {
  return ::fcntl(file, F_SETLEASE, F_WRLCK) != 0;
}

}  // namespace

QStringList PrivateCopy::usualFolders() {
  QStringList folders{QStringLiteral("/var/tmp/"), QStringLiteral("/tmp/")};
  const QString own = userTemporaryDirectory();
  if (own.isNull()) return folders;
  // Without TMPDIR it is in the runtime folder, which is memory that the user's other programs need.
  const bool isChosen = !qEnvironmentVariableIsEmpty("TMPDIR");
  folders.insert(isChosen ? 0 : folders.size(), own);
  return folders;
}

// Moves to the next folder with room for what was copied so far; errno says why there is none.
bool PrivateCopy::moveOn() {
  while (!m_folders.isEmpty()) {
    Descriptor file = openUnnamed(m_folders.takeFirst());
    if (!file || !copyStart(m_file.get(), m_size, file.get())) continue;
    m_file = std::move(file);
    return true;
  }
  return false;
}

Outcome PrivateCopy::append(const char* bytes, qint64 count) {
  while (!m_file || !writeAll(m_file.get(), bytes, count)) {
    // The whole block is written again in the next folder.
    if (!moveOn()) return Outcome::failed(qt_error_string(errno));
  }
  m_size += count;
  return Outcome::done();
}

QByteArray pathOf(int descriptor) {
  return "/proc/" + QByteArray::number(::getpid()) + "/fd/" + QByteArray::number(descriptor);
}

void removeLeftCopies() {
  for (const QString& folder : PrivateCopy::usualFolders()) {
    const QDir dir(folder);
    for (const QString& name : dir.entryList({nameOfCopies + QStringLiteral(".??????")}, QDir::Files)) {
      const QByteArray path = QFile::encodeName(dir.filePath(name));
      const Descriptor file(::open(path.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
      struct stat info {};
      if (!file || ::fstat(file.get(), &info) != 0 || !S_ISREG(info.st_mode) || info.st_uid != ::getuid())
        continue;
      if (!isOpenElsewhere(file.get())) ::unlink(path.constData());
    }
  }
}

}  // namespace kesto
