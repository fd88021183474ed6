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
    // Quick file goes with hold after print alone.
    ActionCase{"folderSelectionPopup=0 suspendMatrix=1", "suspendMatrix=0",
               "suspendMatrix=0 folderSelectionPopup=1"},
    ActionCase{"folderSelectionMatrix=0 suspendMatrix=1 folderPassword=2", "suspendMatrix=2",
               "suspendMatrix=2 folderSelectionMatrix=1 folderPassword="},
    ActionCase{"folderSelectionPopup=0", "folderSelectionMatrix=0;suspendMatrix=1",
               "suspendMatrix=1 folderSelectionPopup=0 folderSelectionMatrix=0"},
    ActionCase{"suspendMatrix=2 suspendKey=1 folderPassword=2 folderName=n", "folderSelectionPopup=0",
               "suspendMatrix=1 suspendKey= folderPassword=2 folderName=n focus="},
    ActionCase{"suspendMatrix=0 suspendKey=1 suspendKeyButton=1", "folderSelectionPopup=0",
               "suspendMatrix=1 suspendKey=1"},
    ActionCase{"suspendMatrix=2 suspendKey=1", "folderSelectionPopup=3",
               "suspendMatrix=2 suspendKey=1 focus=folderPassword"},
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
    // The user number takes focus, held or not.
    ActionCase{"", "authenticationMatrix=1", "focus=userNumber"},
    ActionCase{"userNumberButton=1", "authenticationMatrix=1;authenticationMatrix=0", "focus=userNumber"},
    // The held login name.
    ActionCase{"loginName=jdoe1", "loginNameButton", "loginName=\u2022\u2022\u2022\u2022\u2022 focus="},
    ActionCase{"loginName=\U0001F600", "loginNameButton", "loginName=\u2022\u2022"},
    ActionCase{"loginName=jdoe1", "loginNameButton;loginNameButton", "loginName= focus=loginName"},
    // A hold button leaves the text, and gives focus back where the field is free.
    ActionCase{"suspendKey=1", "suspendKeyButton", "suspendKey=1 focus="},
    ActionCase{"suspendKey=1", "suspendKeyButton;suspendKeyButton", "suspendKey=1 focus=suspendKey"},
    ActionCase{"password=s", "passwordButton;passwordButton", "password=s focus=password"},
    ActionCase{"userNumber=4", "userNumberButton;userNumberButton", "userNumber=4 focus=userNumber"},
    ActionCase{"accountNumber=4", "accountNumberButton;accountNumberButton", "focus=accountNumber"},
    ActionCase{"", "userNameButton;userNameButton", "focus=userName"},
    ActionCase{"", "jobNameButton;jobNameButton;userNameButton", "focus="},
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

// Every choice of folder and authentication, with retention and without, for every set of held fields.
TEST_F(ControlActionsTest, TheRulesHoldWhateverTheUserDoes) {
  TestPanel panel(platform);
  panel.restore();
  const auto use = [&](const QString& operation) {
    ASSERT_TRUE(operate(panel.view(), operation)) << operation;
    expectRulesHold(panel.view(), {firstFolderItem});
  };
  const QStringList freezable{u"suspendKey"_s, u"folderPassword"_s, u"folderName"_s, u"loginName"_s,
                              u"password"_s};
  use(u"retentionCheckBox"_s);
  for (unsigned held = 0; held < 1U << freezable.size(); ++held) {
    SCOPED_TRACE(held);
    for (const char* freeAll :
         {"folderSelectionPopup=1", "folderSelectionMatrix=2", "authenticationMatrix=0"})
      use(Text(freeAll));
    for (qsizetype i = 0; i < freezable.size(); ++i) {
      const QString hold = freezable[i] + u"Button"_s;
      if (button(panel.view(), hold).state() != static_cast<int>(held >> i & 1U)) use(hold);
    }
    for (int choice = 0; choice < 24; ++choice) {
      use(u"folderSelectionPopup=%1"_s.arg(QList{0, 1, 3, 4}[choice % 4]));
      use(u"folderSelectionMatrix=%1"_s.arg(choice / 4 % 3));
      use(u"authenticationMatrix=%1"_s.arg(choice / 12));
      use(u"suspendMatrix=%1"_s.arg(choice % 3));
      use(u"retentionCheckBox"_s);
      use(u"retentionCheckBox"_s);
      if (HasFailure()) return;
    }
  }
}

TEST(ControlActions, AHeldLoginNameIsKeptOnceAlsoAnEmptyOne) {
  PanelGroups panel;
  setControls(*panel.view, "loginName=jdoe");
  for (const int state : {1, 1, 0, 1}) {
    EXPECT_EQ(panel.state.loginNameStringRef, panel.state.loginNameLockFlag ? u"jdoe"_s : QString());
    button(*panel.view, "loginNameButton").setState(state);
    panel.actions.loginNameButtonProc(nullptr);
  }
  EXPECT_FALSE(panel.state.loginNameStringRef.isNull());
  setControls(*panel.view, "retentionCheckBox=1 suspendKeyButton=2");  // which is not on
  EXPECT_TRUE(panel.rules.runByName(u"suspendKeyEditTextEnabled"_s));
  EXPECT_TRUE(isAvailable(field(*panel.view, "suspendKey")));
}

}  // namespace
}  // namespace kesto
