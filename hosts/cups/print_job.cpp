#include "hosts/cups/print_job.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QtCore/QFile>
#include <QtCore/QMimeDatabase>
#include <array>
#include <cerrno>

#include "hosts/cups/auth_info.h"
#include "hosts/cups/faults.h"
#include "platform/shown_text.h"
#include "platform/text_encoding.h"

namespace kesto {
namespace {

constexpr qsizetype documentBlock = 65536;
constexpr qsizetype longestName = 255;
// How often a wait for the document's writer checks whether to go on.
constexpr int questionMs = 200;

// A name that the scheduler accepts. It replaces a job's name that is longer or contains control characters.
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
  bool isStandardInput = false;
  qint64 size = -1;
};

// Opening a named pipe waits for a writer; a signal ends the wait if the job should stop.
int openForReading(const QByteArray& path, const std::function<bool()>& goesOn) {
  int descriptor = -1;
  do
    descriptor = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
  while (descriptor < 0 && errno == EINTR && goesOn());
  return descriptor;
}

bool isFolder(const QFile& file) {
  struct stat info {};
  return ::fstat(file.handle(), &info) == 0 && S_ISDIR(info.st_mode);
}

Outcome openDocument(const JobFile& job, const std::function<bool()>& goesOn, Document* document) {
  document->file = std::make_unique<QFile>();
  QFile& file = *document->file;
  if (job.path == "-") {
    document->name = QStringLiteral("(stdin)");
    document->isStandardInput = true;  // It has no name of its own.
    // Earlier reads have consumed whole lines only.
    if (file.open(STDIN_FILENO, QIODevice::ReadOnly)) return Outcome::done();
    return Outcome::failed(Faults::tr("cannot read standard input"));
  }
  document->name = job.name.isNull() ? shownFileName(job.path) : job.name;
  const QString path = shownPath(job.path);
  const int descriptor = openForReading(job.path, goesOn);
  if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle))
    return Outcome::failed(path + QStringLiteral(": ") + qt_error_string(errno));
  if (isFolder(file)) return Outcome::failed(Faults::tr("%1: is a folder").arg(path));
  if (!file.isSequential()) document->size = file.size();
  return Outcome::done();
}

Outcome openDocuments(const std::vector<JobFile>& files, const std::function<bool()>& goesOn,
                      std::vector<Document>* documents) {
  for (const JobFile& file : files.empty() ? std::vector<JobFile>{{.path = "-"}} : files) {
    if (Outcome opened = openDocument(file, goesOn, &documents->emplace_back()); !opened) return opened;
  }
  return Outcome::done();
}

// Reads what is available, without Qt, which would wait until the block is full. Returns a negative value and
// EINTR while nothing is available.
ssize_t readSome(int descriptor, QByteArray* block) {
  pollfd input{.fd = descriptor, .events = POLLIN, .revents = 0};
  if (::poll(&input, 1, questionMs) > 0)
    return ::read(descriptor, block->data(), static_cast<std::size_t>(block->size()));
  errno = EINTR;
  return -1;
}

// `*read` fails when the document could not be read or the user stopped the job.
Outcome copyDocument(const Document& document, const HttpRequest::Sink& sink,
                     const std::function<bool(qint64)>& progress, Outcome* read) {
  qint64 sent = 0;
  QByteArray block(documentBlock, Qt::Uninitialized);
  for (;;) {
    if (!progress(sent)) return *read = Outcome::failed(Faults::tr("the job was stopped"));
    const ssize_t count = readSome(document.file->handle(), &block);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0)
      return *read = Outcome::failed(document.name + QStringLiteral(": ") + qt_error_string(errno));
    if (count == 0) return Outcome::done();
    if (Outcome taken = sink(block.constData(), count); !taken) return taken;
    sent += count;
  }
}

// A server can abort a job while it receives the document, and still report success.
Outcome outcomeOfState(ipp_t* reply) {
  const int state = ippGetInteger(ippFindAttribute(reply, "job-state", IPP_TAG_ENUM), 0);
  if (state != IPP_JSTATE_ABORTED && state != IPP_JSTATE_CANCELED) return Outcome::done();
  QStringList reasons;
  for (const char* name : {"job-state-message", "job-state-reasons"})
    reasons += textsOf(ippFindAttribute(reply, name, IPP_TAG_ZERO));
  return Outcome::failed(Faults::tr("the print server stopped the job: %1").arg(reasons.join(u", ")));
}

// Names the type that the job says its document has, else what the file's name suggests.
QString refusalOfType(const QString& file, const QByteArray& format) {
  const QMimeDatabase types;
  const QMimeType type = format == CUPS_FORMAT_AUTO
                             ? types.mimeTypeForFile(file, QMimeDatabase::MatchExtension)
                             : types.mimeTypeForName(QString::fromUtf8(format));
  if (!type.isValid() || type.isDefault())
    return Faults::tr("this printer does not accept this type of file");
  return Faults::tr("this printer does not accept this type of file (%1)").arg(type.comment());
}

// A job that is created but not complete; it is cancelled unless it is kept. It is made with single requests,
// because libcups's calls for a job first ask the printer for every attribute, value by value.
class OpenJob {
 public:
  OpenJob(PrintServer& server, const QString& queue)
      : m_server(server), m_queue(queue), m_uri(uriOfQueue(queue)), m_resource(resourceOfQueue(queue)) {}
  ~OpenJob() {
    if (m_id == 0 || m_isKept) return;
    const Ipp request = requestTo(IPP_OP_CANCEL_JOB, m_uri, m_id);
    Ipp reply;
    // If this fails, the server ends the incomplete job by itself.
    (void)m_server.order(request.get(), "/jobs/", &reply);
  }
  OpenJob(const OpenJob&) = delete;
  OpenJob& operator=(const OpenJob&) = delete;

  // Finds out what the printer wants to know of the user. The job may be refused even so.
  Outcome prepare() { return findAuthInfo(m_server, m_queue, &m_authInfo); }

  Outcome create(const QString& title, const OptionArray& options) {
    Ipp request = requestTo(IPP_OP_CREATE_JOB, m_uri);
    addName(request.get(), "job-name", title);
    options.encode(request.get(), {IPP_TAG_OPERATION, IPP_TAG_JOB, IPP_TAG_SUBSCRIPTION});
    addAuthInfo(request.get(), m_authInfo);
    Ipp reply;
    Outcome created = m_server.order(request.get(), m_resource, &reply);
    m_id = qMax(0, ippGetInteger(ippFindAttribute(reply.get(), "job-id", IPP_TAG_INTEGER), 0));
    if (created && m_id == 0)
      created = Outcome::failed(Faults::tr("the print server did not give the job a number"));
    return created ? created : refusal(reply.get(), created);
  }

  Outcome send(Document& document, const QByteArray& format, const OptionArray& options, bool isLast,
               const std::function<bool(qint64)>& progress) {
    const Ipp request = requestTo(IPP_OP_SEND_DOCUMENT, m_uri, m_id);
    if (!document.isStandardInput) addName(request.get(), "document-name", document.name);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr,
                 format.constData());
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "last-document", isLast ? 1 : 0);
    options.encode(request.get(), {IPP_TAG_OPERATION, IPP_TAG_DOCUMENT});
    Outcome read = Outcome::done();
    const auto copy = [&](const HttpRequest::Sink& sink) {
      read = Outcome::done();
      return copyDocument(document, sink, progress, &read);
    };
    Ipp reply;
    Outcome sent = m_server.order(request.get(), m_resource, &reply, copy);
    if (sent) sent = outcomeOfState(reply.get());
    if (sent || !read) return sent;
    const bool isTypeRefused =
        ippGetStatusCode(reply.get()) == IPP_STATUS_ERROR_DOCUMENT_FORMAT_NOT_SUPPORTED;
    const QString reason = isTypeRefused ? refusalOfType(document.name, format) : sent.reason();
    return Outcome::failed(Faults::tr("could not print %1: %2").arg(document.name, reason));
  }

  int keep() {
    m_isKept = true;
    return m_id;
  }

 private:
  static void addName(ipp_t* request, const char* attribute, const QString& name) {
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, attribute, nullptr, nameOf(name).constData());
  }

  // Why there is no job: in our words, followed by those of the printer's administrator or of the server.
  Outcome refusal(ipp_t* reply, const Outcome& created) {
    if (ippGetStatusCode(reply) != IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS)
      return Outcome::failed(Faults::tr("the print server refused the job: %1").arg(created.reason()));
    const Ipp request = requestTo(IPP_OP_GET_PRINTER_ATTRIBUTES, m_uri);
    askFor(request.get(), std::array{"printer-state-message"});
    Ipp state;
    (void)m_server.order(request.get(), m_resource, &state);
    const QString why = QString::fromUtf8(
        ippGetString(ippFindAttribute(state.get(), "printer-state-message", IPP_TAG_TEXT), 0, nullptr));
    if (why.isEmpty()) return Outcome::failed(Faults::tr("\"%1\" is not accepting jobs").arg(m_queue));
    return Outcome::failed(Faults::tr("\"%1\" is not accepting jobs: %2").arg(m_queue, why));
  }

  PrintServer& m_server;
  QString m_queue;
  QByteArray m_uri;
  QByteArray m_resource;
  QStringList m_authInfo;
  int m_id = 0;
  bool m_isKept = false;
};

}  // namespace

Outcome sendJob(PrintServer& server, const QString& queue, const PrintJob& job,
                const UploadProgress& progress, int* jobId) {
  *jobId = 0;
  std::vector<Document> documents;
  const auto goesOn = [&] { return progress(1, 0, -1); };
  if (Outcome opened = openDocuments(job.files, goesOn, &documents); !opened) return opened;
  const OptionArray options(job.options);
  const char* wanted = options.value("document-format");
  const QByteArray format = job.isRaw ? CUPS_FORMAT_RAW : wanted == nullptr ? CUPS_FORMAT_AUTO : wanted;

  OpenJob open(server, queue);
  // A server that is silent now could later create an empty job from the request, so it is asked a question
  // first.
  if (Outcome prepared = open.prepare(); !prepared) return prepared;
  if (Outcome created = open.create(job.title, options); !created) return created;
  for (std::size_t i = 0; i < documents.size(); ++i) {
    Document& document = documents[i];
    const auto report = [&](qint64 sent) { return progress(static_cast<int>(i) + 1, sent, document.size); };
    Outcome sent = open.send(document, format, options, i + 1 == documents.size(), report);
    if (!sent) return sent;
  }
  *jobId = open.keep();
  return Outcome::done();
}

}  // namespace kesto
