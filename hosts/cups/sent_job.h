// Changes a job that was sent to a print server.
#pragma once

#include <QtCore/QMap>
#include <optional>

#include "hosts/cups/print_server.h"

namespace kesto {

/// A job as users write it, "12" or "QUEUE-12".
struct SentJob {
  QString queue;  ///< Null when not given.
  int number = 0;

  /// None when the text names no job.
  static std::optional<SentJob> of(const QString& text);
};

/// Prints a finished job again. Fails when the server has no job with this number on this queue, or does not
/// restart it.
Outcome restartJob(PrintServer& server, const SentJob& job);

/// Changes options of the job. Fails when the server has no job with this number on this queue, or does not
/// accept all options.
Outcome changeJob(PrintServer& server, const SentJob& job, QMap<QString, QString> options);

/// Takes the job from the server, or stops its printing. Fails like `changeJob`, and for a finished job.
Outcome cancelJob(PrintServer& server, const SentJob& job);

/// What a server says about a job and, until it is finished, about its printer.
struct JobReport {
  int state = 0;            ///< IPP's job-state.
  QStringList reasons{};    ///< Its job-state-reasons.
  QString message{};        ///< The scheduler's last words about it.
  QString driverMessage{};  ///< Those of its filters and its backend.
  QString holdUntil{};      ///< Its job-hold-until.
  int page = 0;             ///< The page that is printed, 0 when unknown.
  int pages = 0;            ///< All its pages, 0 when unknown.
  int jobsAhead = 0;        ///< The jobs that are printed before it.
  bool isPrinterStopped = false;
  QStringList printerReasons{};  ///< printer-state-reasons.
  QString printerMessage{};

  bool operator==(const JobReport&) const = default;
  /// Whether nothing will change any more: the job is completed, canceled or aborted.
  bool isFinished() const { return state > IPP_JSTATE_STOPPED; }
};

/// Asks for the report; none when the server does not know the job, or not any more. The job has a queue.
Outcome reportJob(PrintServer& server, const SentJob& job, std::optional<JobReport>* report);

}  // namespace kesto
