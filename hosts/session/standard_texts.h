// The values that printers name by the print system's standard keywords: their names, and our texts for them.
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace kesto {

/// The text for a value of a PPD's option, by the PPD's keyword or the standard's name; null for a value that
/// only the printer knows.
QString standardText(const QString& option, const QString& value);

/// The names that PPDs and the standard have for the same value of an option; none for a value that only the
/// printer knows.
QStringList standardNames(const QString& option, const QString& value);

/// A name without letter case and signs, which do not count: "by-pass-tray" is "ByPassTray".
QString plainName(const QString& name);

/// Whether a printer's own text for a value says no more than the standard keyword: "Tray1", "Grayscale".
bool isStandardText(const QString& option, const QString& value, const QString& text);

}  // namespace kesto
