// What kesto-lp --help prints.
#pragma once

#include <string>

namespace kesto {

/// The options in lines of at most 80 columns.
std::string helpText();

}  // namespace kesto
