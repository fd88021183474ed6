// What the command lines have in common beside the parser.
#pragma once

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "hosts/command/version.h"
#include "platform/shown_text.h"

namespace kesto {

/// Makes "--version" print the version, which ends the parsing as the help does.
inline void addVersion(CLI::App& app, const std::string& program) {
  app.set_version_flag("--version", versionOf(program), "print the version");
}

/// Lets no flag of the parser take a value: "--dry-run=no" would print nothing, or all, or the job.
inline void refuseFlagValues(CLI::App& app) {
  for (CLI::Option* option : app.get_options()) {
    if (option->get_expected_max() == 0) option->disable_flag_override();
  }
  for (CLI::App* command : app.get_subcommands({}))
    refuseFlagValues(*command);
}

/// Accepts only decimal digits, while the parser itself would read 010 as eight. Its message says what
/// `name`, such as "copies", must be.
inline CLI::Validator wholeNumber(const std::string& name, int least, int most) {
  const auto read = [name, least, most](std::string& text) -> std::string {
    int number = -1;
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    const bool isNumber = error == std::errc() && rest == end && text.front() != '-';
    if (!isNumber || number < least || number > most)
      return name + " must be between " + std::to_string(least) + " and " + std::to_string(most);
    text = std::to_string(number);
    return {};
  };
  return {read, std::to_string(least) + " to " + std::to_string(most)};
}

/// Accepts only one of the words. Its message names them.
inline CLI::Validator oneOf(const std::vector<std::string>& words) {
  std::string list;
  for (std::size_t i = 0; i < words.size(); ++i)
    list += (i == 0 ? "" : i + 1 == words.size() ? " or " : ", ") + words[i];
  const auto check = [words, list](const std::string& word) {
    return std::ranges::find(words, word) == words.end() ? "must be " + list : std::string();
  };
  return {check, list};
}

/// What is wrong with the arguments that the parser does not know; empty for nothing. An unknown option is
/// named, an unexpected argument is not: it may be a secret.
inline std::string faultOfUnknown(const CLI::App& app) {
  for (const std::string& argument : app.remaining(true)) {
    if (argument == "--") continue;  // Only files follow it.
    if (!argument.starts_with('-')) return "unexpected argument";
    const std::size_t length = argument.starts_with("--") ? argument.find('=') : 2;
    return "unknown option " + argument.substr(0, length);
  }
  return {};
}

/// What is wrong with a command line, in our words where the parser's are hard to read.
inline std::string faultOf(const CLI::App& app, const CLI::ParseError& error) {
  std::string text = error.what();
  if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) return faultOfUnknown(app);
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
    const std::size_t flag = text.find(" was given a disallowed flag override");
    return flag == std::string::npos ? text.substr(0, text.find(':')) + " requires a value"
                                     : "--" + text.substr(0, flag) + " takes no value";
  }
  constexpr std::string_view excludes = " excludes ";
  const std::size_t place = text.find(excludes);
  if (dynamic_cast<const CLI::ExcludesError*>(&error) == nullptr || place == std::string::npos) return text;
  return text.substr(0, place) + " cannot be used with " + text.substr(place + excludes.size());
}

/// Prints the fault of a program's command line on standard error. Answers the exit code of wrong usage.
inline int failUsage(const std::string& program, const std::string& fault) {
  std::cerr << program << ": " << shownText(QString::fromStdString(fault)).toStdString() << "\nTry '"
            << program << " --help'.\n";
  return 2;
}

}  // namespace kesto
