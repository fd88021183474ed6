// The rows and items of the panel's choices, as every layout has them.
#pragma once

namespace kesto {

/// Rows of `folderSelectionMatrix`. The first two are also the first two items of `folderSelectionPopup`.
enum FolderRow : int { QuickFile, MainFolder, CustomFolder };

/// The first of the printer's folders in `folderSelectionPopup`, after a separator.
inline constexpr int firstFolderItem = 3;

/// Rows of `suspendMatrix`.
enum HoldRow : int { HoldOnly, HoldAfterPrint, SamplePrint };

/// Rows of `authenticationMatrix`.
enum AuthenticationRow : int { ByLogin, ByUserNumber };

}  // namespace kesto
