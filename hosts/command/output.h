// Checks that the output of a program was written.
#pragma once

#include "platform/outcome.h"

namespace kesto {

/// Fails when anything that was printed could not be written to standard output.
Outcome flushOutput();

/// The exit status of a program that would end with `code`: 1 instead of 0, with a message, when its output
/// could not be written.
int endOfOutput(const char* program, int code);

}  // namespace kesto
