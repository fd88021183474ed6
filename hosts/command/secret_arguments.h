// Secrets that a user has given on the command line, where other users can see them.
#pragma once

#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace kesto {

/// The options of our programs whose value is a secret, in the forms "--pin 1" and "--pin=1".
inline constexpr std::array<std::string_view, 2> secretOptions{"--pin", "--folder-pin"};

/// Calls `visit(char*& argument, std::size_t start)` for each argument that contains such a value; the value
/// begins at `start`.
template <class Visit>
void forEachSecretArgument(int argc, char** argv, const Visit& visit) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    for (const std::string_view option : secretOptions) {
      if (!argument.starts_with(option)) continue;
      if (argument.size() == option.size()) {
        if (i + 1 < argc) visit(argv[++i], std::size_t{0});
        break;
      }
      if (argument[option.size()] == '=') visit(argv[i], option.size() + 1);
    }
  }
}

/// Overwrites the values. A program calls it after it has read them.
inline void wipeSecretArguments(int argc, char** argv) {
  forEachSecretArgument(argc, argv, [](char* argument, std::size_t start) {
    ::explicit_bzero(argument + start, std::strlen(argument + start));
  });
}

}  // namespace kesto
