// Files that belong to the user alone.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <optional>

#include "platform/export.h"
#include "platform/outcome.h"

namespace kesto {

/// The longest file name in bytes.
inline constexpr qsizetype longestFileName = 255;

/// The path of a file beside `path`: the same name, shortened if necessary, followed by `suffix`.
KESTO_EXPORT QString pathBeside(const QString& path, const QString& suffix);

/// Whether the file or folder, or what a link there leads to, is closed to all but its owner.
KESTO_EXPORT bool isPrivate(const QString& path);

/// Whether the path is a regular file of this user that contains exactly these bytes and is closed to others.
KESTO_EXPORT bool holdsPrivately(const QString& path, const QByteArray& bytes);

/// Writes the whole file with mode 0600, or leaves the existing one: writes a temporary file beside it, syncs
/// and renames it. A link in the file's place is replaced, not followed. A private file that already contains
/// the bytes stays untouched.
KESTO_EXPORT Outcome writePrivateFile(const QString& path, const QByteArray& bytes);

/// The bytes of a regular file of this user, at most `limit`; none for a link, a pipe, a folder, another
/// user's file, a larger file or a missing one. Never waits for a writer.
KESTO_EXPORT std::optional<QByteArray> readOwnFile(const QString& path, qsizetype limit);

}  // namespace kesto
