// The record of one printer in the user's preferences (docs/formats/preferences.md).
#pragma once

#include <QtCore/QJsonObject>
#include <functional>
#include <optional>

#include "panel/state.h"

namespace kesto {

/// Validates, loads and saves what the user let the panel remember for the printer. Every operation reads the
/// domain again. Every write replaces the whole record, so the last writer's record counts, and keeps the
/// domain's other keys. Without a preference domain there is nothing to load, and saving answers false.
class PreferenceStore {
 public:
  explicit PreferenceStore(PanelState& state) : m_state(state) {}

  /// Resets the record when it belongs to another printer model or release, and writes it in either case.
  /// When a reset cannot be written it still takes effect: nothing of the stored record is loaded.
  void CheckPreference();
  /// Loads the hold-button mask and the values whose bits it has; all are cleared first. A mask that is not a
  /// 32-bit integer loads no value.
  void GetUserPreference();
  /// Stores the controls' entries and the hold-button mask; false when nothing could be written.
  bool SaveUserPreference();
  /// Loads the folder list and the printer's address.
  void GetFolderPreference();
  /// Stores both as they stand; false when nothing could be written.
  bool SaveFolderPreference();
  /// This model stores nothing about a hard disk, and its controller never calls this.
  bool GetHDDPreference() { return true; }
  bool SaveHDDPreference() { return true; }

 private:
  QJsonObject recordOf(const QJsonObject& domain) const;
  std::optional<QJsonObject> record() const;  // none when it is missing or the store is not available
  bool change(const std::function<void(QJsonObject* record)>& edit);
  void storeEntry(const HeldField& row, QJsonObject* record) const;
  QString sealedEntry(const HeldField& row, const QString& text) const;

  PanelState& m_state;
  bool m_isTrusted = true;  // false when a record of another model could not be reset on disk
};

}  // namespace kesto
