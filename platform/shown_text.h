// Texts from outside, made safe for one line of a terminal or a label.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace kesto {

/// A text from a server, a printer or a user, with control characters, line ends and direction marks as
/// escapes ("\n", "\x1b", "\u202e"), so that it cannot control a terminal, break its line or reverse it.
QString shownText(const QString& text);

/// The name of a file without its folders, from the file system's bytes, escaped like `shownText`. Bytes that
/// are not UTF-8 are escaped too ("\xf6").
QString shownFileName(const QByteArray& path);
/// The whole path, escaped in the same way.
QString shownPath(const QByteArray& path);

}  // namespace kesto
