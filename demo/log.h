// The log of the demo printer, on standard error.
#pragma once

#include <QtCore/QString>

namespace kesto {

/// Writes one line with control characters escaped.
void logLine(const QString& line);

}  // namespace kesto
