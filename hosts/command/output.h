// Whether what a program prints has arrived.
#pragma once

#include "platform/outcome.h"

namespace kesto {

/// Fails when standard output has not taken all that was printed, by whatever means.
Outcome flushOutput();

/// How a program ends that would end with `code`: with 1 instead of 0, and a message, when standard output
/// has not taken all that was printed.
int endOfOutput(const char* program, int code);

}  // namespace kesto
