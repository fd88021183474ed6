// What happens at the demo printer, told on standard error.
#pragma once

#include <QtCore/QString>

namespace kesto {

/// The text without control characters: names of jobs and users come from anyone, and a terminal obeys.
QString shownText(QString text);

/// Writes one line, as `shownText`.
void logLine(const QString& line);

}  // namespace kesto
