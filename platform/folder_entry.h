// One document-filing folder of the printer.
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <optional>
#include <vector>

#include "platform/export.h"

namespace kesto {

/// A folder of the printer's list; it always has a name.
struct FolderEntry {
  QString name;           ///< As the printer gives it.
  bool password = false;  ///< Protected by a pass code.
  bool dir = false;       ///< Marked as a directory.
  bool add = false;       ///< False; a stored list keeps its own.

  bool operator==(const FolderEntry&) const = default;
};

/// A folder as records, facts and listings show it, with the members "name", "password", "dir" and "add".
KESTO_EXPORT QJsonObject jsonOf(const FolderEntry& folder);
/// The folder of such an object; a member that is absent or of another type is empty or false.
KESTO_EXPORT FolderEntry folderOf(const QJsonObject& object);

/// The printer's folders in its order: none until loaded or fetched, empty when a fetch found nothing.
using FolderList = std::optional<std::vector<FolderEntry>>;

}  // namespace kesto
