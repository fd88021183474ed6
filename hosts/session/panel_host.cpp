#include "hosts/session/panel_host.h"

#include <algorithm>

#include "hosts/cups/faults.h"
#include "hosts/session/panel_entries.h"
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

namespace {

QString reasonOf(FolderFault fault) {
  switch (fault) {
    case FolderFault::NotFound:
      return Faults::tr("the address is unknown");
    case FolderFault::Refused:
      return Faults::tr("connection refused");
    case FolderFault::Closed:
      return Faults::tr("the connection was closed");
    case FolderFault::TimedOut:
      return Faults::tr("no answer in time");
    case FolderFault::Unreadable:
      return Faults::tr("the answer cannot be read");
    default:
      return Faults::tr("the printer cannot be reached");
  }
}

}  // namespace

Outcome outcomeOfFetch(const PrintDialogPanel& panel) {
  switch (panel.lastFolderFetch()) {
    case FolderFetch::Failed:
      return Outcome::failed(
          Faults::tr("no folder list from %1: %2")
              .arg(panel.loadedView() == nullptr ? QString() : printerAddress(*panel.loadedView()),
                   reasonOf(panel.lastFolderFault())));
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
