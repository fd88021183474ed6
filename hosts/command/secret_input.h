// Reads secrets that are not given on the command line, where other users could see them.
#pragma once

#include <QtCore/QString>

#include "platform/outcome.h"

namespace kesto {

/// Reads the first line of a file, or of standard input for "-", without its end. What follows the line in
/// standard input is left there. Fails when the file cannot be read, and when the line is empty, not UTF-8 or
/// longer than any entry.
Outcome readSecretLine(const QString& path, QString* secret);

/// Asks at the terminal of the process, without showing what is typed. Fails when there is no terminal, and
/// when nothing is typed. When the program ends or is stopped meanwhile, the terminal's echo is restored.
Outcome askSecret(const QString& prompt, QString* secret);

}  // namespace kesto
