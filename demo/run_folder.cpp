#include "demo/run_folder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>
#include <cerrno>

#include "platform/environment.h"

namespace kesto {
namespace {

// A file that nobody else would create. It marks a folder as one that may be emptied.
constexpr char lockName[] = "kesto-demo-printer.lock";
constexpr char socketFolder[] = "sockets";
// A socket's path has at most 107 bytes, and the folder contains "/sockets/printer".
constexpr qsizetype longestPath = 90;

QByteArray encoded(const QString& path) {
  return QFile::encodeName(path);
}

Outcome failedAt(const QString& path) {
  return Outcome::failed(path + QStringLiteral(": ") + qt_error_string(errno));
}

QString cleanAbsolute(const QString& path) {
  return QDir::cleanPath(QDir(path).absolutePath());
}

bool isUsable(const QString& path) {
  // Characters with a special meaning in the scheduler's configuration.
  static const QRegularExpression special(QStringLiteral("[#\\\\\"<>\\x00-\\x1f]"));
  return encoded(path).size() <= longestPath && !path.contains(special);
}

void removeAll(const QDir& folder, const QString& besides) {
  for (const QFileInfo& entry :
       folder.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)) {
    if (entry.fileName() == besides) continue;
    if (entry.isDir() && !entry.isSymLink()) {
      QDir(entry.filePath()).removeRecursively();
    } else {
      QFile::remove(entry.filePath());
    }
  }
}

}  // namespace

QString RunFolder::standardPath() {
  const QString name = QStringLiteral("/kesto-demo-%1").arg(getuid());
  const QString runtime = userRuntimeDirectory();
  const QString temporary = qEnvironmentVariable("TMPDIR");
  QStringList places;
  // Root's jobs run under another account, which cannot reach that folder.
  if (!runtime.isNull() && getuid() != 0) places << runtime + QStringLiteral("/kesto-demo");
  if (!temporary.isEmpty()) places << temporary + name;
  for (const QString& place : places) {
    if (isUsable(cleanAbsolute(place))) return place;
  }
  return QStringLiteral("/tmp") + name;
}

RunFolder::~RunFolder() {
  if (!m_lock.isOpen()) return;
  removeAll(QDir(m_path), QString::fromLatin1(lockName));
  m_lock.remove();
  ::rmdir(encoded(m_path).constData());
}

QString RunFolder::path(const QString& name) const {
  return m_path + QLatin1Char('/') + name;
}

QString RunFolder::socketPath(const QString& name) const {
  return path(QLatin1String(socketFolder) + QLatin1Char('/') + name);
}

Outcome RunFolder::take(const QString& path) {
  m_path = cleanAbsolute(path);
  if (!isUsable(m_path)) {
    return Outcome::failed(
        m_path +
        QStringLiteral(": the path has more than %1 bytes or special characters; name another folder")
            .arg(longestPath));
  }
  if (Outcome made = make(); !made) return made;
  if (Outcome locked = lock(); !locked) return locked;
  return makeFolder(QString::fromLatin1(socketFolder), 0700);
}

Outcome RunFolder::make() const {
  const QByteArray name = encoded(m_path);
  if (::mkdir(name.constData(), 0700) != 0 && errno != EEXIST) return failedAt(m_path);
  struct stat info {};
  if (::lstat(name.constData(), &info) != 0) return failedAt(m_path);
  if (!S_ISDIR(info.st_mode) || info.st_uid != geteuid()) {
    return Outcome::failed(m_path +
                           QStringLiteral(": the folder belongs to another user; choose another folder"));
  }
  if (!QFile::exists(path(QString::fromLatin1(lockName))) &&
      !QDir(m_path).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)) {
    return Outcome::failed(m_path +
                           QStringLiteral(": the folder holds other files; choose an empty or new folder"));
  }
  return Outcome::done();
}

Outcome RunFolder::lock() {
  m_lock.setFileName(path(QString::fromLatin1(lockName)));
  // The kernel releases the lock however the process ends.
  if (!m_lock.open(QIODevice::ReadWrite))
    return Outcome::failed(m_lock.fileName() + QStringLiteral(": ") + m_lock.errorString());
  if (::flock(m_lock.handle(), LOCK_EX | LOCK_NB) != 0) {
    m_lock.close();
    return Outcome::failed(m_path + QStringLiteral(": a demo printer is already running there"));
  }
  // Done only now, because a printer that was running there may have opened it to the account of its jobs.
  if (::chmod(encoded(m_path).constData(), 0700) != 0) return failedAt(m_path);
  removeAll(QDir(m_path), QString::fromLatin1(lockName));
  return Outcome::done();
}

Outcome RunFolder::makeFolder(const QString& name, unsigned int mode) const {
  const QByteArray folder = encoded(path(name));
  const bool isMade = ::mkdir(folder.constData(), mode) == 0 && ::chmod(folder.constData(), mode) == 0;
  return isMade ? Outcome::done() : failedAt(path(name));
}

Outcome RunFolder::admitGroup(unsigned int group) const {
  const QByteArray name = encoded(m_path);
  if (::chown(name.constData(), static_cast<uid_t>(-1), group) != 0 || ::chmod(name.constData(), 0710) != 0) {
    return failedAt(m_path);
  }
  for (QDir above(m_path); above.cdUp();) {
    struct stat info {};
    if (::stat(encoded(above.path()).constData(), &info) != 0) return failedAt(above.path());
    const bool isOpen =
        (info.st_mode & S_IXOTH) != 0 || ((info.st_mode & S_IXGRP) != 0 && info.st_gid == group);
    if (!isOpen) {
      return Outcome::failed(above.path() +
                             QStringLiteral(": keeps out the account that jobs run as; name another folder"));
    }
  }
  return Outcome::done();
}

}  // namespace kesto
