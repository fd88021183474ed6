// What the command lines share besides the parser.
#pragma once

#include <CLI/CLI.hpp>
#include <charconv>
#include <string>

namespace kesto {

/// Refuses values for all flags of the parser. What "--dry-run=no" does would be hard to guess.
inline void refuseFlagValues(CLI::App& app) {
  for (CLI::Option* option : app.get_options()) {
    if (option->get_expected_max() == 0) option->disable_flag_override();
  }
  for (CLI::App* command : app.get_subcommands({}))
    refuseFlagValues(*command);
}

/// Accepts decimal digits only. The parser itself reads numbers as C does, where 010 is eight.
inline CLI::Validator wholeNumber(int least, int most) {
  const std::string range = std::to_string(least) + " to " + std::to_string(most);
  const auto read = [least, most, range](std::string& text) -> std::string {
    int number = -1;
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    const bool isNumber = error == std::errc() && rest == end && text.front() != '-';
    if (!isNumber || number < least || number > most) return "is no number from " + range;
    text = std::to_string(number);
    return {};
  };
  return {read, range};
}

/// The error message for arguments that the parser does not know; empty when there are none. It names an
/// unknown option, but not an unexpected argument, which may be a secret.
inline std::string faultOfUnknown(const CLI::App& app) {
  for (const std::string& argument : app.remaining(true)) {
    if (argument == "--") continue;  // All arguments after it are files.
    if (!argument.starts_with('-')) return "there is an argument too many";
    return (argument.starts_with("--") ? argument.substr(0, argument.find('=')) : argument.substr(0, 2)) +
           " is no option";
  }
  return {};
}

}  // namespace kesto
