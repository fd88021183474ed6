// Writes the panel into the job's print settings.
#pragma once

#include "panel/capabilities.h"
#include "panel/state.h"

namespace kesto {

/// Turns the controls into the keys that the printer driver's filter reads. Every run rewrites all keys from
/// the controls, with three exceptions: the spool time stays, without retention the pass code's keys stay,
/// and without filing `folderPath` stays.
class SettingsWriter {
 public:
  SettingsWriter(PanelState& state, const CapabilityQueries& capabilities)
      : m_state(state), m_capabilities(capabilities) {}

  /// Does nothing without print settings or before the controls are initialised. Changes nothing in the panel
  /// and reports no error: a value that cannot be converted is stored in part, or its key is removed.
  void writeNonPPDSettingsToPrintSettings();

 private:
  QByteArray writeSpoolTime();
  int writeFiling();
  int folderChoice() const;
  void writeFolderPath();
  void writeFolderName(const QString& name);
  bool writeRetention(int filing);
  void writeField(Held field, const QByteArray& spoolTime);
  void writeDigits(const HeldField& row, const QByteArray& spoolTime);
  void writeName(const HeldField& row);
  void store(const char* key, const QByteArray& value);
  void storeInPieces(const char* key, const QByteArray& value);

  PanelState& m_state;
  const CapabilityQueries& m_capabilities;
};

}  // namespace kesto
