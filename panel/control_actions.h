// What happens when the user operates the panel's controls.
#pragma once

#include "panel/enabling_rules.h"

namespace kesto {

/// The actions of the panel's controls. They keep the choices consistent, clear fields whose value no longer
/// applies unless they are held, and run the enabling rules that the change affects. They ignore the sender
/// and tolerate absent controls. The settings reader sends the same actions after it has set the controls.
class ControlActions {
 public:
  ControlActions(PanelState& state, EnablingRules& rules) : m_state(state), m_rules(rules) {}

  /// Switching retention off selects the first hold choice, leaves quick file and clears the storage fields
  /// that are not held.
  void retentionCBoxProc(Control* sender);
  /// Only "hold after print" can be combined with quick file. With another choice the main folder replaces
  /// quick file.
  void suspendKeyMatrixProc(Control* sender);
  /// Quick file selects "hold after print" and clears the pass code unless it is held.
  void folderSelectionPopUpButtonProc(Control* sender);
  /// Does the same as the pop-up's action. Quick file and main folder also clear folder name and folder pass
  /// code.
  void folderSelectionMatrixProc(Control* sender);
  /// The user number takes the keyboard focus after either choice.
  void authenticationMatrixProc(Control* sender);
  /// On: keeps the login name and shows bullets instead. Off: forgets it.
  void loginNameButtonProc(Control* sender);
  /// The action of every hold button except the login name's (`loginNameButtonProc`): freezes or frees the
  /// field.
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
