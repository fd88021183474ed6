// What happens at the demo printer, told on standard error.
#pragma once

#include <QtCore/QString>

namespace kesto {

/// Writes one line, with what a terminal would obey escaped.
void logLine(const QString& line);

}  // namespace kesto
