#include "hosts/dialog/document.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <QtCore/QLocale>
#include <algorithm>
#include <array>
#include <cerrno>

#include "platform/shown_text.h"

namespace kesto {
namespace {

mode_t typeOf(int descriptor) {
  struct stat info {};
  return ::fstat(descriptor, &info) == 0 ? info.st_mode & S_IFMT : 0;
}

// A pipe that is opened anew never makes a read wait, not even when the client has taken the bytes back.
Descriptor withoutWaiting(Descriptor pipe) {
  Descriptor own(::open(pathOf(pipe.get()).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  return own ? std::move(own) : std::move(pipe);
}

// Whether it can be read repeatedly. Files that the kernel generates report a wrong length.
bool isStored(int descriptor) {
  struct stat info {};
  struct statfs place {};
  if (::fstat(descriptor, &info) != 0 || ::fstatfs(descriptor, &place) != 0) return false;
  return S_ISREG(info.st_mode) && info.st_size > 0 && place.f_type != PROC_SUPER_MAGIC &&
         place.f_type != SYSFS_MAGIC;
}

}  // namespace

struct Document::Copied {
  Descriptor file;
  QString fault;  // "%1" stands for the name; null without a fault
};

Document::Document(Bounds bounds) : m_bounds(bounds), m_wake(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

Document::~Document() {
  stopReading();
}

void Document::wake() const {
  // The write fails when the counter is full, but then the thread wakes anyway.
  (void)::eventfd_write(m_wake.get(), 1);
}

void Document::stopReading() {
  m_isStopped = true;
  wake();
  if (m_reader.joinable()) m_reader.join();
  m_isStopped = false;
  ++m_reading;
}

void Document::set(State state) {
  m_state = state;
  Q_EMIT changed();
}

void Document::begin() {
  stopReading();
  m_parts.clear();
  m_sources.clear();
  m_faults.clear();
  m_isOpenEnded = false;
}

void Document::openFiles(const QByteArrayList& paths) {
  begin();
  for (const QByteArray& path : paths)
    add(path);
  read();
}

void Document::add(const QByteArray& path) {
  const bool isInput = path == "-";
  // Opens a pipe without a writer and an unconnected serial line without waiting.
  Descriptor file(isInput ? ::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 0)
                          : ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (!file) return addFault(tr("%1 cannot be read: %2").arg(shownPath(path), qt_error_string(errno)));
  if (typeOf(file.get()) == S_IFDIR)
    return addFault(tr("%1 is a folder. Choose a file.").arg(shownPath(path)));
  m_parts.push_back({isInput ? QStringLiteral("(stdin)") : shownFileName(path), {}});
  // Standard input is read from its current position.
  if (isInput || !isStored(file.get())) {
    m_sources.push_back({m_parts.size() - 1, std::move(file)});
  } else {
    m_parts.back().file = std::move(file);
  }
}

void Document::readFromClient(Descriptor descriptor, const QString& name) {
  begin();
  const mode_t type = typeOf(descriptor.get());
  m_isOpenEnded = type != S_IFREG;
  if (type == S_IFIFO) descriptor = withoutWaiting(std::move(descriptor));
  m_parts.push_back({shownText(name), {}});
  m_sources.push_back({0, std::move(descriptor)});
  read();
}

void Document::read() {
  if (m_sources.empty()) return finish();
  set(State::Reading);
  m_reader = std::thread(
      [this, sources = std::exchange(m_sources, {}), reading = m_reading] { readSources(sources, reading); });
}

void Document::readOn() {
  m_isWanted = true;
  wake();
  if (m_state == State::Paused) set(State::Reading);
}

// Runs in the reading thread, like the next four.
void Document::readSources(const std::vector<Source>& sources, int reading) {
  qint64 read = 0;
  for (const Source& source : sources) {
    auto copied = std::make_shared<Copied>(copy(source.descriptor.get(), &read, reading));
    if (m_isStopped) return;
    post(reading, [this, part = source.part, copied] { takeCopy(part, copied); });
  }
  post(reading, [this] { finish(); });
}

Document::Copied Document::copy(int descriptor, qint64* read, int reading) {
  PrivateCopy copy;
  bool isPaused = false;
  std::array<char, 65536> block{};
  while (!m_isStopped) {
    const bool pauses = *read >= m_bounds.beforePrint && !m_isWanted;
    if (pauses && !std::exchange(isPaused, true))
      post(reading, [this] {
        if (!m_isWanted) set(State::Paused);
      });
    if (!wait(descriptor, pauses)) continue;
    const ssize_t count = ::read(descriptor, block.data(), block.size());
    if (count < 0 && (errno == EINTR || errno == EAGAIN)) continue;
    if (count < 0) return {{}, tr("%1 cannot be read: %2").arg(QStringLiteral("%1"), qt_error_string(errno))};
    if (count == 0) break;
    *read += count;
    if (*read > m_bounds.whole)
      return {{},
              tr("%1 is larger than %2, the most that can be printed.")
                  .arg(QStringLiteral("%1"), QLocale().formattedDataSize(m_bounds.whole, 0))};
    if (Outcome kept = copy.append(block.data(), count); !kept)
      return {{}, tr("%1 cannot be copied for printing: %2").arg(QStringLiteral("%1"), kept.reason())};
  }
  return {copy.take(), copy.size() == 0 ? tr("%1 is empty. There is nothing to print.") : QString()};
}

// Whether there is something to read; false when the two flags must be checked first.
bool Document::wait(int descriptor, bool isPaused) {
  std::array<pollfd, 2> waits{pollfd{.fd = m_wake.get(), .events = POLLIN, .revents = 0},
                              pollfd{.fd = isPaused ? -1 : descriptor, .events = POLLIN, .revents = 0}};
  if (::poll(waits.data(), waits.size(), -1) < 0) return false;
  if (waits[0].revents == 0) return true;
  eventfd_t count = 0;
  (void)::eventfd_read(m_wake.get(), &count);
  return false;
}

// Does it in the thread of this object, unless another document was chosen meanwhile.
void Document::post(int reading, const std::function<void()>& action) {
  const auto act = [this, reading, action] {
    if (reading == m_reading) action();
  };
  QMetaObject::invokeMethod(this, act, Qt::QueuedConnection);
}

void Document::takeCopy(std::size_t part, const std::shared_ptr<Copied>& copied) {
  QString name = m_parts[part].name;
  if (name.isEmpty()) name = tr("The document");
  if (copied->fault.isNull()) {
    m_parts[part].file = std::move(copied->file);
  } else {
    addFault(copied->fault.arg(name));
  }
}

// Everything that can be read has been read.
void Document::finish() {
  std::erase_if(m_parts, [](const Part& part) { return !part.file; });
  if (m_parts.empty()) return set(m_faults.isEmpty() ? State::None : State::Failed);
  if (!m_isOpenEnded) return set(State::Ready);
  Q_EMIT ended();
}

void Document::confirmEnd() {
  m_isOpenEnded = false;
  if (m_state == State::Reading) finish();
}

QString Document::name() const {
  if (m_parts.empty()) return {};
  const auto others = static_cast<int>(m_parts.size()) - 1;
  const QString& first = m_parts.front().name;
  return others < 1 ? first : tr("%1 and %n more", nullptr, others).arg(first);
}

void Document::replace(int file, Descriptor other) {
  if (m_state != State::Ready) return;
  m_parts.at(static_cast<std::size_t>(file)).file = std::move(other);
  Q_EMIT changed();
}

std::vector<JobFile> Document::files() const {
  std::vector<JobFile> files;
  for (const Part& part : m_parts) {
    if (part.file) files.push_back({.path = pathOf(part.file.get()), .name = part.name});
  }
  return files;
}

}  // namespace kesto
