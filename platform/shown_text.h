// Texts that others have written, as one line of a terminal or a label shows them.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace kesto {

/// A text of a server's, a printer's or a user's, with control characters, line ends and direction marks as
/// escapes ("\n", "\x1b", "\u202e"): neither does a terminal obey it nor does it break or turn its line.
QString shownText(const QString& text);

/// The name of a file without its folders, from the bytes that the file system has, as `shownText`; bytes
/// that are not UTF-8 are escapes, too ("\xf6").
QString shownFileName(const QByteArray& path);
/// The whole path, likewise.
QString shownPath(const QByteArray& path);

}  // namespace kesto
