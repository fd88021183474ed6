// Which options of kesto-lp do not go together.
#pragma once

#include "hosts/lp/options.h"

namespace kesto {

/// What is wrong with options that are right one by one; null for nothing.
QString faultOfOptions(const Options& options);

}  // namespace kesto
