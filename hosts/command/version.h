// What a program prints for --version.
#pragma once

#include <string>

namespace kesto {

/// The program's name and the version of this system: "kesto-lp 0.2.0".
std::string versionOf(const std::string& program);

}  // namespace kesto
