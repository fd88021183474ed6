// Where a fetched folder list is kept.
#pragma once

namespace kesto {

/// Keeps the printer's address and folder list; the preference store does it.
class FolderListStore {
 public:
  virtual ~FolderListStore() = default;
  /// Stores both as they stand; false when nothing could be written.
  virtual bool SaveFolderPreference() = 0;
};

}  // namespace kesto
