// The command line of kesto-demo-printer.
#pragma once

#include <QtCore/QString>
#include <cstdint>
#include <optional>

#include "demo/demo_printer.h"

namespace kesto {

/// What the program has to do.
struct DemoCommand {
  enum class Kind : std::uint8_t { Run, ListMisbehaviours, Jobs, Release, Fault };

  Kind kind = Kind::Run;
  DemoSetup setup;  ///< For Jobs and Release only the directory, for Fault the fault as well.
  bool json = false;
  int job = 0;       ///< For Release, as is the pass code.
  QString passCode;  ///< Empty for none.
};

/// Reads the command line and the files that it names, and hides a pass code on it from other users. None
/// when there is something to do; otherwise the exit status, after the help or a fault has been printed.
std::optional<int> parseDemoCommand(int argc, char** argv, DemoCommand* command);

}  // namespace kesto
