#include "panel/control_actions.h"

#include <QtCore/QJsonArray>
#include <random>

#include "tests/support/availability.h"
#include "tests/support/test_panel.h"

namespace kesto {
namespace {

using namespace test;

// The pop-up of a restored panel offers a protected folder (item 3) and an open one (item 4).
class ControlActionsTest : public testing::Test {
 protected:
  ControlActionsTest() {
    platform.remember({{u"files"_s, QJsonArray{jsonOf({.name = u"Safe"_s, .password = true}),
                                               jsonOf({.name = u"Open"_s})}}});
  }

  TestPlatform platform;
};

// The controls before, the operations, separated by ";", and the controls afterwards.
const std::tuple<Text, Text, Text> actionCases[] = {
    // Retention off: the first hold choice, no quick file, what is not held cleared.
    {"item=0 hold=1 suspendKey=1 folderPassword=2", "retention",
     "hold=0 item=1 folder=1 suspendKey= folderPassword= focus="},
    {"folder=0 hold=1 folderName=n", "retention", "hold=0 item=1 folder=1 folderName= focus="},
    {"folder=2 item=3 hold=2 folderName=n", "retention", "hold=0 item=3 folder=2 folderName= focus="},
    {"suspendKeyButton=1 folderPasswordButton=1 folderNameButton=1 suspendKey=1 folderPassword=2 "
     "folderName=n",
     "retention", "suspendKey=1 folderPassword=2 folderName=n suspendKeyButton=1 focus="},
    // And on again: no value changes.
    {"folder=2 item=3", "retention;retention", "folder=2 item=3 hold=0 focus=folderName"},
    // Quick file goes with hold after print alone.
    {"item=0 hold=1", "hold=0", "hold=0 item=1"},
    {"folder=0 hold=1 folderPassword=2", "hold=2", "hold=2 folder=1 folderPassword="},
    {"item=0", "folder=0;hold=1", "hold=1 item=0 folder=0"},
    {"hold=2 suspendKey=1 folderPassword=2 folderName=n", "item=0",
     "hold=1 suspendKey= folderPassword=2 folderName=n focus="},
    {"hold=0 suspendKey=1 suspendKeyButton=1", "item=0", "hold=1 suspendKey=1"},
    {"hold=2 suspendKey=1", "item=3", "hold=2 suspendKey=1 focus=folderPassword"},
    // The folder matrix.
    {"hold=0 suspendKey=1 folderPassword=2 folderName=n", "folder=0",
     "hold=1 suspendKey= folderPassword= folderName= focus="},
    {"folder=2 suspendKey=1 folderPassword=2 folderName=n", "folder=1",
     "hold=0 suspendKey=1 folderPassword= folderName= focus="},
    {"folderPasswordButton=1 folderNameButton=1 folderPassword=2 folderName=n", "folder=1",
     "folderPassword=2 folderName=n"},
    {"hold=2 suspendKey=1 folderPassword=2 folderName=n", "folder=2",
     "hold=2 suspendKey=1 folderPassword=2 folderName=n focus=folderName"},
    // The user number takes focus, held or not.
    {"", "who=1", "focus=userNumber"},
    {"userNumberButton=1", "who=1;who=0", "focus=userNumber"},
    // The held login name.
    {"loginName=jdoe1", "loginNameButton", "loginName=\u2022\u2022\u2022\u2022\u2022 focus="},
    {"loginName=\U0001F600", "loginNameButton", "loginName=\u2022\u2022"},
    {"loginName=jdoe1", "loginNameButton;loginNameButton", "loginName= focus=loginName"},
    // A hold button leaves the text, and gives focus back where the field is free.
    {"suspendKey=1", "suspendKeyButton", "suspendKey=1 focus="},
    {"suspendKey=1", "suspendKeyButton;suspendKeyButton", "suspendKey=1 focus=suspendKey"},
    {"password=s", "passwordButton;passwordButton", "password=s focus=password"},
    {"userNumber=4", "userNumberButton;userNumberButton", "userNumber=4 focus=userNumber"},
    {"accountNumber=4", "accountNumberButton;accountNumberButton", "focus=accountNumber"},
    {"", "userNameButton;userNameButton", "focus=userName"},
    {"", "jobNameButton;jobNameButton;userNameButton", "focus="},
};

TEST_F(ControlActionsTest, OneByOne) {
  for (const auto& [before, operations, after] : actionCases) {
    SCOPED_TRACE(before + u" -> "_s + operations);
    TestPanel fresh(platform);
    fresh.restore();
    ASSERT_TRUE(operate(fresh.view(), "retention"));
    setControls(fresh.view(), before);
    for (const QString& operation : operations.split(u';'))
      EXPECT_TRUE(operate(fresh.view(), operation)) << operation;
    expectControls(fresh.view(), after);
    expectRulesHold(fresh.view(), {firstFolderItem});
  }
}

// A long walk through the choices and the hold buttons that touch each other.
TEST_F(ControlActionsTest, TheRulesHoldWhateverTheUserDoes) {
  TestPanel panel(platform);
  panel.restore();
  const QStringList operations =
      u"retention hold=0 hold=1 hold=2 item=0 item=1 item=3 item=4 folder=0 folder=1 folder=2 who=0 who=1 "
      "suspendKeyButton folderPasswordButton folderNameButton loginNameButton passwordButton"_s.split(u' ');
  std::mt19937 random(20240229);
  for (int step = 0; step < 5000 && !HasFailure(); ++step) {
    const QString& operation = operations[static_cast<qsizetype>(random() % operations.size())];
    SCOPED_TRACE(operation);
    (void)operate(panel.view(), operation);  // which may be dimmed
    expectRulesHold(panel.view(), {firstFolderItem});
  }
}

TEST(ControlActions, AHeldLoginNameIsKeptOnceEvenAnEmptyOne) {
  PanelGroups panel;
  setControls(*panel.view, "loginName=jdoe");
  for (const int state : {1, 1, 0, 1}) {
    EXPECT_EQ(panel.state.loginNameStringRef, panel.state.loginNameLockFlag ? u"jdoe"_s : QString());
    button(*panel.view, "loginNameButton").setState(state);
    panel.actions.loginNameButtonProc(nullptr);
  }
  EXPECT_FALSE(panel.state.loginNameStringRef.isNull());
  setControls(*panel.view, "retention=1 suspendKeyButton=2");  // which is not on
  EXPECT_TRUE(panel.rules.runByName(u"suspendKeyEditTextEnabled"_s));
  EXPECT_TRUE(isAvailable(field(*panel.view, "suspendKey")));
}

}  // namespace
}  // namespace kesto
