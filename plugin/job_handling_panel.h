// The Job Handling panel: the controller that joins the groups and answers the host.
#pragma once

#include <memory>

#include "folders/folder_popup.h"
#include "folders/folder_query.h"
#include "panel/capabilities.h"
#include "panel/control_actions.h"
#include "panel/model/panel_view.h"
#include "panel/state.h"
#include "platform/panel.h"
#include "prefs/preference_store.h"
#include "settings/settings_reader.h"
#include "settings/settings_writer.h"

namespace kesto {

/// The host's callback object, as the panel knows it.
using KestoPrintPdeVq250nJCPDEPluginCallback = HostCallback;

/// One panel of one print dialog. Construction gathers the facts about the current printer, which do not
/// change later; the controls are created when the host first needs them. Everything runs on the dialog's
/// thread, and the panel reports only through its two alerts. The properties are the panel's facts; encodings
/// are numbers, none is null.
class KestoPrintPdeVq250nJC : public PrintDialogPanel, public CapabilityQueries {
  Q_OBJECT
  Q_PROPERTY(QVariant ppdEncoding READ ppdEncoding CONSTANT)
  Q_PROPERTY(QVariant modelStringRef READ modelStringRef CONSTANT)
  Q_PROPERTY(QVariant mfpURL READ mfpURL CONSTANT)
  Q_PROPERTY(QVariant preferenceName READ preferenceName CONSTANT)
  Q_PROPERTY(int systemEncoding READ systemEncodingCode CONSTANT)
  Q_PROPERTY(bool kesto_print_system READ isKestoPrintSystem CONSTANT)
  Q_PROPERTY(bool active_directory READ isActiveDirectory CONSTANT)
  Q_PROPERTY(bool useConstraintHandling READ usesConstraintHandling CONSTANT)
  Q_PROPERTY(bool hasInited READ hasInited)
  Q_PROPERTY(int prefHoldButtonFlag READ prefHoldButtonFlag)
  Q_PROPERTY(int presetHoldButtonFlag READ presetHoldButtonFlag)
  Q_PROPERTY(QVariant folderList READ folderList)
  Q_PROPERTY(QVariant addressStringRef READ addressStringRef)

 public:
  /// A new panel for `host`, which must outlive it; null without a host.
  static std::unique_ptr<KestoPrintPdeVq250nJC> initWithCallback(
      KestoPrintPdeVq250nJCPDEPluginCallback* host);
  explicit KestoPrintPdeVq250nJC(KestoPrintPdeVq250nJCPDEPluginCallback& host);

  PanelView* panelView() override;
  PanelView* loadedView() const override { return m_panelView.get(); }
  QString panelName() override;
  QString panelKind() override;
  QStringList supportedPPDOptionKeys() override;
  QString modelName() const override { return m_state.modelStringRef; }
  FolderList folders() const override { return m_state.folderList; }
  bool filesDocuments() const override { return CheckHardDisk(); }
  FolderFetch lastFolderFetch() const override { return m_folderQuery.lastFetch(); }
  FolderFault lastFolderFault() const override { return m_folderQuery.lastFault(); }
  void willShow() override;
  bool shouldHide() override;
  bool shouldShowHelp() override;
  void PPDOptionKeyValueDidChange(const QString& optionKey, const QString& ppdChoice) override;
  bool restoreValuesAndReturnError(QString* error) override;
  bool saveValuesAndReturnError(QString* error) override;
  bool shouldPrint() override;
  QMap<QString, QString> summaryInfo() override;

  int getUIMode() const override { return 6; }
  bool CheckHardDisk() const override { return false; }
  bool isVelkoMorra() const override { return false; }

  QVariant ppdEncoding() const;
  QVariant modelStringRef() const;
  QVariant mfpURL() const;
  QVariant preferenceName() const;
  int systemEncodingCode() const { return kesto::systemEncodingCode(m_state.systemEncoding); }
  bool isKestoPrintSystem() const { return m_state.kesto_print_system; }
  bool isActiveDirectory() const { return m_state.active_directory; }
  bool usesConstraintHandling() const { return m_state.useConstraintHandling; }
  bool hasInited() const { return m_state.hasInited; }
  /// Whether a restore created the view; the panel owns the view in either case.
  bool isPanelViewRetained() const { return m_isPanelViewRetain; }
  int prefHoldButtonFlag() const { return m_state.prefHoldButtonFlag; }
  int presetHoldButtonFlag() const { return m_state.presetHoldButtonFlag; }
  QVariant folderList() const;
  QVariant addressStringRef() const;

 private:
  void gatherPrinterFacts();
  void keepPrinterAddress(const QString& deviceUri);
  void loadView();

  PanelState m_state;
  EnablingRules m_rules{m_state};
  ControlActions m_actions{m_state, m_rules};
  FolderPopup m_folderPopup{m_state, m_actions};
  SettingsWriter m_writer{m_state, *this};
  SettingsReader m_reader{m_state, m_actions, m_folderPopup};
  PreferenceStore m_preferences{m_state};
  FolderQuery m_folderQuery{m_state, m_folderPopup, [this] { m_preferences.SaveFolderPreference(); }};
  ppd_file_s* m_ppd = nullptr;  // the host's
  QString m_thePDEName;
  std::unique_ptr<PanelView> m_panelView;
  bool m_isPanelViewRetain = false;  // a restore created the view
};

}  // namespace kesto
