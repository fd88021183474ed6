// The bundle's principal object, which creates the panels.
#pragma once

#include "platform/panel.h"

namespace kesto {

/// Contributes one Job Handling panel to the print dialog, and none to other dialogs. It keeps no state.
class KestoPrintPdeVq250nJCPDEPlugIn : public QObject, public PrintDialogPlugIn {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID KESTO_PRINT_DIALOG_PLUG_IN_IID FILE "JobHandling.json")
  Q_INTERFACES(kesto::PrintDialogPlugIn)

 public:
  /// Does nothing with the bundle; always succeeds.
  bool initWithBundle(const Bundle& bundle) override;
  /// One new panel for the print dialog, no panel for another type; none when the panel cannot be created,
  /// for example without a host.
  PanelList PDEPanelsForType(const QString& type, HostCallback* withHostInfo) override;
};

}  // namespace kesto
