// The last step of kesto-lp: the job goes to its queue.
#pragma once

#include "hosts/cups/print_job.h"
#include "hosts/lp/options.h"
#include "platform/print_settings.h"

namespace kesto {

/// The job's own name: the one that was given, else that of its first file, else one for standard input.
QString titleOf(const Options& options);

/// Sends the job that the options describe with the panel's settings, tells of a long upload at a terminal,
/// and prints the job's number unless it is to be silent.
Outcome submit(PrintServer& server, const cups_dest_t& destination, const Options& options,
               const PrintSettings* settings);

}  // namespace kesto
