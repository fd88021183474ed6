// What the panel lets the user operate, worked out from the values of its controls alone.
#pragma once

#include <QtCore/QMap>
#include <QtCore/QSet>

#include "tests/support/controls.h"

namespace kesto::test {

/// The nine fields that a hold button can freeze, without "EditText" and "Button", in the order of their
/// bits.
inline const QStringList heldNames{u"suspendKey"_s, u"loginName"_s,     u"password"_s,
                                   u"userName"_s,   u"jobName"_s,       u"folderPassword"_s,
                                   u"userNumber"_s, u"accountNumber"_s, u"folderName"_s};

/// Expects every control that some rule sets to be as available as the values of the others make it, when the
/// folders of the items in `protectedItems` ask for a pass code. Controls that the layout leaves out are
/// tolerated.
inline void expectRulesHold(const PanelView& view, const QSet<int>& protectedItems) {
  const auto* folders = view.control<PopUp>(u"folderSelectionPopup"_s);
  const auto* kinds = view.control<RadioMatrix>(u"folderSelectionMatrix"_s);
  const int item = folders == nullptr ? -1 : folders->selectedIndex();
  const int row = kinds == nullptr ? -1 : kinds->selectedRow();
  const bool retention = button(view, "retentionCheckBox").state() != 0;
  const bool passCode = retention && item != 0 && row != 0;
  const bool custom = retention && row == 2;
  const bool folderCode = custom || (retention && protectedItems.contains(item));
  const bool login = matrix(view, "authenticationMatrix").selectedRow() == 0;

  QMap<QString, bool> expected{
      {u"suspendMatrix"_s, retention},        {u"folderSelectionStaticText"_s, retention},
      {u"folderSelectionPopup"_s, retention}, {u"folderSelectionMatrix"_s, retention},
      {u"suspendKeyStaticText"_s, passCode},  {u"folderPasswordStaticText"_s, folderCode},
      {u"loginNameStaticText"_s, login},      {u"passwordStaticText"_s, login}};
  const bool conditions[] = {passCode, login, login, true, true, folderCode, true, true, custom};
  for (qsizetype i = 0; i < heldNames.size(); ++i) {
    const auto* hold = view.control<Button>(heldNames[i] + u"Button"_s);
    const bool isHeld = hold != nullptr && hold->state() == 1;
    expected.insert(heldNames[i] + u"Button"_s, conditions[i]);
    expected.insert(heldNames[i] + u"EditText"_s, conditions[i] && !isHeld);
  }
  for (auto it = expected.begin(); it != expected.end(); ++it) {
    const Control* control = view.control(it.key());
    EXPECT_EQ(control == nullptr ? it.value() : isAvailable(*control), it.value()) << it.key();
  }
}

}  // namespace kesto::test
