#include "demo/job_store.h"

#include <QtCore/QFile>
#include <QtCore/QJsonObject>
#include <algorithm>

#include "demo/log.h"

namespace kesto {
namespace {

QString labelOf(const JobTicket& ticket) {
  return QStringLiteral("job %1 from %2").arg(ticket.job).arg(ticket.user);
}

void logJob(const JobTicket& ticket, const QString& event) {
  logLine(labelOf(ticket) + QStringLiteral(": ") + event);
}

// Deletes the document that the job arrived with.
Outcome refuse(const JobTicket& ticket, const QString& path, const QString& reason) {
  logJob(ticket, QStringLiteral("thrown away: ") + reason);
  QFile::remove(path);
  return Outcome::failed(reason);
}

}  // namespace

QString JobStore::newDocumentPath() {
  return QStringLiteral("%1/document-%2").arg(m_heldFolder).arg(++m_documentCount);
}

JobStore::Job* JobStore::jobNumbered(int number) {
  const auto job =
      std::find_if(m_jobs.begin(), m_jobs.end(), [&](const Job& each) { return each.ticket.job == number; });
  return job == m_jobs.end() ? nullptr : &*job;
}

Outcome JobStore::accept(const JobTicket& ticket, const QString& path) {
  Job* known = jobNumbered(ticket.job);
  Job job = known == nullptr ? Job{.ticket = ticket, .documents = {}} : *known;
  if (job.ticket != ticket) return refuse(ticket, path, QStringLiteral("another job has the same number"));
  const Retention retention = ticket.retention();
  if (retention != Retention::HoldOnly) {
    if (!print(job, path)) return refuse(ticket, path, QStringLiteral("cannot print it"));
    logJob(ticket, retention == Retention::PrintSampleAndHold ? QStringLiteral("printed a sample")
                                                              : QStringLiteral("printed"));
  }
  if (retention == Retention::PrintAtOnce) {
    QFile::remove(path);
  } else {
    job.documents.append(path);
    logJob(ticket, ticket.hasPassCode() ? QStringLiteral("held (pass code)") : QStringLiteral("held"));
  }
  known == nullptr ? m_jobs.push_back(job) : static_cast<void>(*known = job);
  return Outcome::done();
}

bool JobStore::print(Job& job, const QString& document) {
  // The folder may contain printouts of an earlier printer.
  QString printout;
  do {
    printout = QStringLiteral("%1/job-%2-%3").arg(m_outputFolder).arg(job.ticket.job).arg(++job.printouts);
  } while (QFile::exists(printout));
  if (QFile::copy(document, printout)) return true;
  logJob(job.ticket, QStringLiteral("%1 cannot be written").arg(printout));
  return false;
}

Release JobStore::release(int number, const QString& passCode) {
  Job* job = jobNumbered(number);
  if (job == nullptr) return Release::NoSuchJob;
  if (job->documents.isEmpty()) return Release::NotHeld;
  if (job->ticket.hasPassCode() && !job->ticket.opensWith(passCode)) {
    logJob(job->ticket, QStringLiteral("not released: wrong pass code"));
    return Release::Refused;
  }
  while (!job->documents.isEmpty()) {
    if (!print(*job, job->documents.front())) return Release::Failed;
    QFile::remove(job->documents.takeFirst());
  }
  logJob(job->ticket, QStringLiteral("released and printed"));
  return Release::Printed;
}

QJsonArray JobStore::list() const {
  QJsonArray list;
  for (const Job& job : m_jobs) {
    const std::optional<QString> account = job.ticket.account();
    list.append(QJsonObject{{QStringLiteral("job"), job.ticket.job},
                            {QStringLiteral("user"), job.ticket.user},
                            {QStringLiteral("name"), job.ticket.name()},
                            {QStringLiteral("account"), account ? QJsonValue(*account) : QJsonValue()},
                            {QStringLiteral("state"),
                             job.documents.isEmpty() ? QStringLiteral("printed") : QStringLiteral("held")}});
  }
  return list;
}

}  // namespace kesto
