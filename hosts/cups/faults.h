// The texts of faults, in the user's language where the program has a translator for them.
#pragma once

#include <QtCore/QCoreApplication>

namespace kesto {

/// Gives its texts by `tr`. The command line, which installs no translator, says them in English.
struct Faults {
  Q_DECLARE_TR_FUNCTIONS(kesto::Faults)
};

}  // namespace kesto
