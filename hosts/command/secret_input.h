// Secrets that are not given on the command line, where other users could see them.
#pragma once

#include <QtCore/QString>

#include "platform/outcome.h"

namespace kesto {

/// Reads the first line of a file, or of standard input for "-", without its end. What follows the line in
/// standard input is left there. Fails when there is no file, no text in the line, or no UTF-8, and when the
/// line is longer than any entry.
Outcome readSecretLine(const QString& path, QString* secret);

/// Asks at the terminal of the process, without showing what is typed. Fails when there is no terminal, and
/// when nothing is typed. A terminal whose program ends or is stopped meanwhile
/// gets its echo back.
Outcome askSecret(const QString& prompt, QString* secret);

}  // namespace kesto
