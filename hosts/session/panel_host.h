// The host's side of a panel: what all our hosts lend to it, and the panel itself.
#pragma once

#include <memory>
#include <optional>

#include "hosts/cups/ppd_file.h"
#include "platform/host_callback.h"
#include "platform/panel.h"
#include "platform/print_settings.h"
#include "platform/system_platform.h"

namespace kesto {

/// One dialog on one queue: lends printer, PPD and print settings to the panel, and owns all of them except
/// the PPD. Set the members before `openPanel`.
class PanelHost : public HostCallback {
 public:
  explicit PanelHost(Platform& platform) : m_platform(platform) {}

  PrintSession session;                   ///< With the current printer, if any.
  std::optional<PrintSettings> settings;  ///< None for a host without print settings.
  ppd_file_t* ppd = nullptr;              ///< Outlives this object; null without a PPD.
  bool handlesConstraints = true;

  /// Creates the Job Handling panel from the bundle's entry object. On failure the outcome says why.
  Outcome openPanel(PrintDialogPlugIn& plugIn);
  /// Like `openPanel`, and prepares the panel for showing and restoring. Fails also when it has no layout.
  Outcome openShownPanel(PrintDialogPlugIn& plugIn);
  /// Null until the panel is opened.
  PrintDialogPanel* panel() const { return m_panel.get(); }
  /// The panel's controls once they exist, else null. This call never loads the layout.
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

/// The panel's summary as a host shows it: without the folder if the printer's model files nothing. The
/// panel's controls must exist.
QMap<QString, QString> summaryOf(PrintDialogPanel& panel);

/// Why the panel's last fetch of folders brought no list; done also when the panel has reported it itself.
Outcome outcomeOfFetch(const PrintDialogPanel& panel);

/// Finds and loads the bundle "JobHandling.pde". On failure the outcome says where we looked for it, or why
/// it does not load.
Outcome loadJobHandlingBundle(std::shared_ptr<const Bundle>* bundle, PrintDialogPlugIn** plugIn);

}  // namespace kesto
