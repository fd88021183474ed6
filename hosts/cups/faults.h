// The texts of faults, in the user's language if the program installs a translator.
#pragma once

#include <QtCore/QCoreApplication>

namespace kesto {

/// The translation context of these texts.
struct Faults {
  Q_DECLARE_TR_FUNCTIONS(kesto::Faults)
};

}  // namespace kesto
