// What the panel's controls do when the user operates them.
#pragma once

#include "panel/enabling_rules.h"

namespace kesto {

/// The actions of the panel's controls. They keep the choices consistent, clear the fields whose value no
/// longer applies unless they are held, and run the enabling rules that the change concerns. The sender is
/// never looked at; absent controls are tolerated. The settings reader sends the same actions after it has
/// set the controls.
class ControlActions {
 public:
  ControlActions(PanelState& state, EnablingRules& rules) : m_state(state), m_rules(rules) {}

  /// Switched off: the first hold choice, no quick file, and the storage fields that are not held cleared.
  void retentionCBoxProc(Control* sender);
  /// A hold choice other than "after print" does not go with quick file, which gives way to the main folder.
  void suspendKeyMatrixProc(Control* sender);
  /// Quick file goes with "hold after print" and no pass code.
  void folderSelectionPopUpButtonProc(Control* sender);
  /// As in the pop-up; quick file and main folder also clear folder name and folder pass code.
  void folderSelectionMatrixProc(Control* sender);
  /// The user number takes keyboard focus, whichever choice was made.
  void authenticationMatrixProc(Control* sender);
  /// On: keeps the login name aside and shows bullets. Off: forgets it.
  void loginNameButtonProc(Control* sender);
  /// The action of any field's hold button: freezes or frees the field. That of the login name is
  /// `loginNameButtonProc`.
  void holdButtonProc(Held field);

  // Controls whose operation changes nothing else.
  void tabProc(Control* /*sender*/) {}
  void suspendKeyETextProc(Control* /*sender*/) {}
  void folderPasswordETextProc(Control* /*sender*/) {}
  void loginNameETextProc(Control* /*sender*/) {}
  void passwordETextProc(Control* /*sender*/) {}
  void userNumberETextProc(Control* /*sender*/) {}
  void userNameETextProc(Control* /*sender*/) {}
  void jobNameETextProc(Control* /*sender*/) {}
  void accountNumberETextProc(Control* /*sender*/) {}
  void printersAddressButtonProc(Control* /*sender*/) {}

 private:
  using Rules = void (EnablingRules::*)();

  void clearUnlessHeld(Held field);
  void quickFileChosen();
  void leaveQuickFile();
  void runRules(std::initializer_list<Rules> rules);

  PanelState& m_state;
  EnablingRules& m_rules;
};

}  // namespace kesto
