#include "plugin/entry.h"

#include "panel/trace.h"
#include "plugin/job_handling_panel.h"

namespace kesto {

bool KestoPrintPdeVq250nJCPDEPlugIn::initWithBundle(const Bundle& /*bundle*/) {
  _PDEProlog(this, "initWithBundle:");
  _PDEEpilog(this, "initWithBundle:=BOOL(YES)");
  return true;
}

PanelList KestoPrintPdeVq250nJCPDEPlugIn::PDEPanelsForType(const QString& type, HostCallback* withHostInfo) {
  _PDEProlog(this, "PDEPanelsForType:");
  PanelList panels;
  panels.emplace();
  if (type == QLatin1String(printDialogType)) {
    std::unique_ptr<PrintDialogPanel> panel = KestoPrintPdeVq250nJC::initWithCallback(withHostInfo);
    if (panel) {
      panels->push_back(std::move(panel));
    } else {
      panels.reset();
    }
  }
  _PDEEpilog(this, "PDEPanelsForType:=NSArray(%@)",
             panels ? QString::number(panels->size()) : QStringLiteral("none"));
  return panels;
}

}  // namespace kesto
