// The options of a command line that name the print server.
#pragma once

#include <CLI/CLI.hpp>
#include <QtCore/QString>
#include <array>
#include <chrono>
#include <cmath>
#include <string>

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
  const auto setLimit = [server](double seconds) {
    if (std::isnan(seconds)) throw CLI::ValidationError("--timeout", "must be a number");
    server->limit = std::chrono::milliseconds(static_cast<int>(seconds * 1000));
  };
  app.add_option_function<double>("--timeout", setLimit)->check(CLI::Range(0.1, 3600.0));
  return {addName("-h", &server->address), addName("-U", &server->user)};
}

}  // namespace kesto
