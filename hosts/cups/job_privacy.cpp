#include "hosts/cups/job_privacy.h"

#include <array>
#include <span>

#include "hosts/cups/faults.h"
#include "hosts/cups/ppd_file.h"
#include "platform/job_keys.h"

namespace kesto {
namespace {

constexpr char stranger[] = "kesto-check";

struct OptionRow {
  const char* key = nullptr;   // of the print settings, after their common prefix
  const char* word = nullptr;  // what it reveals about the job
  const char* prefix = printSettingsPrefix;
  bool isServers = false;  // the server itself adds it to the job

  QByteArray name() const { return QByteArray(prefix) + key; }
};

// The options that every job has.
constexpr std::array anyOptions{
    OptionRow{"kesto-option", QT_TRANSLATE_NOOP("kesto::Faults", "the job's options"), ""},
    OptionRow{"job-originating-user-name", QT_TRANSLATE_NOOP("kesto::Faults", "the user name"), "", true},
    OptionRow{"job-name", QT_TRANSLATE_NOOP("kesto::Faults", "the job's name"), "", true},
};

// One option for each kind of information in a job with Job Handling.
constexpr std::array panelOptions{
    OptionRow{job_keys::jobSuspendKey, QT_TRANSLATE_NOOP("kesto::Faults", "the digest of the pass code")},
    OptionRow{job_keys::jobSuspend2Key, QT_TRANSLATE_NOOP("kesto::Faults", "the pass code")},
    OptionRow{job_keys::spoolTime, QT_TRANSLATE_NOOP("kesto::Faults", "the spool time")},
    OptionRow{job_keys::folderPassword2, QT_TRANSLATE_NOOP("kesto::Faults", "the folder's pass code")},
    OptionRow{job_keys::folderPath, QT_TRANSLATE_NOOP("kesto::Faults", "the folder")},
    OptionRow{job_keys::userNumber, QT_TRANSLATE_NOOP("kesto::Faults", "the user number")},
    OptionRow{job_keys::accountNumber, QT_TRANSLATE_NOOP("kesto::Faults", "the account number")},
    OptionRow{job_keys::userName, QT_TRANSLATE_NOOP("kesto::Faults", "the user name")},
    OptionRow{job_keys::jobName, QT_TRANSLATE_NOOP("kesto::Faults", "the job's name")},
};

// The owner may have to authenticate, for which libcups asks.
Outcome createJob(PrintServer& server, const QString& queue, std::span<const OptionRow> options, int* job) {
  const Ipp request = requestTo(IPP_OP_CREATE_JOB, uriOfQueue(queue));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr, stranger);
  ippAddString(request.get(), IPP_TAG_JOB, IPP_TAG_KEYWORD, "job-hold-until", nullptr, "indefinite");
  for (const OptionRow& row : options) {
    if (row.isServers) continue;
    ippAddString(request.get(), IPP_TAG_JOB, IPP_TAG_NAME, row.name().constData(), nullptr, "0");
  }
  Ipp reply;
  Outcome created = server.order(request.get(), "/", &reply);
  ipp_attribute_t* id = ippFindAttribute(reply.get(), "job-id", IPP_TAG_INTEGER);
  if (created && id == nullptr)
    created = Outcome::failed(Faults::tr("the print server did not give the job a number"));
  if (!created)
    return Outcome::failed(Faults::tr("cannot create a job on \"%1\": %2").arg(queue, created.reason()));
  *job = ippGetInteger(id, 0);
  return Outcome::done();
}

Outcome purgeJob(PrintServer& server, const QString& queue, int job) {
  const Ipp request = requestTo(IPP_OP_CANCEL_JOB, uriOfQueue(queue), job);
  ippAddBoolean(request.get(), IPP_TAG_OPERATION, "purge-job", 1);
  Ipp reply;
  Outcome cancelled = server.order(request.get(), "/", &reply);
  if (cancelled) return cancelled;
  return Outcome::failed(
      Faults::tr("cannot cancel job %1-%2: %3").arg(queue).arg(job).arg(cancelled.reason()));
}

bool hasJob(ipp_t* reply) {
  ipp_attribute_t* each = ippFirstAttribute(reply);
  while (each != nullptr && ippGetGroupTag(each) != IPP_TAG_JOB)
    each = ippNextAttribute(reply);
  return each != nullptr;
}

Outcome lookAtJob(PrintServer& server, const QString& queue, int job, std::span<const OptionRow> options,
                  QStringList* shown) {
  const Ipp request = requestTo(IPP_OP_GET_JOB_ATTRIBUTES, uriOfQueue(queue), job, stranger);
  Ipp reply;
  // Only "forbidden" means that nothing is shown. Any other failure proves nothing.
  Outcome asked = server.ask(request.get(), &reply, IPP_STATUS_ERROR_FORBIDDEN);
  // A user who may see a job sees at least its number.
  if (asked && ippGetStatusCode(reply.get()) != IPP_STATUS_ERROR_FORBIDDEN && !hasJob(reply.get()))
    asked = Outcome::failed(Faults::tr("the print server's answer does not contain the job"));
  if (!asked)
    return Outcome::failed(Faults::tr("cannot find out what other users see: %1").arg(asked.reason()));
  for (const OptionRow& row : options) {
    if (ippFindAttribute(reply.get(), row.name().constData(), IPP_TAG_ZERO) != nullptr)
      shown->append(Faults::tr(row.word));
  }
  return Outcome::done();
}

Outcome askForPolicy(PrintServer& server, const QString& queue, QString* policy) {
  const Ipp request = requestTo(IPP_OP_GET_PRINTER_ATTRIBUTES, uriOfQueue(queue));
  askFor(request.get(), std::array{"printer-op-policy"});
  Ipp reply;
  if (Outcome asked = server.request(request.get(), &reply); !asked) return asked;
  ipp_attribute_t* name = ippFindAttribute(reply.get(), "printer-op-policy", IPP_TAG_NAME);
  *policy = QString::fromUtf8(name == nullptr ? nullptr : ippGetString(name, 0, nullptr));
  return Outcome::done();
}

}  // namespace

Outcome findJobPrivacy(PrintServer& server, const QString& queue, JobPrivacy* privacy) {
  *privacy = {};
  if (Outcome asked = askForPolicy(server, queue, &privacy->policy); !asked) return asked;
  PpdFile ppd;
  if (Outcome fetched = fetchPpdFile(server, queue, &ppd); !fetched) return fetched;
  // Reports only options that jobs of this queue can have.
  const bool hasPanel = ppd && offersJobHandling(*ppd);
  const auto options =
      hasPanel ? std::span<const OptionRow>(panelOptions) : std::span<const OptionRow>(anyOptions);
  int job = 0;
  if (Outcome created = createJob(server, queue, options, &job); !created) return created;
  Outcome looked = lookAtJob(server, queue, job, options, &privacy->shown);
  Outcome cancelled = purgeJob(server, queue, job);
  return looked ? cancelled : looked;
}

}  // namespace kesto
