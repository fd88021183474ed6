// Files that belong to the user alone.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <optional>

#include "platform/outcome.h"

namespace kesto {

/// Whether the file or folder, or what a link there leads to, is closed to all but its owner.
bool isPrivate(const QString& path);

/// Writes the whole file with mode 0600 or leaves what is there: into a temporary file beside it, synced,
/// renamed. A link in the file's place is replaced, not followed. A private file that holds the bytes already
/// stays untouched.
Outcome writePrivateFile(const QString& path, const QByteArray& bytes);

/// The bytes of a regular file of this user's, at most `limit` of them; none for a link, a pipe, a folder,
/// another user's file, a larger one, or none at all. Never waits for a writer.
std::optional<QByteArray> readOwnFile(const QString& path, qsizetype limit);

}  // namespace kesto
