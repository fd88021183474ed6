#include "panel/control_actions.h"

#include <QtCore/QJsonArray>

#include "tests/support/availability.h"
#include "tests/support/test_panel.h"

namespace kesto {
namespace {

using namespace test;

// The pop-up of a restored panel offers a protected folder (item 3) and an open one (item 4).
class ControlActionsTest : public testing::Test {
 protected:
  ControlActionsTest() {
    const QJsonArray files{QJsonObject{{u"name"_s, u"Safe"_s}, {u"password"_s, true}},
                           QJsonObject{{u"name"_s, u"Open"_s}}};
    platform.remember({{u"files"_s, files}});
  }

  TestPlatform platform;
};

struct ActionCase {
  Text before;
  Text operations;  // separated by ";"
  Text after;
};

const std::array actionCases{
    // Retention off: the first hold choice, no quick file, what is not held cleared.
    ActionCase{"folderSelectionPopup=0 suspendMatrix=1 suspendKey=1 folderPassword=2", "retentionCheckBox",
               "suspendMatrix=0 folderSelectionPopup=1 folderSelectionMatrix=1 suspendKey= "
               "folderPassword= "
               "focus="},
    ActionCase{"folderSelectionMatrix=0 suspendMatrix=1 folderName=n", "retentionCheckBox",
               "suspendMatrix=0 folderSelectionPopup=1 folderSelectionMatrix=1 folderName= focus="},
    ActionCase{"folderSelectionMatrix=2 folderSelectionPopup=3 suspendMatrix=2 folderName=n",
               "retentionCheckBox",
               "suspendMatrix=0 folderSelectionPopup=3 folderSelectionMatrix=2 folderName= focus="},
    ActionCase{"suspendKeyButton=1 folderPasswordButton=1 folderNameButton=1 suspendKey=1 "
               "folderPassword=2 folderName=n",
               "retentionCheckBox", "suspendKey=1 folderPassword=2 folderName=n suspendKeyButton=1 focus="},
    // And on again: no value changes.
    ActionCase{"folderSelectionMatrix=2 folderSelectionPopup=3", "retentionCheckBox;retentionCheckBox",
               "folderSelectionMatrix=2 folderSelectionPopup=3 suspendMatrix=0 focus=folderName"},
    ActionCase{"", "retentionCheckBox;retentionCheckBox", "folderSelectionMatrix=1 focus="},
    // Quick file goes with hold after print alone.
    ActionCase{"folderSelectionPopup=0 suspendMatrix=1", "suspendMatrix=0",
               "suspendMatrix=0 folderSelectionPopup=1"},
    ActionCase{"folderSelectionMatrix=0 suspendMatrix=1 folderPassword=2", "suspendMatrix=2",
               "suspendMatrix=2 folderSelectionMatrix=1 folderPassword="},
    ActionCase{"folderSelectionPopup=0", "folderSelectionMatrix=0;suspendMatrix=1",
               "suspendMatrix=1 folderSelectionPopup=0 folderSelectionMatrix=0"},
    ActionCase{"suspendMatrix=2 suspendKey=1 folderPassword=2 folderName=n", "folderSelectionPopup=0",
               "suspendMatrix=1 suspendKey= folderPassword=2 folderName=n focus="},
    ActionCase{"suspendMatrix=1 suspendKey=1", "folderSelectionPopup=0", "suspendMatrix=1 suspendKey="},
    ActionCase{"suspendMatrix=0 suspendKey=1 suspendKeyButton=1", "folderSelectionPopup=0",
               "suspendMatrix=1 suspendKey=1"},
    ActionCase{"suspendMatrix=2 suspendKey=1", "folderSelectionPopup=3",
               "suspendMatrix=2 suspendKey=1 focus=folderPassword"},
    ActionCase{"folderPasswordButton=1", "folderSelectionPopup=3", "focus="},
    ActionCase{"", "folderSelectionPopup=4", "folderSelectionPopup=4 focus="},
    // The folder matrix.
    ActionCase{"suspendMatrix=0 suspendKey=1 folderPassword=2 folderName=n", "folderSelectionMatrix=0",
               "suspendMatrix=1 suspendKey= folderPassword= folderName= focus="},
    ActionCase{"folderSelectionMatrix=2 suspendKey=1 folderPassword=2 folderName=n",
               "folderSelectionMatrix=1", "suspendMatrix=0 suspendKey=1 folderPassword= folderName= focus="},
    ActionCase{"folderPasswordButton=1 folderNameButton=1 folderPassword=2 folderName=n",
               "folderSelectionMatrix=1", "folderPassword=2 folderName=n"},
    ActionCase{"suspendMatrix=2 suspendKey=1 folderPassword=2 folderName=n", "folderSelectionMatrix=2",
               "suspendMatrix=2 suspendKey=1 folderPassword=2 folderName=n "
               "focus=folderName"},
    ActionCase{"folderNameButton=1", "folderSelectionMatrix=2", "focus="},
    // The user number takes focus, held or not.
    ActionCase{"", "authenticationMatrix=1", "focus=userNumber"},
    ActionCase{"userNumberButton=1", "authenticationMatrix=1;authenticationMatrix=0", "focus=userNumber"},
    // The held login name.
    ActionCase{"loginName=jdoe1", "loginNameButton", "loginName=\u2022\u2022\u2022\u2022\u2022 focus="},
    ActionCase{"loginName=\U0001F600", "loginNameButton", "loginName=\u2022\u2022"},
    ActionCase{"loginName=", "loginNameButton", "loginName="},
    ActionCase{"loginName=jdoe1", "loginNameButton;loginNameButton", "loginName= focus=loginName"},
    // A hold button leaves the text, and gives focus back where the field is free.
    ActionCase{"suspendKey=1", "suspendKeyButton", "suspendKey=1 focus="},
    ActionCase{"suspendKey=1", "suspendKeyButton;suspendKeyButton", "suspendKey=1 focus=suspendKey"},
    ActionCase{"password=s", "passwordButton;passwordButton", "password=s focus=password"},
    ActionCase{"userNumber=4", "userNumberButton;userNumberButton", "userNumber=4 focus=userNumber"},
    ActionCase{"accountNumber=4", "accountNumberButton;accountNumberButton", "focus=accountNumber"},
    ActionCase{"", "userNameButton;userNameButton", "focus=userName"},
    ActionCase{"", "jobNameButton;jobNameButton;userNameButton", "focus="},
    ActionCase{
        "",
        "folderSelectionMatrix=2;suspendKeyButton;folderPasswordButton;folderNameButton;passwordButton;"
        "userNumberButton;userNameButton;jobNameButton;accountNumberButton",
        "focus="},
};

TEST_F(ControlActionsTest, OneByOne) {
  for (const ActionCase& row : actionCases) {
    SCOPED_TRACE(row.before + u" -> "_s + row.operations);
    TestPanel fresh(platform);
    fresh.restore();
    ASSERT_TRUE(operate(fresh.view(), "retentionCheckBox"));
    setControls(fresh.view(), row.before);
    for (const QString& operation : row.operations.split(u';')) {
      EXPECT_TRUE(operate(fresh.view(), operation)) << operation;
    }
    expectControls(fresh.view(), row.after);
    expectRulesHold(fresh.view(), {firstFolderItem});
  }
}

TEST(ControlActions, TheHeldLoginNameIsKeptAside) {
  PanelGroups panel;
  field(*panel.view, "loginName").setStringValue(u"jdoe"_s);
  Button& hold = button(*panel.view, "loginNameButton");
  hold.setState(1);
  for (int time = 0; time < 2; ++time) {
    panel.actions.loginNameButtonProc(nullptr);
    EXPECT_EQ(panel.state.loginNameStringRef, u"jdoe"_s);
    EXPECT_TRUE(panel.state.loginNameLockFlag);
    expectControls(*panel.view, "loginName=\u2022\u2022\u2022\u2022");
  }
  hold.setState(0);
  panel.actions.loginNameButtonProc(nullptr);
  EXPECT_TRUE(panel.state.loginNameStringRef.isNull());
  EXPECT_FALSE(panel.state.loginNameLockFlag);
  hold.setState(1);
  panel.actions.loginNameButtonProc(nullptr);
  EXPECT_EQ(panel.state.loginNameStringRef, u""_s);
  EXPECT_FALSE(panel.state.loginNameStringRef.isNull()) << "an empty name is held, too";
}

TEST(ControlActions, EveryActionToleratesAbsentControls) {
  using A = ControlActions;
  constexpr std::array all{
      &A::retentionCBoxProc,         &A::suspendKeyMatrixProc,     &A::folderSelectionPopUpButtonProc,
      &A::folderSelectionMatrixProc, &A::authenticationMatrixProc, &A::loginNameButtonProc};
  for (const QString& layout : {u"JobControl4"_s, u"JobControl5"_s, QString()}) {
    PanelGroups panel(layout.isNull() ? u"JobControl6"_s : layout);
    if (layout.isNull()) panel.state.outlets = {};
    for (const HeldField& row : heldFields)
      panel.actions.holdButtonProc(row.field);
    for (const auto action : all)
      (panel.actions.*action)(nullptr);
    EXPECT_EQ(panel.view->firstResponder() == nullptr, layout.isNull());
  }
}

}  // namespace
}  // namespace kesto
