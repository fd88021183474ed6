// The host's side of a panel: what every host of ours lends to it, and the panel itself.
#pragma once

#include <memory>
#include <optional>

#include "hosts/cups/ppd_file.h"
#include "platform/host_callback.h"
#include "platform/panel.h"
#include "platform/print_settings.h"
#include "platform/system_platform.h"

namespace kesto {

/// One dialog on one queue: lends printer, PPD and print settings to the panel, and owns all but the PPD.
/// Members are set before `openPanel`.
class PanelHost : public HostCallback {
 public:
  explicit PanelHost(Platform& platform) : m_platform(platform) {}

  PrintSession session;                   ///< With the current printer, if any.
  std::optional<PrintSettings> settings;  ///< None for a host without print settings.
  ppd_file_t* ppd = nullptr;              ///< Outlives this object; null without a PPD.
  bool handlesConstraints = true;

  /// Makes the Job Handling panel from the bundle's entry object. The outcome says why there is none.
  Outcome openPanel(PrintDialogPlugIn& plugIn);
  /// As `openPanel`, and has the panel ready to be shown and restored. Fails too when it has no layout.
  Outcome openShownPanel(PrintDialogPlugIn& plugIn);
  /// Null until the panel is opened.
  PrintDialogPanel* panel() const { return m_panel.get(); }
  /// The panel's controls once the panel has made them, else null: looking never loads the layout.
  PanelView* loadedView() const;

  const PrintSession& printSession() const override { return session; }
  PrintSettings* printSettings() override { return settings ? &*settings : nullptr; }
  ppd_file_s* ppdFile() override { return ppd; }
  bool answersWillChangePPDOptionKeyValue() const override { return handlesConstraints; }
  Platform& platform() override { return m_platform; }

 private:
  Platform& m_platform;
  std::unique_ptr<PrintDialogPanel> m_panel;
};

/// What a host shows of a panel's summary: without the folder where the printer's model files nothing, since
/// none is used. The panel's controls must be made.
QMap<QString, QString> summaryOf(PrintDialogPanel& panel);

/// Why the panel's last fetch of folders brought no list; done also when the panel has said so itself.
Outcome outcomeOfFetch(const PrintDialogPanel& panel);

/// Finds and loads the bundle "JobHandling.pde". On failure the outcome says where it was looked for, or why
/// it does not load.
Outcome loadJobHandlingBundle(std::shared_ptr<const Bundle>* bundle, PrintDialogPlugIn** plugIn);

}  // namespace kesto
