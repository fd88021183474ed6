#include "hosts/dialog/document.h"

#include <poll.h>
#include <unistd.h>

#include <QtCore/QFileInfo>
#include <array>
#include <cerrno>
#include <cstring>

#include "platform/environment.h"

namespace kesto {
namespace {

constexpr int lookInterval = 200;  // ms between two looks whether the reading is still wanted

// Writes all that a descriptor gives. None when stopped, else errno's number, 0 for success.
std::optional<int> copyAll(int descriptor, QFile& file, const std::atomic<bool>& isStopped) {
  std::array<char, 65536> block{};
  while (!isStopped) {
    pollfd waiting{.fd = descriptor, .events = POLLIN, .revents = 0};
    if (::poll(&waiting, 1, lookInterval) == 0) continue;
    const ssize_t count = ::read(descriptor, block.data(), block.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno;
    if (count == 0) return file.flush() ? 0 : EIO;
    if (file.write(block.data(), count) != count) return ENOSPC;
  }
  return {};
}

}  // namespace

Document::~Document() {
  stopReading();
}

void Document::stopReading() {
  m_isStopped = true;
  if (m_reader.joinable()) m_reader.join();
  m_isStopped = false;
  ++m_reading;
}

void Document::set(State state, const QString& fault) {
  m_state = state;
  m_fault = fault;
  Q_EMIT changed();
}

void Document::openFiles(const QStringList& paths) {
  stopReading();
  m_copy.reset();
  m_files.clear();
  m_name = QFileInfo(paths.value(0)).fileName();
  for (const QString& path : paths) {
    QFile file(path);
    if (QFileInfo(path).isDir()) return set(State::Failed, tr("%1 is a folder").arg(path));
    if (!file.open(QIODevice::ReadOnly))
      return set(State::Failed, QStringLiteral("%1: %2").arg(path, file.errorString()));
    m_files.append(QFileInfo(path).absoluteFilePath());
  }
  set(m_files.isEmpty() ? State::None : State::Ready);
}

void Document::readDescriptor(int descriptor, const QString& name) {
  stopReading();
  m_files.clear();
  m_name = name;
  const QString folder = userTemporaryDirectory();
  m_copy = std::make_unique<QTemporaryFile>((folder.isNull() ? QStringLiteral("/tmp/") : folder) +
                                            QStringLiteral("kesto-document"));
  if (!m_copy->open()) {
    ::close(descriptor);
    return set(State::Failed, tr("The document cannot be kept: %1").arg(m_copy->errorString()));
  }
  set(State::Reading);
  m_reader = std::thread([this, descriptor, reading = m_reading] { copy(descriptor, reading); });
}

void Document::copy(int descriptor, int reading) {
  const std::optional<int> fault = copyAll(descriptor, *m_copy, m_isStopped);
  ::close(descriptor);
  if (!fault) return;
  const auto finish = [this, reading, fault = *fault] {
    if (reading != m_reading) return;  // another document has come in the meantime
    if (fault != 0)
      return set(State::Failed, tr("The document cannot be read: %1").arg(qt_error_string(fault)));
    if (m_copy->size() == 0) return set(State::Failed, tr("The document is empty."));
    m_files = {m_copy->fileName()};
    set(State::Ready);
  };
  QMetaObject::invokeMethod(this, finish, Qt::QueuedConnection);
}

QString Document::name() const {
  const auto others = static_cast<int>(m_files.size()) - 1;
  return others < 1 ? m_name : tr("%1 and %n more", nullptr, others).arg(m_name);
}

}  // namespace kesto
