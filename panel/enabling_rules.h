// Which controls the user may change, as a table of rules with one control and one condition each.
#pragma once

#include <cstdint>

#include "panel/state.h"

namespace kesto {

/// What the panel adds to every text field.
namespace MySetEnabled {

/// Shows a label or text field as available or not. A label (tag 0) turns black or gray. A dimmed text field
/// is gray and neither editable nor selectable, and no field of the window keeps the keyboard focus. An
/// undimmed one is black, editable and selectable, and takes the keyboard focus.
void myVq250nJCHilite(TextField& field, bool dim);

}  // namespace MySetEnabled

// The rules: name, control, condition of its availability, hold button of a field. Each row becomes an
// operation of EnablingRules and a row of its table.
#define KESTO_ENABLING_RULES(RULE)                                                                          \
  RULE(suspendMatrixEnabled, &O::suspendMatrix, retention)                                                  \
  RULE(suspendKeyStaticTextEnabled, &O::suspendKeyStaticText, passCode)                                     \
  RULE(suspendKeyEditTextEnabled, &O::suspendKeyEditText, passCode, &O::suspendKeyButton)                   \
  RULE(suspendKeyButtonEnabled, &O::suspendKeyButton, passCode)                                             \
  RULE(folderSelectionStaticTextEnabled, &O::folderSelectionStaticText, retention)                          \
  RULE(folderSelectionPopupEnabled, &O::folderSelectionPopup, retention)                                    \
  RULE(folderPasswordStaticTextEnabled, &O::folderPasswordStaticText, folderPassCode)                       \
  RULE(folderPasswordEditTextEnabled, &O::folderPasswordEditText, folderPassCode, &O::folderPasswordButton) \
  RULE(folderPasswordButtonEnabled, &O::folderPasswordButton, folderPassCode)                               \
  RULE(folderSelectionMatrixEnabled, &O::folderSelectionMatrix, retention)                                  \
  RULE(folderNameEditTextEnabled, &O::folderNameEditText, folderName, &O::folderNameButton)                 \
  RULE(folderNameButtonEnabled, &O::folderNameButton, folderName)                                           \
  RULE(loginNameStaticTextEnabled, &O::loginNameStaticText, login)                                          \
  RULE(loginNameEditTextEnabled, &O::loginNameEditText, login, &O::loginNameButton)                         \
  RULE(loginNameButtonEnabled, &O::loginNameButton, login)                                                  \
  RULE(passwordStaticTextEnabled, &O::passwordStaticText, login)                                            \
  RULE(passwordEditTextEnabled, &O::passwordEditText, login, &O::passwordButton)                            \
  RULE(passwordButtonEnabled, &O::passwordButton, login)                                                    \
  RULE(userNumberEditTextEnabled, &O::userNumberEditText, always, &O::userNumberButton)                     \
  RULE(userNumberButtonEnabled, {}, always)                                                                 \
  RULE(userNameEditTextEnabled, &O::userNameEditText, always, &O::userNameButton)                           \
  RULE(jobNameEditTextEnabled, &O::jobNameEditText, always, &O::jobNameButton)                              \
  RULE(accountNumberEditTextEnabled, &O::accountNumberEditText, always, &O::accountNumberButton)            \
  RULE(accountNumberButtonEnabled, {}, always)

/// The enabling rules. Each reads the controls' states and sets its one control; none keeps a state. An
/// absent control is skipped, and a condition on an absent control is false. An absent authentication matrix
/// counts as one with its first row selected.
class EnablingRules {
 public:
  explicit EnablingRules(PanelState& state) : m_state(state) {}

  enum Rule : std::uint8_t {
#define KESTO_RULE_NAME(name, ...) name##Rule,
    KESTO_ENABLING_RULES(KESTO_RULE_NAME)
#undef KESTO_RULE_NAME
  };

#define KESTO_RULE_OPERATION(name, ...) \
  void name() {                         \
    run(name##Rule);                    \
  }
  KESTO_ENABLING_RULES(KESTO_RULE_OPERATION)
#undef KESTO_RULE_OPERATION

  /// Runs the rule of that name, which a layout asks for; false when there is none.
  bool runByName(const QString& name);
  /// Whether there is a rule of that name.
  static bool exists(const QString& name);

 private:
  void run(Rule rule);
  PanelState& m_state;
};

}  // namespace kesto
