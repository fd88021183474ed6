// The command line of kesto-demo-printer.
#pragma once

#include <QtCore/QString>
#include <cstdint>
#include <optional>

#include "demo/demo_printer.h"

namespace kesto {

/// What the program is to do.
struct DemoCommand {
  enum class Kind : std::uint8_t { Run, ListMisbehaviours, Jobs, Release };

  Kind kind = Kind::Run;
  DemoSetup setup;  ///< Of Jobs and Release only the directory.
  bool json = false;
  int job = 0;       ///< Of Release, as the rest.
  QString passCode;  ///< Empty for none.
};

/// Reads the command line, and the files that it names, and hides a pass code in it from other users' eyes.
/// None when there is something to do; otherwise the program ends with this code, the help or the fault
/// having been printed.
std::optional<int> parseDemoCommand(int argc, char** argv, DemoCommand* command);

}  // namespace kesto
