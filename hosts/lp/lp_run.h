// What kesto-lp does once its command line is read.
#pragma once

#include "hosts/lp/options.h"

namespace kesto {

/// Does what the options ask for, tells the user on standard output and error, and returns how it ended.
ExitCode run(const Options& options);

}  // namespace kesto
