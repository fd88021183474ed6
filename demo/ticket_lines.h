// What the demo queue's filter tells the printer of a job, in the form that printer.h describes.
#pragma once

#include <string>

namespace kesto {

/// The lines "@KESTO name=value" of a job and of the print settings among its options, and the empty line
/// behind them. `options` is a filter's fifth argument; other options are left out.
std::string ticketLines(const char* job, const char* user, const char* title, const char* options);

}  // namespace kesto
