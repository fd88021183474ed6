// The last step of kesto-lp: the job goes to its queue.
#pragma once

#include <QtCore/QJsonObject>

#include "hosts/cups/print_job.h"
#include "hosts/lp/options.h"
#include "hosts/session/job_options.h"

namespace kesto {

/// The job's own name: the one that was given, else that of its first file, else one for standard input.
QString titleOf(const Options& options);

/// Sends the job that the options describe with the panel's settings (none without a panel), shows the
/// progress of a long upload at a terminal, and stores the job's number in `*id`. Also prints the number, in
/// JSON together with `facts`, unless the options ask for silence.
Outcome submit(PrintServer& server, const QString& queue, const Options& options, const JobOptions& given,
               const QMap<QString, QString>& settings, int* id, QJsonObject facts = {});

}  // namespace kesto
