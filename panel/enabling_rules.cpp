#include "panel/enabling_rules.h"

#include <array>
#include <variant>

#include "panel/model/panel_view.h"

namespace kesto {
namespace {

// What the rules read, worked out once per run.
struct Conditions {
  bool retention;        // the retention check box is on
  bool quickFile;        // chosen in the pop-up or in the matrix
  bool protectedFolder;  // a printer's folder that asks for a pass code is chosen in the pop-up
  bool customFolder;     // chosen in the matrix
  bool login;            // authentication by login name
};

bool isProtectedFolder(const PanelState& state, int item) {
  if (item < firstFolderItem || !state.folderList) return false;
  const auto folder = static_cast<std::size_t>(item - firstFolderItem);
  return folder < state.folderList->size() && (*state.folderList)[folder].password;
}

Conditions conditionsOf(const PanelState& state) {
  const Outlets& o = state.outlets;
  const int item = o.folderSelectionPopup == nullptr ? -1 : o.folderSelectionPopup->selectedIndex();
  const int row = o.folderSelectionMatrix == nullptr ? -1 : o.folderSelectionMatrix->selectedRow();
  return {
      .retention = isOn(o.retentionCheckBox),
      .quickFile = item == 0 || row == 0,
      .protectedFolder = isProtectedFolder(state, item),
      .customFolder = row == 2,
      .login = o.authenticationMatrix == nullptr || o.authenticationMatrix->selectedRow() == 0,
  };
}

using Target = std::variant<std::monostate, TextField * Outlets::*, Button * Outlets::*,
                            RadioMatrix * Outlets::*, PopUp * Outlets::*>;
using Condition = bool (*)(const Conditions&);

// A button, matrix or pop-up is enabled while its condition holds. A label or field is undimmed while its
// condition holds and its hold button, when it has one, is not on.
struct Row {
  const char* name;
  Target target;
  Condition available;
  Button* Outlets::*hold = nullptr;
};

bool always(const Conditions&) {
  return true;
}
bool retention(const Conditions& c) {
  return c.retention;
}
bool passCode(const Conditions& c) {
  return c.retention && !c.quickFile;
}
bool folderPassCode(const Conditions& c) {
  return c.retention && (c.protectedFolder || c.customFolder);
}
bool folderName(const Conditions& c) {
  return c.retention && c.customFolder;
}
bool login(const Conditions& c) {
  return c.login;
}

using O = Outlets;

// In the order of EnablingRules::Rule.
constexpr std::array table{
    Row{"suspendMatrixEnabled", &O::suspendMatrix, retention},
    Row{"suspendKeyStaticTextEnabled", &O::suspendKeyStaticText, passCode},
    Row{"suspendKeyEditTextEnabled", &O::suspendKeyEditText, passCode, &O::suspendKeyButton},
    Row{"suspendKeyButtonEnabled", &O::suspendKeyButton, passCode},
    Row{"folderSelectionStaticTextEnabled", &O::folderSelectionStaticText, retention},
    Row{"folderSelectionPopupEnabled", &O::folderSelectionPopup, retention},
    Row{"folderPasswordStaticTextEnabled", &O::folderPasswordStaticText, folderPassCode},
    Row{"folderPasswordEditTextEnabled", &O::folderPasswordEditText, folderPassCode,
        &O::folderPasswordButton},
    Row{"folderPasswordButtonEnabled", &O::folderPasswordButton, folderPassCode},
    Row{"folderSelectionMatrixEnabled", &O::folderSelectionMatrix, retention},
    Row{"folderNameEditTextEnabled", &O::folderNameEditText, folderName, &O::folderNameButton},
    Row{"folderNameButtonEnabled", &O::folderNameButton, folderName},
    Row{"loginNameStaticTextEnabled", &O::loginNameStaticText, login},
    Row{"loginNameEditTextEnabled", &O::loginNameEditText, login, &O::loginNameButton},
    Row{"loginNameButtonEnabled", &O::loginNameButton, login},
    Row{"passwordStaticTextEnabled", &O::passwordStaticText, login},
    Row{"passwordEditTextEnabled", &O::passwordEditText, login, &O::passwordButton},
    Row{"passwordButtonEnabled", &O::passwordButton, login},
    Row{"userNumberEditTextEnabled", &O::userNumberEditText, always, &O::userNumberButton},
    Row{"userNumberButtonEnabled", {}, always},
    Row{"userNameEditTextEnabled", &O::userNameEditText, always, &O::userNameButton},
    Row{"jobNameEditTextEnabled", &O::jobNameEditText, always, &O::jobNameButton},
    Row{"accountNumberEditTextEnabled", &O::accountNumberEditText, always, &O::accountNumberButton},
    Row{"accountNumberButtonEnabled", {}, always},
};
static_assert(table.size() == EnablingRules::accountNumberButtonEnabledRule + 1);

const Row* rowNamed(const QString& name) {
  for (const Row& row : table) {
    if (name == QLatin1String(row.name)) return &row;
  }
  return nullptr;
}

}  // namespace

void MySetEnabled::myVq250nJCHilite(TextField& field, bool dim) {
  field.setTextColor(dim ? TextField::Color::Gray : TextField::Color::Black);
  if (field.tag() == 0) return;
  field.setEditable(!dim);
  field.setSelectable(!dim);
  field.view()->makeFirstResponder(dim ? nullptr : &field);
}

void EnablingRules::run(Rule rule) {
  const Row& row = table.at(rule);
  const Outlets& outlets = m_state.outlets;
  const bool available = row.available(conditionsOf(m_state));
  const auto apply = [&](auto outlet) {
    if constexpr (!std::is_same_v<decltype(outlet), std::monostate>) {
      auto* control = outlets.*outlet;
      if (control == nullptr) return;
      if constexpr (std::is_same_v<decltype(control), TextField*>) {
        const bool held = row.hold != nullptr && isExactlyOn(outlets.*row.hold);
        MySetEnabled::myVq250nJCHilite(*control, !available || held);
      } else {
        control->setEnabled(available);
      }
    }
  };
  std::visit(apply, row.target);
}

bool EnablingRules::runByName(const QString& name) {
  const Row* row = rowNamed(name);
  if (row == nullptr) return false;
  run(static_cast<Rule>(row - table.data()));
  return true;
}

bool EnablingRules::exists(const QString& name) {
  return rowNamed(name) != nullptr;
}

}  // namespace kesto
