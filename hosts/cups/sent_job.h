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

}  // namespace kesto
