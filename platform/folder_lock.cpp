#include "platform/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>

#include <QtCore/QDeadlineTimer>
#include <QtCore/QFile>
#include <QtCore/QThread>
#include <cerrno>

namespace kesto {
namespace {

// flock() has no time limit, so the lock is tried at intervals. A change takes a few milliseconds.
constexpr unsigned long pause = 5;

}  // namespace

Outcome FolderLock::take(const QString& path, std::chrono::milliseconds limit) {
  m_folder.reset(::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!m_folder) return Outcome::failed(path + QStringLiteral(": ") + qt_error_string(errno));
  const QDeadlineTimer end(limit);
  while (::flock(m_folder.get(), LOCK_EX | LOCK_NB) != 0) {
    if (errno == EINTR) continue;
    if (errno != EWOULDBLOCK) break;
    if (end.hasExpired()) {
      return Outcome::failed(QStringLiteral("%1: another program has held this lock for %2 seconds")
                                 .arg(path)
                                 .arg(limit.count() / 1000));
    }
    QThread::msleep(pause);
  }
  return Outcome::done();
}

}  // namespace kesto
