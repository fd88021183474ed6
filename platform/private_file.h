// Files that belong to the user alone.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <optional>

#include "platform/outcome.h"

namespace kesto {

/// Most bytes of a file's name.
inline constexpr qsizetype longestFileName = 255;

/// The path of a file beside `path`, whose name is that of `path`, cut as far as it must be, and `suffix`.
QString pathBeside(const QString& path, const QString& suffix);

/// Whether the file or folder, or what a link there leads to, is closed to all but its owner.
bool isPrivate(const QString& path);

/// Whether the path is a regular file of this user's that holds exactly these bytes and is closed to others.
bool holdsPrivately(const QString& path, const QByteArray& bytes);

/// Writes the whole file with mode 0600 or leaves what is there: into a temporary file beside it, synced,
/// renamed. A link in the file's place is replaced, not followed. A private file that holds the bytes already
/// stays untouched.
Outcome writePrivateFile(const QString& path, const QByteArray& bytes);

/// The bytes of a regular file of this user's, at most `limit` of them; none for a link, a pipe, a folder,
/// another user's file, a larger one, or none at all. Never waits for a writer.
std::optional<QByteArray> readOwnFile(const QString& path, qsizetype limit);

}  // namespace kesto
