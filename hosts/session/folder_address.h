// The address at which a printer is asked for its folders.
#pragma once

#include <QtCore/QString>

namespace kesto {

/// Whether a text can stand for a printer: a host name or an address, with a port where it is not the usual
/// one. The panel asks nobody at another, and says nothing.
bool isPrinterAddress(const QString& text);

}  // namespace kesto
