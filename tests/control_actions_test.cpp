#include "panel/control_actions.h"

#include <QtCore/QJsonArray>
#include <random>

#include "support/availability.h"
#include "support/test_panel.h"

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
    ActionCase{"folderSelectionPopup=0 folderSelectionMatrix=0 suspendMatrix=1", "suspendMatrix=1",
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

// Drives a panel by random operations of the user and the host; after each, what must always hold is looked
// at.
class RandomUser {
 public:
  RandomUser(TestPanel& panel, unsigned seed) : m_panel(panel), m_view(panel.view()), m_random(seed) {}

  void step() {
    const QMap<QString, QString> before = heldTexts();
    const std::string what = act();
    SCOPED_TRACE(what);
    expectRulesHold();
    expectFocusIsUsable();
    expectChoicesAgree();
    if (what != "restore") expectHeldTextsStay(before);
  }

 private:
  int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }
  bool isHeld(const QString& name) const { return button(m_view, name + u"Button"_s).state() == 1; }
  QString textOf(const QString& name) const { return field(m_view, name).stringValue(); }

  std::string act() {
    switch (below(40)) {
      case 0:
        m_panel.restore();
        return "restore";
      case 1:
        m_panel.save();
        return "save";
      case 2:
        EXPECT_TRUE(m_panel.controller->shouldPrint());
        return "shouldPrint";
      default:
        break;
    }
    const QList<Control*> controls = m_view.controls();
    Control* control = controls.at(below(static_cast<int>(controls.size())));
    operate(control);
    return control->objectName().toStdString();
  }

  // Refusals are part of it.
  void operate(Control* control) {
    Outcome outcome = Outcome::done();
    if (auto* button = qobject_cast<Button*>(control)) {
      if (button->type() != Button::Type::PushButton) outcome = button->click();
    } else if (auto* matrix = qobject_cast<RadioMatrix*>(control)) {
      outcome = matrix->choose(below(4) - 1);
    } else if (auto* popUp = qobject_cast<PopUp*>(control)) {
      outcome = popUp->choose(below(6));
    } else if (auto* text = qobject_cast<TextField*>(control)) {
      static const std::array inputs{u"7"_s, u"x"_s, u"123456789"_s, u"\u00E9\U0001F600"_s, u"42"_s};
      switch (below(4)) {
        case 0:
          outcome = text->backspace();
          break;
        case 1:
          outcome = text->placeCaret({below(5), below(5)});
          break;
        case 2:
          outcome = text->paste(inputs.at(static_cast<std::size_t>(below(5))));
          break;
        default:
          outcome = text->type(inputs.at(static_cast<std::size_t>(below(5))));
          break;
      }
    }
    EXPECT_TRUE(outcome || !outcome.reason().isEmpty());
  }

  void expectRulesHold() const {
    Choices choices{.isRetained = valueOf(m_view, "retentionCheckBox") == u"1",
                    .item = popUp(m_view, "folderSelectionPopup").selectedIndex(),
                    .row = matrix(m_view, "folderSelectionMatrix").selectedRow(),
                    .isLogin = valueOf(m_view, "authenticationMatrix") == u"0",
                    .held = {}};
    choices.isFolderProtected = choices.item == firstFolderItem;
    for (const QString& name : heldNames) {
      if (isHeld(name)) choices.held.insert(name);
    }
    const QMap<QString, bool> expected = availabilityOf(choices);
    for (auto it = expected.begin(); it != expected.end(); ++it) {
      EXPECT_EQ(isAvailable(controlNamed<Control>(m_view, it.key())), it.value()) << it.key();
    }
  }

  // An authentication choice gives focus to the user number even when it is held.
  void expectFocusIsUsable() const {
    const TextField* focused = m_view.firstResponder();
    if (focused == nullptr || focused->objectName() == u"userNumberEditText") return;
    EXPECT_TRUE(focused->isEditable()) << focused->objectName();
  }

  void expectChoicesAgree() const {
    const bool quickFile = popUp(m_view, "folderSelectionPopup").selectedIndex() == 0 ||
                           matrix(m_view, "folderSelectionMatrix").selectedRow() == 0;
    if (quickFile) expectControls(m_view, "retentionCheckBox=1 suspendMatrix=1");
    if (quickFile && !isHeld(u"suspendKey"_s)) expectControls(m_view, "suspendKey=");
    if (valueOf(m_view, "retentionCheckBox") == u"0") {
      expectControls(m_view, "suspendMatrix=0");
      for (const QString& name : {u"suspendKey"_s, u"folderPassword"_s, u"folderName"_s}) {
        EXPECT_TRUE(isHeld(name) || textOf(name).isEmpty()) << name;
      }
    }
    EXPECT_TRUE(!isHeld(u"loginName"_s) || textOf(u"loginName"_s).remove(u'\u2022').isEmpty());
  }

  QMap<QString, QString> heldTexts() const {
    QMap<QString, QString> texts;
    for (const QString& name : heldNames) {
      if (isHeld(name)) texts.insert(name, textOf(name));
    }
    return texts;
  }

  void expectHeldTextsStay(const QMap<QString, QString>& before) const {
    const QMap<QString, QString> after = heldTexts();
    for (auto it = before.begin(); it != before.end(); ++it) {
      EXPECT_EQ(after.value(it.key(), it.value()), it.value()) << it.key();
    }
  }

  TestPanel& m_panel;
  PanelView& m_view;
  std::mt19937 m_random;
};

TEST_F(ControlActionsTest, WhatMustAlwaysHoldHoldsAfterEveryStep) {
  for (unsigned seed = 1; seed <= 6 && !HasFailure(); ++seed) {
    TestPanel fresh(platform);
    fresh.restore();
    RandomUser user(fresh, seed);
    for (int step = 0; step < 1000 && !HasFailure(); ++step) {
      SCOPED_TRACE(testing::Message() << "seed " << seed << " step " << step);
      user.step();
    }
  }
}

}  // namespace
}  // namespace kesto
