#include "hosts/cups/sent_job.h"

#include <QtCore/QRegularExpression>

#include "hosts/cups/option_array.h"

namespace kesto {
namespace {

constexpr char jobsResource[] = "/jobs";

Ipp requestAbout(const SentJob& job, ipp_op_t operation) {
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
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
               "job-printer-uri");
  Ipp reply;
  if (Outcome asked = server.ask(request.get(), &reply); !asked) return asked;
  ipp_attribute_t* printer = ippFindAttribute(reply.get(), "job-printer-uri", IPP_TAG_URI);
  if (printer == nullptr) return Outcome::done();
  const QString uri = QString::fromUtf8(ippGetString(printer, 0, nullptr)).section(u'/', 3);
  const QString wanted = QString::fromUtf8(uriOfQueue(job.queue)).section(u'/', 3);
  if (uri.section(u'/', 1).compare(wanted.section(u'/', 1), Qt::CaseInsensitive) == 0) return Outcome::done();
  return Outcome::failed(QStringLiteral("it belongs to another printer"));
}

Outcome orderAbout(PrintServer& server, const SentJob& job, ipp_t* request, const QString& attempt) {
  Outcome ordered = findOnQueue(server, job);
  Ipp reply;
  if (ordered) ordered = server.order(request, jobsResource, &reply);
  return ordered ? ordered : Outcome::failed(attempt.arg(job.number).arg(ordered.reason()));
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
  return orderAbout(server, job, request.get(), QStringLiteral("cannot restart job %1: %2"));
}

Outcome changeJob(PrintServer& server, const SentJob& job, QMap<QString, QString> options) {
  const QString fault = QStringLiteral("cannot change job %1: %2");
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

}  // namespace kesto
