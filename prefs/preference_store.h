// The record of one printer in the user's preferences (docs/formats/preferences.md).
#pragma once

#include <QtCore/QJsonObject>
#include <functional>
#include <optional>

#include "panel/state.h"

namespace kesto {

/// Validates, loads and saves what the user let the panel remember for the printer. Every operation reads the
/// domain afresh, and every write replaces the record and keeps the domain's other keys: the last writer's
/// record wins. Without a preference domain there is nothing to load, and saving answers false.
class PreferenceStore {
 public:
  explicit PreferenceStore(PanelState& state) : m_state(state) {}

  /// Resets the record when it is of another printer model or release, and writes it either way. A reset that
  /// cannot be written holds all the same: nothing of the stored record is loaded.
  void CheckPreference();
  /// Loads the hold-button mask and the values whose bits it has; all are cleared first. A mask that is no
  /// 32-bit integer loads no value.
  void GetUserPreference();
  /// Stores the controls' entries and the hold-button mask; false when nothing could be written.
  bool SaveUserPreference();
  /// Loads the folder list and the printer's address.
  void GetFolderPreference();
  /// Stores both as they stand; false when nothing could be written.
  bool SaveFolderPreference();
  /// This model keeps nothing of a hard disk; its controller never asks.
  bool GetHDDPreference() { return true; }
  bool SaveHDDPreference() { return true; }

 private:
  QJsonObject recordOf(const QJsonObject& domain) const;
  std::optional<QJsonObject> record() const;  // none when there is none, or the store is not available
  bool change(const std::function<void(QJsonObject* record)>& edit);
  void storeEntry(const HeldField& row, QJsonObject* record) const;
  QString sealedEntry(const HeldField& row, const QString& text) const;

  PanelState& m_state;
  bool m_isTrusted = true;  // the stored record is the printer's; else one of another model counts as reset
};

}  // namespace kesto
