// The jobs at the demo printer: those it holds and those it printed.
#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QStringList>
#include <vector>

#include "demo/job_ticket.h"
#include "platform/outcome.h"

namespace kesto {

/// What came of asking for a held job.
enum class Release : std::uint8_t { Printed, Refused, NotHeld, NoSuchJob, Failed };

/// Keeps held documents in one folder and puts printed ones into another, as "job-N-M" for the Mth printout
/// of job N. Everything that happens to a job is logged, without its pass code.
class JobStore {
 public:
  /// Both folders are there already.
  JobStore(QString heldFolder, QString outputFolder)
      : m_heldFolder(std::move(heldFolder)), m_outputFolder(std::move(outputFolder)) {}

  /// A path in the folder of held documents that is not in use yet.
  QString newDocumentPath();
  /// Takes the document at `path`, one of `newDocumentPath`, and prints or holds it. A second document of a
  /// job joins it. One that only claims to be of the job, or cannot be printed, is thrown away: a failure.
  Outcome accept(const JobTicket& ticket, const QString& path);
  /// Prints a held job; one with a pass code only with this.
  Release release(int job, const QString& passCode);
  /// An object for each job, in order of arrival: "job", "user", "name", "account" (or null) and "state".
  QJsonArray list() const;

 private:
  struct Job {
    JobTicket ticket;
    QStringList documents;  // held, by path
    int printouts = 0;
  };

  Job* jobNumbered(int number);
  bool print(Job& job, const QString& document);

  QString m_heldFolder;
  QString m_outputFolder;
  std::vector<Job> m_jobs;
  int m_documentCount = 0;
};

}  // namespace kesto
