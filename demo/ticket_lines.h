// What the demo queue's filter sends to the printer about a job, in the form that printer.h describes.
#pragma once

#include <string>

namespace kesto {

/// The lines "@KESTO name=value" for a job and for the print settings among its options, and the empty line
/// after them. `options` is a filter's fifth argument; other options are left out.
std::string ticketLines(const char* job, const char* user, const char* title, const char* options);

}  // namespace kesto
