// The texts of kesto-lp.
#pragma once

#include <QtCore/QCoreApplication>

namespace kesto {

/// The translation context of these texts.
struct LpTexts {
  Q_DECLARE_TR_FUNCTIONS(LpTexts)
};

}  // namespace kesto
