// Our texts for the values that printers name by the print system's standard keywords.
#pragma once

#include <QtCore/QString>

namespace kesto {

/// The text for a value of a PPD's option, by the PPD's keyword or the standard's name; null for a value that
/// only the printer knows.
QString standardText(const QString& option, const QString& value);

/// Whether a printer's own text for a value says no more than the standard keyword: "Tray1", "Grayscale".
bool isStandardText(const QString& option, const QString& value, const QString& text);

}  // namespace kesto
