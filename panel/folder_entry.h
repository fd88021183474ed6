// One document-filing folder of the printer.
#pragma once

#include <QtCore/QString>
#include <optional>
#include <vector>

namespace kesto {

/// A folder of the printer's list, which always has a name.
struct FolderEntry {
  QString name;           ///< As the printer gives it.
  bool password = false;  ///< Protected by a pass code.
  bool dir = false;       ///< Marked as a directory.
  bool add = false;       ///< False; a stored list keeps its own.

  bool operator==(const FolderEntry&) const = default;
};

/// The printer's folders in its order: none until loaded or fetched, empty when a fetch found nothing.
using FolderList = std::optional<std::vector<FolderEntry>>;

/// The index of the first folder in the folder pop-up, behind quick file, main folder and a separator.
inline constexpr int firstFolderItem = 3;

}  // namespace kesto
