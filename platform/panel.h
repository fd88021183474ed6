// The border between a host and a print-dialog extension: the entry object and the panel protocol.
#pragma once

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <memory>
#include <optional>
#include <vector>

#include "platform/export.h"
#include "platform/folder_entry.h"

namespace kesto {

/// The type identifier of the print dialog, compared exactly.
inline constexpr char printDialogType[] = "BDB091F4-E57F-11D3-B5CC-0050E4603277";

class Bundle;
class HostCallback;
class PanelView;

/// What became of the last fetch of the printer's folders.
enum class FolderFetch {
  None,     ///< There was no fetch, or the printer was not asked.
  Failed,   ///< No answer arrived; the user has seen an alert.
  NotKept,  ///< The answer could not be written to the temporary directory.
  NotRead,  ///< The answer is not a list of folders.
  Listed,
};

/// Why no answer arrived.
enum class FolderFault {
  None,
  NotFound,    ///< The address is unknown.
  Refused,     ///< Nothing listens there.
  Closed,      ///< The connection ended before the answer did.
  TimedOut,    ///< There was no answer in time.
  Unreadable,  ///< It was not an answer.
  Other,
};

/// A panel of a print dialog. The host owns it as soon as it is returned, and calls it on one thread.
/// Properties that a panel's own class adds are its facts: read-only, for hosts that show a panel without
/// knowing its class.
class KESTO_EXPORT PrintDialogPanel : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;
  /// The panel's controls; null when the layout cannot be loaded. The panel owns them.
  virtual PanelView* panelView() = 0;
  /// The panel's controls once they exist, else null. This call never loads the layout.
  virtual PanelView* loadedView() const = 0;
  /// The name shown for the panel, localised.
  virtual QString panelName() = 0;
  /// The kind of the panel, the same in every language.
  virtual QString panelKind() = 0;
  /// The PPD options that the panel handles; the host shows no controls of its own for them.
  virtual QStringList supportedPPDOptionKeys() = 0;
  /// The model name that the PPD declares; null without one.
  virtual QString modelName() const = 0;
  /// The printer's folders, as last fetched or remembered.
  virtual FolderList folders() const = 0;
  /// Whether the printer's model files documents. Other models show and remember the choice of a folder as
  /// well, but no job carries it; hosts say so beside the choice.
  virtual bool filesDocuments() const = 0;
  /// What became of the last fetch of folders. The panel itself reports only a missing answer.
  virtual FolderFetch lastFolderFetch() const = 0;
  /// Why it failed; `None` unless it did.
  virtual FolderFault lastFolderFault() const = 0;
  /// Called when the host is about to bring the panel to the front.
  virtual void willShow() = 0;
  /// Whether the host may hide the panel.
  virtual bool shouldHide() = 0;
  /// Whether the host shows its help button.
  virtual bool shouldShowHelp() = 0;
  /// Called when a PPD option has changed in the host.
  virtual void PPDOptionKeyValueDidChange(const QString& optionKey, const QString& ppdChoice) = 0;
  /// Reads the job's print settings into the panel. `error` is never set.
  virtual bool restoreValuesAndReturnError(QString* error) = 0;
  /// Writes the panel into the job's print settings. `error` is never set.
  virtual bool saveValuesAndReturnError(QString* error) = 0;
  /// Whether the job may go out; the answer is no only after an alert.
  virtual bool shouldPrint() = 0;
  /// Labels and values of the panel's main choices, for the dialog's summary.
  virtual QMap<QString, QString> summaryInfo() = 0;
};

/// The panels that an entry object returns for one request; none when a panel could not be created.
using PanelList = std::optional<std::vector<std::unique_ptr<PrintDialogPanel>>>;

/// The principal object of a bundle.
class KESTO_EXPORT PrintDialogPlugIn {
 public:
  virtual ~PrintDialogPlugIn() = default;
  /// Called once after loading.
  virtual bool initWithBundle(const Bundle& bundle) = 0;
  /// New panels for a dialog of the given type; the caller owns them, and lends them `withHostInfo`.
  virtual PanelList PDEPanelsForType(const QString& type, HostCallback* withHostInfo) = 0;
};

}  // namespace kesto

#define KESTO_PRINT_DIALOG_PLUG_IN_IID "kesto.print.pde.PrintDialogPlugIn/1"
Q_DECLARE_INTERFACE(kesto::PrintDialogPlugIn, KESTO_PRINT_DIALOG_PLUG_IN_IID)
