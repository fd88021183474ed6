#include "hosts/cups/sent_job.h"

#include <QtCore/QRegularExpression>

#include <array>

#include "hosts/cups/faults.h"
#include "hosts/cups/option_array.h"

namespace kesto {
namespace {

constexpr char jobsResource[] = "/jobs";

Ipp requestAbout(const SentJob& job, ipp_op_t operation) {
  if (isPrinterUri(job.queue)) return requestTo(operation, uriOfQueue(job.queue), job.number);
  Ipp request(ippNewRequest(operation));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr,
               "ipp://localhost/jobs/" + QByteArray::number(job.number));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
  return request;
}

// A server identifies jobs by their numbers alone, so the job's queue has to be checked.
Outcome findOnQueue(PrintServer& server, const SentJob& job) {
  if (job.queue.isNull()) return Outcome::done();
  const Ipp request = requestAbout(job, IPP_OP_GET_JOB_ATTRIBUTES);
  askFor(request.get(), std::array{"job-printer-uri"});
  Ipp reply;
  if (Outcome asked = server.ask(request.get(), &reply); !asked) return asked;
  ipp_attribute_t* printer = ippFindAttribute(reply.get(), "job-printer-uri", IPP_TAG_URI);
  if (printer == nullptr) return Outcome::done();
  const QString uri = QString::fromUtf8(ippGetString(printer, 0, nullptr)).section(u'/', 3);
  const QString wanted = QString::fromUtf8(uriOfQueue(job.queue)).section(u'/', 3);
  if (uri.section(u'/', 1).compare(wanted.section(u'/', 1), Qt::CaseInsensitive) == 0) return Outcome::done();
  return Outcome::failed(Faults::tr("it belongs to another printer"));
}

Outcome orderAbout(PrintServer& server, const SentJob& job, ipp_t* request, const QString& attempt) {
  Outcome ordered = findOnQueue(server, job);
  Ipp reply;
  if (ordered) ordered = server.order(request, jobsResource, &reply);
  return ordered ? ordered : Outcome::failed(attempt.arg(job.number).arg(ordered.reason()));
}

// One attribute of a reply after the other, as what C++ has for it.
class Attributes {
 public:
  explicit Attributes(const Ipp& reply) : m_reply(reply.get()) {}
  int number(const char* name) const { return qMax(0, ippGetInteger(find(name), 0)); }
  QString text(const char* name) const { return texts(name).value(0); }
  QStringList texts(const char* name) const { return textsOf(find(name)); }

 private:
  ipp_attribute_t* find(const char* name) const { return ippFindAttribute(m_reply, name, IPP_TAG_ZERO); }
  ipp_t* m_reply;
};

Outcome askAboutPrinter(PrintServer& server, const SentJob& job, JobReport* report) {
  static constexpr const char* asked[] = {"printer-state", "printer-state-reasons", "printer-state-message"};
  const Ipp request = requestTo(IPP_OP_GET_PRINTER_ATTRIBUTES, uriOfQueue(job.queue));
  askFor(request.get(), asked);
  Ipp reply;
  if (Outcome answered = server.ask(request.get(), &reply); !answered) return answered;
  const Attributes printer(reply);
  report->isPrinterStopped = printer.number("printer-state") == IPP_PSTATE_STOPPED;
  report->printerReasons = printer.texts("printer-state-reasons");
  report->printerMessage = printer.text("printer-state-message");
  return Outcome::done();
}

// The server lists jobs in the order in which it prints them.
Outcome countJobsAhead(PrintServer& server, const SentJob& job, JobReport* report) {
  static constexpr const char* asked[] = {"job-id", "job-state"};
  const Ipp request = requestTo(IPP_OP_GET_JOBS, uriOfQueue(job.queue));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr, "not-completed");
  askFor(request.get(), asked);
  Ipp reply;
  if (Outcome answered = server.ask(request.get(), &reply, IPP_STATUS_ERROR_NOT_FOUND); !answered)
    return answered;
  for (ipp_attribute_t* each = ippFirstAttribute(reply.get()); each != nullptr;
       each = ippNextAttribute(reply.get())) {
    const QByteArrayView name(ippGetName(each));
    const int value = ippGetInteger(each, 0);
    if (name == "job-id" && value == job.number) break;
    if (name == "job-state" && (value == IPP_JSTATE_PENDING || value == IPP_JSTATE_PROCESSING))
      ++report->jobsAhead;
  }
  return Outcome::done();
}

}  // namespace

std::optional<SentJob> SentJob::of(const QString& text) {
  static const QRegularExpression form(QStringLiteral(R"(^(?:(.+)-)?([0-9]{1,9})$)"));
  const QRegularExpressionMatch match = form.match(text);
  const SentJob job{.queue = match.captured(1), .number = match.captured(2).toInt()};
  return job.number > 0 ? std::optional(job) : std::nullopt;
}

Outcome restartJob(PrintServer& server, const SentJob& job) {
  const Ipp request = requestAbout(job, IPP_OP_RESTART_JOB);
  return orderAbout(server, job, request.get(), Faults::tr("cannot restart job %1: %2"));
}

Outcome changeJob(PrintServer& server, const SentJob& job, QMap<QString, QString> options) {
  const QString fault = Faults::tr("cannot change job %1: %2");
  // Among the attributes, the scheduler refuses a time, which is not a keyword, and keeps the old value for
  // other words. Hold-Job sets both.
  const QString hold = QStringLiteral("job-hold-until");
  if (options.contains(hold) && options.value(hold) != u"no-hold") {
    const Ipp request = requestAbout(job, IPP_OP_HOLD_JOB);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-hold-until", nullptr,
                 options.take(hold).toUtf8().constData());
    if (Outcome held = orderAbout(server, job, request.get(), fault); !held) return held;
  }
  if (options.isEmpty()) return Outcome::done();
  const Ipp request = requestAbout(job, IPP_OP_SET_JOB_ATTRIBUTES);
  OptionArray(options).encode(request.get(), {IPP_TAG_OPERATION, IPP_TAG_JOB, IPP_TAG_SUBSCRIPTION});
  return orderAbout(server, job, request.get(), fault);
}

Outcome cancelJob(PrintServer& server, const SentJob& job) {
  const Ipp request = requestAbout(job, IPP_OP_CANCEL_JOB);
  return orderAbout(server, job, request.get(), Faults::tr("cannot cancel job %1: %2"));
}

Outcome reportJob(PrintServer& server, const SentJob& job, std::optional<JobReport>* report) {
  static constexpr const char* asked[] = {
      "job-state",      "job-state-reasons", "job-state-message",         "job-printer-state-message",
      "job-hold-until", "job-impressions",   "job-impressions-completed", "job-media-sheets-completed"};
  report->reset();
  const Ipp request = requestAbout(job, IPP_OP_GET_JOB_ATTRIBUTES);
  askFor(request.get(), asked);
  Ipp reply;
  if (Outcome answered = server.ask(request.get(), &reply, IPP_STATUS_ERROR_NOT_FOUND); !answered)
    return answered;
  const Attributes attributes(reply);
  JobReport found{.state = attributes.number("job-state"),
                  .reasons = attributes.texts("job-state-reasons"),
                  .message = attributes.text("job-state-message"),
                  .driverMessage = attributes.text("job-printer-state-message"),
                  .holdUntil = attributes.text("job-hold-until"),
                  .page = qMax(attributes.number("job-impressions-completed"),
                               attributes.number("job-media-sheets-completed")),
                  .pages = attributes.number("job-impressions")};
  if (found.state == 0) return Outcome::done();
  Outcome done = Outcome::done();
  if (!found.isFinished()) done = askAboutPrinter(server, job, &found);
  if (done && found.state == IPP_JSTATE_PENDING) done = countJobsAhead(server, job, &found);
  if (done) *report = found;
  return done;
}

}  // namespace kesto
