// The printer that the next dialog begins with.
#pragma once

#include <QtCore/QString>

namespace kesto {

/// The domain of the user's preferences for what the dialog remembers beside presets.
inline constexpr QLatin1String dialogDomain{"kesto.dialog"};

/// The printer of the user's last job; null when there is none, or when the user has chosen a default printer
/// ("LPDEST", "PRINTER" or in a file "lpoptions"), which then counts.
QString printerToBeginWith();
/// Keeps it, in `dialogDomain` under "printer". One that cannot be kept is no fault of the job.
void keepPrinter(const QString& printer);

}  // namespace kesto
