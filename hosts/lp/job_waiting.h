// kesto-lp --wait: what becomes of the job after it is sent.
#pragma once

#include "hosts/lp/options.h"
#include "hosts/session/job_watch.h"

namespace kesto {

/// Waits for the end of the job, or as long as the options allow. Prints a line for each change, but none
/// with the option -s. Succeeds when the job is printed, or is held at the printer; otherwise an error says
/// why.
ExitCode waitForJob(const Options& options, const SentJob& job, const PrinterHold& hold);

}  // namespace kesto
