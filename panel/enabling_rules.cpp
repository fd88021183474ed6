#include "panel/enabling_rules.h"

#include <array>
#include <variant>

#include "panel/model/panel_view.h"

namespace kesto {
namespace {

// The conditions of the rules, computed once for each run.
struct Conditions {
  bool retention;        // the retention check box is on
  bool quickFile;        // chosen in the pop-up or in the matrix
  bool protectedFolder;  // a folder that asks for a pass code is chosen in the pop-up
  bool customFolder;     // chosen in the matrix
  bool login;            // authentication by login name
};

Conditions conditionsOf(const PanelState& state) {
  const Outlets& o = state.outlets;
  const int item = o.folderSelectionPopup == nullptr ? -1 : o.folderSelectionPopup->selectedIndex();
  const FolderEntry* folder = state.folderOfItem(item);
  const int row = o.folderSelectionMatrix == nullptr ? -1 : o.folderSelectionMatrix->selectedRow();
  return {
      .retention = isOn(o.retentionCheckBox),
      .quickFile = item == QuickFile || row == QuickFile,
      .protectedFolder = folder != nullptr && folder->password,
      .customFolder = row == CustomFolder,
      .login = o.authenticationMatrix == nullptr || o.authenticationMatrix->selectedRow() == ByLogin,
  };
}

using Target = std::variant<std::monostate, TextField * Outlets::*, Button * Outlets::*,
                            RadioMatrix * Outlets::*, PopUp * Outlets::*>;
using Condition = bool (*)(const Conditions&);

// A button, matrix or pop-up is enabled while its condition holds. A label or field is undimmed while its
// condition holds and its hold button, if any, is off.
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

constexpr std::array table{
#define KESTO_RULE_ROW(name, ...) Row{#name, __VA_ARGS__},
    KESTO_ENABLING_RULES(KESTO_RULE_ROW)
#undef KESTO_RULE_ROW
};

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
