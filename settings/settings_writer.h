// Writes the panel into the job's print settings.
#pragma once

#include "panel/capabilities.h"
#include "panel/state.h"

namespace kesto {

/// Turns the controls into the keys that the printer driver's filter reads. Every run rewrites the keys
/// from the controls; the spool time stays, the pass code's keys without retention, and `folderPath` without
/// filing.
class SettingsWriter {
 public:
  SettingsWriter(PanelState& state, const CapabilityQueries& capabilities)
      : m_state(state), m_capabilities(capabilities) {}

  /// Does nothing without print settings or before the controls are initialised. Changes nothing in the panel
  /// and reports no error: what cannot be converted is stored as far as it goes, or its key is removed.
  void writeNonPPDSettingsToPrintSettings();

 private:
  QByteArray writeSpoolTime();
  int writeFiling();
  int filingMode() const;
  void writeFolderPath();
  std::optional<QString> chosenFolderName(bool* isStandard) const;
  void writeFolderName(const QString& name);
  bool writeRetention(int filingMode);
  void writeDigitsDigest(Held field, const char* digestKey, const QByteArray& spoolTime, bool spoolTimeFirst);
  void writeNumber(Held field, const char* plainKey);
  void writeName(Held field, const char* latin1Key, const char* utf8Key);
  QByteArray digitsOf(Held field) const;
  void store(const char* key, const QByteArray& value);
  void storeInPieces(const char* key, const QByteArray& value);

  PanelState& m_state;
  const CapabilityQueries& m_capabilities;
};

}  // namespace kesto
