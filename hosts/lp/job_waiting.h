// kesto-lp --wait: what becomes of the job after it is sent.
#pragma once

#include "hosts/lp/options.h"
#include "hosts/session/job_watch.h"

namespace kesto {

/// Waits for the end of the job, or as long as the options allow, and prints a line for each change unless it
/// is to be silent. Success is a job that is printed, or held at the printer; otherwise an error says why.
ExitCode waitForJob(const Options& options, const SentJob& job, const PrinterHold& hold);

}  // namespace kesto
