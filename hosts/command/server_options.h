// The options of a command line that name the print server.
#pragma once

#include <CLI/CLI.hpp>
#include <QtCore/QString>
#include <array>
#include <charconv>
#include <chrono>
#include <string>

#include "hosts/command/command_texts.h"

namespace kesto {

/// Adds "-h HOST[:PORT]", "-U USER", "-E" and "--timeout SECONDS". They fill the members `address`, `user`,
/// `encrypt` and `limit` of `server`, which must outlive the parsing. Returns the options that take a name.
template <class Server>
std::array<CLI::Option*, 2> addServerOptions(CLI::App& app, Server* server) {
  const auto addName = [&app](const std::string& option, QString* name) {
    return app.add_option_function<std::string>(
        option, [name](const std::string& given) { *name = QString::fromStdString(given); });
  };
  app.add_flag("-E", server->encrypt);
  const auto setLimit = [server](const std::string& text) {
    double seconds = 0;
    const char* end = text.data() + text.size();
    const bool isNumber = std::from_chars(text.data(), end, seconds).ptr == end;
    if (!isNumber || !(seconds >= 0.1 && seconds <= 3600))
      throw CLI::ValidationError("--timeout",
                                 CommandTexts::tr("must be between 0.1 and 3600 seconds").toStdString());
    server->limit = std::chrono::milliseconds(static_cast<int>(seconds * 1000));
  };
  app.add_option_function<std::string>("--timeout", setLimit);
  return {addName("-h", &server->address), addName("-U", &server->user)};
}

}  // namespace kesto
