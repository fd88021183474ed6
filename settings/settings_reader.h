// Reads the job's print settings into the panel.
#pragma once

#include "folders/folder_popup.h"
#include "panel/control_actions.h"

namespace kesto {

/// Sets every control from the job's print settings and the remembered values, and sends the controls'
/// actions, so that the enabling rules hold. A remembered value takes precedence over the print settings
/// once, and its bit of `prefHoldButtonFlag` is then cleared.
class SettingsReader {
 public:
  SettingsReader(PanelState& state, ControlActions& actions, FolderPopup& folderPopup)
      : m_state(state), m_actions(actions), m_folderPopup(folderPopup) {}

  /// Does nothing without print settings. Reports no error: a value that is absent, unreadable or too long
  /// gives an empty field, or the default of a name.
  void getNonPPDSettingsFromPrintSettings();

 private:
  // The job's sealed login name, which is stored in two pieces.
  struct StoredLoginName {
    QByteArray sealed;
    bool isWhole = false;  // both pieces are present
  };

  void readHoldMask();
  void readRetention();
  void readFiling();
  bool readFilingKeys();
  void selectFolder(int item, int row);
  void readAuthentication();
  void readLoginName();
  StoredLoginName storedLoginName() const;
  void readSealed(Held field);
  void readName(Held field);
  std::optional<QString> fallbackName(Held field) const;

  std::optional<QString> value(const char* key) const;
  QByteArray asciiValue(const char* key, qsizetype bufferSize) const;
  bool takePreferenceBit(const HeldField& row);
  bool isPresetHeld(const HeldField& row) const { return (m_state.presetHoldButtonFlag & row.bit) != 0; }
  void setText(const HeldField& row, const QString& text);
  void setSealed(const HeldField& row, QByteArray plaintext);
  void setHold(const HeldField& row, bool hold);

  PanelState& m_state;
  ControlActions& m_actions;
  FolderPopup& m_folderPopup;
};

}  // namespace kesto
