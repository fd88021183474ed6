// The folder pop-up, built from the printer's folder list.
#pragma once

#include "panel/control_actions.h"

namespace kesto {

/// Rebuilds the pop-up's items and finds folders in it. Items 0 and 1 are quick file and main folder; with
/// folders, 2 is a separator and 3 + i is folder i.
class FolderPopup {
 public:
  FolderPopup(PanelState& state, ControlActions& actions) : m_state(state), m_actions(actions) {}

  /// Rebuilds the items from the list. The choice stays: one of the first two items by its index, a folder by
  /// its name (with `SearchSameFolderName`; the main folder when it is gone), and in that case the pop-up's
  /// action is sent, so that the rules hold.
  void makeFolderPopup();
  /// The item of the first folder with that name in any letter case; the main folder when there is none.
  int SearchSameFolderName(const QString& name) const;
  /// Whether every folder of the list is in the pop-up. True without a pop-up or without folders.
  bool offersAllFolders() const;

 private:
  PanelState& m_state;
  ControlActions& m_actions;
};

}  // namespace kesto
