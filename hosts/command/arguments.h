// What the command lines have in common beside the parser.
#pragma once

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "hosts/command/command_texts.h"
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

/// Accepts only decimal digits, while the parser itself would read 010 as eight. `fault` is the message, such
/// as "copies must be between %1 and %2", in the context of `CommandTexts`.
inline CLI::Validator wholeNumber(const char* fault, int least, int most) {
  const auto read = [fault, least, most](std::string& text) -> std::string {
    int number = -1;
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    const bool isNumber = error == std::errc() && rest == end && text.front() != '-';
    if (!isNumber || number < least || number > most)
      return CommandTexts::tr(fault).arg(least).arg(most).toStdString();
    text = std::to_string(number);
    return {};
  };
  return {read, std::to_string(least) + " to " + std::to_string(most)};
}

/// Accepts only one of the words. Its message names them.
inline CLI::Validator oneOf(const std::vector<std::string>& words) {
  const auto check = [words](const std::string& word) -> std::string {
    if (std::ranges::find(words, word) != words.end()) return {};
    QStringList list;
    for (const std::string& each : words)
      list.append(QString::fromStdString(each));
    const QString last = list.takeLast();
    return CommandTexts::tr("must be %1 or %2").arg(list.join(QStringLiteral(", ")), last).toStdString();
  };
  return {check, CLI::detail::join(words, "|")};
}

/// What is wrong with the arguments that the parser does not know; empty for nothing. An unknown option is
/// named, an unexpected argument is not: it may be a secret.
inline std::string faultOfUnknown(const CLI::App& app) {
  for (const std::string& argument : app.remaining(true)) {
    if (argument == "--") continue;  // Only files follow it.
    if (!argument.starts_with('-')) return CommandTexts::tr("unexpected argument").toStdString();
    const std::size_t length = argument.starts_with("--") ? argument.find('=') : 2;
    const QString option = QString::fromStdString(argument.substr(0, length));
    return CommandTexts::tr("unknown option %1").arg(option).toStdString();
  }
  return {};
}

/// What is wrong with a command line, in our words where the parser's are hard to read.
inline std::string faultOf(const CLI::App& app, const CLI::ParseError& error) {
  if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) return faultOfUnknown(app);
  const QString text = QString::fromUtf8(error.what());
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
    const QString option = text.section(u':', 0, 0);
    const qsizetype flag = text.indexOf(u" was given a disallowed flag override");
    const QString fault =
        flag >= 0 ? CommandTexts::tr("%1 takes no value").arg(QStringLiteral("--") + text.first(flag))
        : text.contains(u": At Most ") ? CommandTexts::tr("%1 is given twice").arg(option)
                                       : CommandTexts::tr("%1 requires a value").arg(option);
    return fault.toStdString();
  }
  const QStringList words = text.split(u' ');  // "--a excludes --b" or "--a requires --b"
  if (dynamic_cast<const CLI::ExcludesError*>(&error) != nullptr)
    return CommandTexts::tr("%1 cannot be used with %2").arg(words.first(), words.last()).toStdString();
  if (dynamic_cast<const CLI::RequiresError*>(&error) != nullptr)
    return CommandTexts::lack(words.first(), words.last()).toStdString();
  return error.what();
}

/// Prints the fault of a program's command line on standard error. Answers the exit code of wrong usage.
inline int failUsage(const std::string& program, const std::string& fault) {
  const QString advice = CommandTexts::tr("Try '%1 --help'.").arg(QString::fromStdString(program));
  std::cerr << program << ": " << shownText(QString::fromStdString(fault)).toStdString() << '\n'
            << advice.toStdString() << '\n';
  return 2;
}

}  // namespace kesto
