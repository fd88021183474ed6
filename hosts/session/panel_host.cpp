#include "hosts/session/panel_host.h"

#include <algorithm>

#include "hosts/cups/faults.h"
#include "panel/model/panel_view.h"
#include "panel/model/text_field.h"
#include "platform/bundle.h"

namespace kesto {

Outcome PanelHost::openPanel(PrintDialogPlugIn& plugIn) {
  PanelList panels = plugIn.PDEPanelsForType(QLatin1String(printDialogType), this);
  if (!panels || panels->empty())
    return Outcome::failed(Faults::tr("the Job Handling extension has no panel for the print dialog"));
  m_panel = std::move(panels->front());
  return Outcome::done();
}

Outcome PanelHost::openShownPanel(PrintDialogPlugIn& plugIn) {
  if (Outcome opened = openPanel(plugIn); !opened) return opened;
  if (m_panel->panelView() == nullptr) return Outcome::failed(Faults::tr("the panel has no layout"));
  m_panel->willShow();
  return Outcome::done();
}

PanelView* PanelHost::loadedView() const {
  return m_panel ? m_panel->loadedView() : nullptr;
}

QMap<QString, QString> summaryOf(PrintDialogPanel& panel) {
  QMap<QString, QString> summary = panel.summaryInfo();
  const auto* caption = panel.panelView()->control<TextField>(QStringLiteral("folderSelectionStaticText"));
  if (panel.filesDocuments() || caption == nullptr) return summary;
  // The panel names the entry so.
  summary.removeIf([label = caption->stringValue()](const auto& entry) {
    return label == entry.key() || label == entry.key() + u':';
  });
  return summary;
}

Outcome outcomeOfFetch(const PrintDialogPanel& panel) {
  switch (panel.lastFolderFetch()) {
    case FolderFetch::NotKept:
      return Outcome::failed(
          Faults::tr("cannot write the printer's answer to the temporary folder. Is the disk full?"));
    case FolderFetch::NotRead:
      return Outcome::failed(Faults::tr("the printer's answer is not a list of folders"));
    default:
      return Outcome::done();
  }
}

Outcome loadJobHandlingBundle(std::shared_ptr<const Bundle>* bundle, PrintDialogPlugIn** plugIn) {
  const QString directory = Bundle::find(QStringLiteral("JobHandling.pde"));
  if (directory.isNull()) {
    return Outcome::failed(
        Faults::tr("cannot find JobHandling.pde beside the program or in the library folder"));
  }
  auto found = std::make_shared<const Bundle>(directory);
  if (Outcome loaded = found->loadPrincipalObject(plugIn); !loaded) return loaded;
  *bundle = std::move(found);
  return Outcome::done();
}

}  // namespace kesto
