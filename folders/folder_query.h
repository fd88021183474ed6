// Fetches the printer's folder list.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "folders/folder_popup.h"
#include "folders/soap_client.h"
#include "platform/panel.h"

namespace kesto {

/// The folder button: asks the printer at the shown address, reads the answer, stores it and offers the
/// folders in the pop-up.
///
/// The exchange runs the event loop, so the user and the host can do other things meanwhile. A second press
/// does nothing, a save or restore works as usual, and destroying the panel ends the exchange without an
/// alert.
class FolderQuery : public SoapContext {
 public:
  /// `saveFolders` stores the current printer address and folder list.
  FolderQuery(PanelState& state, FolderPopup& folderPopup, std::function<void()> saveFolders)
      : m_state(state), m_folderPopup(folderPopup), m_saveFolders(std::move(saveFolders)) {}
  ~FolderQuery() override;

  /// The button's action. Even after a failed exchange the answer file, old or new, is read, stored and
  /// offered.
  void getFolderNameButtonProc(Control* sender);
  /// What became of the last exchange.
  FolderFetch lastFetch() const { return m_lastFetch; }
  FolderFault lastFault() const { return m_lastFault; }
  /// Reads an answer file into the folder list. False, with the list unchanged, when it is missing or not
  /// well-formed; false, with an empty list, when it holds no list.
  bool parseXML(const QString& path);
  /// Stops the progress indicator and shows an alert that the exchange failed.
  void recieveEndCallback() override;
  const void* controller() const override { return m_state.controller; }

 private:
  void fetch(const QString& printerAddress);
  void showProgress(bool isRunning);

  PanelState& m_state;
  FolderPopup& m_folderPopup;
  std::function<void()> m_saveFolders;
  FolderFetch m_lastFetch = FolderFetch::None;
  FolderFault m_lastFault = FolderFault::None;
  KestoPrintPdeVq250nJCSOAPClient* m_running = nullptr;            // while an exchange waits
  std::shared_ptr<bool> m_isAlive = std::make_shared<bool>(true);  // outlives this in a waiting exchange
};

}  // namespace kesto
