// The jobs of the demo printer: those that it holds and those that it has printed.
#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QStringList>
#include <vector>

#include "demo/job_ticket.h"
#include "platform/outcome.h"

namespace kesto {

/// The result of releasing a held job.
enum class Release : std::uint8_t { Printed, Refused, NotHeld, NoSuchJob, Failed };

/// Keeps held documents in one folder and puts printed ones into another, as "job-N-M" for the Mth printout
/// of job N. Everything that happens to a job is logged, without its pass code.
class JobStore {
 public:
  /// Both folders must exist.
  JobStore(QString heldFolder, QString outputFolder)
      : m_heldFolder(std::move(heldFolder)), m_outputFolder(std::move(outputFolder)) {}

  /// An unused path in the folder of held documents.
  QString newDocumentPath();
  /// Takes the document at `path`, which `newDocumentPath` returned, and prints or holds it. A second
  /// document of a job is added to it. Fails, and deletes the document, when it does not really belong to the
  /// job or cannot be printed.
  Outcome accept(const JobTicket& ticket, const QString& path);
  /// Prints a held job; one with a pass code needs the right one.
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
