// What kesto-lp does after it has read its command line.
#pragma once

#include "hosts/lp/options.h"

namespace kesto {

/// Does what the options ask for, reports on standard output and error, and returns the exit status.
ExitCode run(Options& options);

}  // namespace kesto
