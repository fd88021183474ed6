// What the groups of the panel controller share.
#pragma once

#include <QtCore/QByteArray>
#include <memory>
#include <optional>

#include "panel/held_fields.h"
#include "panel/outlets.h"
#include "platform/bundle.h"
#include "platform/folder_entry.h"
#include "platform/host_callback.h"
#include "platform/panel_choices.h"
#include "platform/platform.h"
#include "platform/print_settings.h"
#include "platform/secret.h"
#include "platform/text_encoding.h"

namespace kesto {

/// The controls, facts and values of one panel. The controller owns it; each group works on it.
struct PanelState {
  explicit PanelState(HostCallback& host)
      : pdePluginCallbackObject(&host),
        platform(&host.platform()),
        pdeBundle(platform->bundle()),
        systemEncoding(platform->systemEncoding()) {}
  ~PanelState() { wipe(loginNameStringRef); }
  PanelState(const PanelState&) = delete;
  PanelState& operator=(const PanelState&) = delete;

  /// The job's print settings, null when the host has none.
  PrintSettings* printSettings() const { return pdePluginCallbackObject->printSettings(); }
  /// The printer's folder of a pop-up item; null when the item stands for none.
  const FolderEntry* folderOfItem(int item) const {
    if (item < firstFolderItem || !folderList) return nullptr;
    const auto folder = static_cast<std::size_t>(item - firstFolderItem);
    return folder < folderList->size() ? &(*folderList)[folder] : nullptr;
  }

  const void* controller = nullptr;         ///< The panel, for the trace.
  HostCallback* pdePluginCallbackObject;    ///< The host's; outlives the panel.
  Platform* platform;                       ///< The host's.
  std::shared_ptr<const Bundle> pdeBundle;  ///< The panel's own bundle.
  Outlets outlets;                          ///< Null until the layout is loaded.

  // Facts, fixed after construction.
  bool useConstraintHandling = false;
  std::optional<TextEncoding> ppdEncoding;  ///< None without a PPD.
  QString modelStringRef;                   ///< The PPD's model name; null without one.
  QString mfpURL;                           ///< The printer's network host; null for none.
  QString preferenceName;                   ///< The printer's preference domain; null for none.
  std::optional<QByteArray> requestData;    ///< The folder-list request.
  std::optional<Image> spaceImage;          ///< Beside pop-up items without a padlock.
  TextEncoding systemEncoding;
  bool kesto_print_system = false;
  bool active_directory = false;

  // The panel's life.
  bool hasInited = false;                  ///< The controls are initialised.
  bool callRestoreValuesFunction = false;  ///< Restore has run.
  bool callSaveValuesFunction = false;     ///< Save has run.

  // Values.
  int presetHoldButtonFlag = 0;  ///< The hold-button mask of the job's print settings.
  /// The hold-button mask of the preferences; a bit goes once its field is restored.
  int prefHoldButtonFlag = 0;
  RememberedValues remembered;     ///< Of the preferences.
  QString folderNameStringRef;     ///< The custom folder name last restored; null for none.
  QString loginNameStringRef;      ///< The login name while its hold button is on; null for none.
  bool loginNameLockFlag = false;  ///< The login name is masked.
  FolderList folderList;           ///< The printer's folders.
  QString addressStringRef;        ///< The remembered printer address; null for none.
};

}  // namespace kesto
