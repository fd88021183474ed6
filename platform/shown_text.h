// Texts from outside, made safe for one line of a terminal or a label.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include "platform/export.h"

namespace kesto {

/// A text from a server, a printer or a user, with control characters, line ends and direction marks as
/// escapes ("\n", "\x1b", "\u202e"), so that it cannot control a terminal, break its line or reverse it.
KESTO_EXPORT QString shownText(const QString& text);

/// Whether a terminal or a label obeys the character in place of showing it.
KESTO_EXPORT bool isObeyed(QChar character);

/// The name of a file without its folders, from the file system's bytes, escaped like `shownText`. Bytes that
/// are not UTF-8 are escaped too ("\xf6").
KESTO_EXPORT QString shownFileName(const QByteArray& path);
/// The whole path, escaped in the same way.
KESTO_EXPORT QString shownPath(const QByteArray& path);

}  // namespace kesto
