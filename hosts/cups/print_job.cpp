#include "hosts/cups/print_job.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <cerrno>

#include "hosts/cups/faults.h"
#include "platform/text_encoding.h"

namespace kesto {
namespace {

constexpr qsizetype blockSize = 65536;
constexpr qsizetype longestName = 255;
// How often it is asked whether to go on while nobody writes the document.
constexpr int questionMs = 200;

struct FreeDestInfo {
  void operator()(cups_dinfo_t* info) const { cupsFreeDestInfo(info); }
};
using DestInfo = std::unique_ptr<cups_dinfo_t, FreeDestInfo>;

// libcups's option array, freed with its owner.
class Options {
 public:
  Options() = default;
  ~Options() { cupsFreeOptions(m_count, m_options); }
  Options(const Options&) = delete;
  Options& operator=(const Options&) = delete;

  void add(const char* name, const char* value) { m_count = cupsAddOption(name, value, m_count, &m_options); }
  bool has(const char* name) const { return cupsGetOption(name, m_count, m_options) != nullptr; }
  int count() const { return m_count; }
  cups_option_t* data() const { return m_options; }

 private:
  int m_count = 0;
  cups_option_t* m_options = nullptr;
};

// A name as the scheduler takes it: it gives a job whose name is longer, or holds control characters, a name
// of its own.
QByteArray nameOf(const QString& text) {
  QString name = text;
  for (QChar& character : name) {
    if (character.unicode() < 0x20 || character.unicode() == 0x7F) character = u' ';
  }
  return bytesOfText(name, TextEncoding::Utf8, name.size(), longestName, '?');
}

// One document of a job, open for reading.
struct Document {
  std::unique_ptr<QFile> file;
  QString name;
  qint64 size = -1;
};

// Waits for a writer where the file is a pipe with a name; a signal ends the wait when it is to be given up.
int openForReading(const QString& path, const std::function<bool()>& goesOn) {
  int descriptor = -1;
  do
    descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
  while (descriptor < 0 && errno == EINTR && goesOn());
  return descriptor;
}

Outcome openDocument(const QString& path, const std::function<bool()>& goesOn, Document* document) {
  document->file = std::make_unique<QFile>();
  QFile& file = *document->file;
  if (path == u"-") {
    document->name = QStringLiteral("(stdin)");
    // What was read of it before ends where a line did.
    if (file.open(STDIN_FILENO, QIODevice::ReadOnly)) return Outcome::done();
    return Outcome::failed(Faults::tr("standard input cannot be read"));
  }
  document->name = QFileInfo(path).fileName();
  if (QFileInfo(path).isDir()) return Outcome::failed(Faults::tr("%1: is a folder").arg(path));
  const int descriptor = openForReading(path, goesOn);
  if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle))
    return Outcome::failed(path + QStringLiteral(": ") + qt_error_string(errno));
  if (!file.isSequential()) document->size = file.size();
  return Outcome::done();
}

Outcome openDocuments(const QStringList& paths, const std::function<bool()>& goesOn,
                      std::vector<Document>* documents) {
  for (const QString& path : paths.isEmpty() ? QStringList{QStringLiteral("-")} : paths) {
    if (Outcome opened = openDocument(path, goesOn, &documents->emplace_back()); !opened) return opened;
  }
  return Outcome::done();
}

// Reads what there is, past Qt, whose reading waits until the block is full. Negative with EINTR while there
// is nothing yet.
ssize_t readSome(int descriptor, QByteArray* block) {
  pollfd input{.fd = descriptor, .events = POLLIN, .revents = 0};
  if (::poll(&input, 1, questionMs) > 0)
    return ::read(descriptor, block->data(), static_cast<std::size_t>(block->size()));
  errno = EINTR;
  return -1;
}

// A job that is created and not yet whole; cancelled unless it is kept.
class OpenJob {
 public:
  OpenJob(PrintServer& server, cups_dest_t& destination, cups_dinfo_t* info)
      : m_server(server), m_destination(destination), m_info(info) {}
  ~OpenJob() {
    if (m_id > 0 && !m_isKept) cupsCancelDestJob(m_server.http(), &m_destination, m_id);
  }
  OpenJob(const OpenJob&) = delete;
  OpenJob& operator=(const OpenJob&) = delete;

  Outcome create(const QString& title, const Options& options) {
    const ipp_status_t status = cupsCreateDestJob(m_server.http(), &m_destination, m_info, &m_id,
                                                  nameOf(title).constData(), options.count(), options.data());
    if (status <= IPP_STATUS_OK_EVENTS_COMPLETE && m_id > 0) return Outcome::done();
    return lastCupsError(Faults::tr("the job is not taken"));
  }

  Outcome send(Document& document, const QByteArray& format, const Options& options, bool isLast,
               const std::function<bool(qint64)>& progress) {
    const QString attempt = Faults::tr("%1 is not taken").arg(document.name);
    if (cupsStartDestDocument(m_server.http(), &m_destination, m_info, m_id,
                              nameOf(document.name).constData(), format.constData(), options.count(),
                              options.data(), isLast ? 1 : 0) != HTTP_STATUS_CONTINUE) {
      return lastCupsError(attempt);
    }
    qint64 sent = 0;
    QByteArray block(blockSize, Qt::Uninitialized);
    for (;;) {
      if (!progress(sent)) return Outcome::failed(Faults::tr("the job was stopped"));
      const ssize_t count = readSome(document.file->handle(), &block);
      if (count < 0 && errno == EINTR) continue;
      if (count < 0) return Outcome::failed(document.name + QStringLiteral(": ") + qt_error_string(errno));
      if (count == 0) break;
      if (cupsWriteRequestData(m_server.http(), block.constData(), static_cast<std::size_t>(count)) !=
          HTTP_STATUS_CONTINUE) {
        return lastCupsError(attempt);
      }
      sent += count;
    }
    const ipp_status_t status = cupsFinishDestDocument(m_server.http(), &m_destination, m_info);
    // Without an answer libcups leaves the status of an earlier one.
    if (status > IPP_STATUS_OK_EVENTS_COMPLETE || httpGetStatus(m_server.http()) != HTTP_STATUS_OK) {
      return lastCupsError(attempt);
    }
    return Outcome::done();
  }

  int keep() {
    m_isKept = true;
    return m_id;
  }

 private:
  PrintServer& m_server;
  cups_dest_t& m_destination;
  cups_dinfo_t* m_info;
  int m_id = 0;
  bool m_isKept = false;
};

// The job's own options, then those that the user keeps for the queue.
void gatherOptions(const PrintJob& job, const cups_dest_t& destination, Options* options) {
  for (auto it = job.options.begin(); it != job.options.end(); ++it) {
    options->add(it.key().toUtf8().constData(), it.value().toUtf8().constData());
  }
  for (int i = 0; i < destination.num_options; ++i) {
    const cups_option_t& option = destination.options[i];
    if (!options->has(option.name)) options->add(option.name, option.value);
  }
}

}  // namespace

QMap<QString, QString> parseJobOptions(const QString& text) {
  cups_option_t* parsed = nullptr;
  const int count = cupsParseOptions(text.toUtf8().constData(), 0, &parsed);
  QMap<QString, QString> options;
  for (int i = 0; i < count; ++i) {
    options.insert(QString::fromUtf8(parsed[i].name), QString::fromUtf8(parsed[i].value));
  }
  cupsFreeOptions(count, parsed);
  return options;
}

Outcome sendJob(PrintServer& server, cups_dest_t& destination, const PrintJob& job,
                const UploadProgress& progress, int* jobId) {
  *jobId = 0;
  std::vector<Document> documents;
  const auto goesOn = [&] { return progress(1, 0, -1); };
  if (Outcome opened = openDocuments(job.files, goesOn, &documents); !opened) return opened;
  const DestInfo info(cupsCopyDestInfo(server.http(), &destination));
  if (!info)
    return lastCupsError(Faults::tr("the queue %1 cannot be asked").arg(QString::fromUtf8(destination.name)));
  Options options;
  gatherOptions(job, destination, &options);
  const QString format =
      job.options.value(QStringLiteral("document-format"), QStringLiteral(CUPS_FORMAT_AUTO));

  OpenJob open(server, destination, info.get());
  if (Outcome created = open.create(job.title, options); !created) return created;
  for (std::size_t i = 0; i < documents.size(); ++i) {
    Document& document = documents[i];
    const auto report = [&](qint64 sent) { return progress(static_cast<int>(i) + 1, sent, document.size); };
    Outcome sent = open.send(document, format.toUtf8(), options, i + 1 == documents.size(), report);
    if (!sent) return sent;
  }
  *jobId = open.keep();
  return Outcome::done();
}

}  // namespace kesto
