// What the panel lets the user operate, told from the values of its controls alone.
#pragma once

#include <QtCore/QMap>
#include <QtCore/QSet>

#include "tests/support/controls.h"

namespace kesto::test {

/// The values that decide; -1 stands for a pop-up or matrix that the layout leaves out.
struct Choices {
  bool isRetained = false;
  int item = -1;
  int row = -1;
  bool isFolderProtected = false;  ///< The chosen item is a folder that asks for a pass code.
  bool isLogin = true;
  QSet<QString> held;  ///< The fields whose hold button is on, without "EditText".
};

/// Control to availability, for every control that some rule sets.
inline QMap<QString, bool> availabilityOf(const Choices& c) {
  const auto free = [&](const Text& name) { return !c.held.contains(name); };
  const bool passCode = c.isRetained && c.item != 0 && c.row != 0;
  const bool custom = c.isRetained && c.row == 2;
  const bool folderCode = custom || (c.isRetained && c.isFolderProtected);
  return {
      {u"suspendMatrix"_s, c.isRetained},
      {u"folderSelectionStaticText"_s, c.isRetained},
      {u"folderSelectionPopup"_s, c.isRetained},
      {u"folderSelectionMatrix"_s, c.isRetained},
      {u"suspendKeyStaticText"_s, passCode},
      {u"suspendKeyButton"_s, passCode},
      {u"suspendKeyEditText"_s, passCode && free("suspendKey")},
      {u"folderPasswordStaticText"_s, folderCode},
      {u"folderPasswordButton"_s, folderCode},
      {u"folderPasswordEditText"_s, folderCode && free("folderPassword")},
      {u"folderNameButton"_s, custom},
      {u"folderNameEditText"_s, custom && free("folderName")},
      {u"loginNameStaticText"_s, c.isLogin},
      {u"loginNameButton"_s, c.isLogin},
      {u"loginNameEditText"_s, c.isLogin && free("loginName")},
      {u"passwordStaticText"_s, c.isLogin},
      {u"passwordButton"_s, c.isLogin},
      {u"passwordEditText"_s, c.isLogin && free("password")},
      {u"userNumberEditText"_s, free("userNumber")},
      {u"accountNumberEditText"_s, free("accountNumber")},
      {u"userNameEditText"_s, free("userName")},
      {u"jobNameEditText"_s, free("jobName")},
  };
}

/// The nine fields that a hold button can freeze, without "EditText" and "Button", in the order of their
/// bits.
inline const QStringList heldNames{u"suspendKey"_s, u"loginName"_s,     u"password"_s,
                                   u"userName"_s,   u"jobName"_s,       u"folderPassword"_s,
                                   u"userNumber"_s, u"accountNumber"_s, u"folderName"_s};

/// Expects every control of a view to be as available as the values of the others make it, when the folders
/// of the items in `protectedItems` ask for a pass code.
inline void expectRulesHold(const PanelView& view, const QSet<int>& protectedItems) {
  Choices choices;
  choices.isRetained = valueOf(view, "retentionCheckBox") != u"0";
  if (view.control(u"folderSelectionPopup"_s) != nullptr)
    choices.item = popUp(view, "folderSelectionPopup").selectedIndex();
  if (view.control(u"folderSelectionMatrix"_s) != nullptr)
    choices.row = matrix(view, "folderSelectionMatrix").selectedRow();
  choices.isFolderProtected = protectedItems.contains(choices.item);
  choices.isLogin = matrix(view, "authenticationMatrix").selectedRow() == 0;
  for (const QString& name : heldNames) {
    const auto* hold = view.control<Button>(name + u"Button"_s);
    if (hold != nullptr && hold->state() == 1) choices.held.insert(name);
  }
  const QMap<QString, bool> expected = availabilityOf(choices);
  for (auto it = expected.begin(); it != expected.end(); ++it) {
    const Control* control = view.control(it.key());
    EXPECT_EQ(control == nullptr ? it.value() : isAvailable(*control), it.value()) << it.key();
  }
}

}  // namespace kesto::test
