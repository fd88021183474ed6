// Changes a job that a print server has already.
#pragma once

#include <QtCore/QMap>
#include <optional>

#include "hosts/cups/print_server.h"

namespace kesto {

/// A job as people write it, "12" or "QUEUE-12".
struct SentJob {
  QString queue;  ///< Null when it was not named.
  int number = 0;

  /// None when the text names no job.
  static std::optional<SentJob> of(const QString& text);
};

/// Prints a finished job again. Fails when the server has none of this number on this queue, or does not
/// restart it.
Outcome restartJob(PrintServer& server, const SentJob& job);

/// Gives the job other options, by name. Fails when the server has none of this number on this queue, or does
/// not take them all.
Outcome changeJob(PrintServer& server, const SentJob& job, QMap<QString, QString> options);

}  // namespace kesto
