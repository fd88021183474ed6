#include "tests/support/availability.h"
#include "tests/support/test_panel.h"

namespace kesto {
namespace {

using namespace test;

// The rules that set a control, without "Enabled", and the two that set none.
const QStringList ruleNames =
    availabilityOf({}).keys() + QStringList{u"userNumberButton"_s, u"accountNumberButton"_s};

// A panel with a protected folder and an open one, and a third in the pop-up that the list does not have.
class EnablingRulesTest : public testing::Test {
 protected:
  EnablingRulesTest() {
    panel.state.folderList = {
        {.name = u"Safe"_s, .password = true}, {.name = u"Open"_s}, {.name = u"Gone"_s}};
    panel.folderPopup.makeFolderPopup();
    panel.state.folderList->pop_back();
    for (const Control* control : panel.view->controls()) {
      if (control->kind() == u"radio") continue;
      QObject::connect(control, &Control::changed, control,
                       [this, control] { changed.insert(control->objectName()); });
    }
  }

  void choose(const Choices& choices) {
    const PanelView& view = *panel.view;
    panel.state.outlets = outletsOfView(&view);
    if (choices.item < 0) panel.state.outlets.folderSelectionPopup = nullptr;
    if (choices.row < 0) panel.state.outlets.folderSelectionMatrix = nullptr;
    setControls(
        view,
        u"retentionCheckBox=%1 folderSelectionPopup=%2 folderSelectionMatrix=%3 authenticationMatrix=%4"_s
            .arg(choices.isRetained)
            .arg(choices.item)
            .arg(choices.row)
            .arg(choices.isLogin ? 0 : 1));
    for (const QString& name : heldNames)
      button(view, name + u"Button"_s).setState(choices.held.contains(name) ? 1 : 0);
  }

  static void makeAvailable(Control& control, bool isAvailable) {
    if (auto* text = qobject_cast<TextField*>(&control))
      return MySetEnabled::myVq250nJCHilite(*text, !isAvailable);
    if (auto* button = qobject_cast<Button*>(&control)) return button->setEnabled(isAvailable);
    if (auto* matrix = qobject_cast<RadioMatrix*>(&control)) return matrix->setEnabled(isAvailable);
    dynamic_cast<PopUp&>(control).setEnabled(isAvailable);
  }

  // Runs one rule on its control, which stands the other way before; without an expectation it must stay so.
  void expectRule(const QString& name, std::optional<bool> expected) {
    auto& control = controlNamed<Control>(*panel.view, name);
    const bool before = !expected.value_or(false);
    makeAvailable(control, before);
    TextField& address = field(*panel.view, "printersAddress");
    panel.view->makeFirstResponder(&address);
    changed.clear();
    EXPECT_TRUE(panel.rules.runByName(name + u"Enabled"_s)) << name;
    EXPECT_EQ(isAvailable(control), expected.value_or(before)) << name;
    EXPECT_EQ(changed, expected ? QSet{name} : QSet<QString>());
    auto* text = qobject_cast<TextField*>(&control);
    const bool movesFocus = expected && text != nullptr && text->tag() != 0;
    EXPECT_EQ(panel.view->firstResponder(), movesFocus ? (*expected ? text : nullptr) : &address) << name;
  }

  void expectAllRules(const Choices& choices) {
    choose(choices);
    QMap<QString, bool> expected = availabilityOf(choices);
    if (choices.item < 0) expected.remove(u"folderSelectionPopup"_s);
    if (choices.row < 0) expected.remove(u"folderSelectionMatrix"_s);
    for (const QString& name : ruleNames) {
      expectRule(name, expected.contains(name) ? std::optional(expected.value(name)) : std::nullopt);
    }
  }

  PanelGroups panel;
  QSet<QString> changed;
};

TEST_F(EnablingRulesTest, AllCombinations) {
  ASSERT_EQ(ruleNames.size(), 24);
  const std::array freezable{u"suspendKey"_s, u"folderPassword"_s, u"folderName"_s, u"loginName"_s,
                             u"password"_s};
  for (unsigned bits = 0; bits < 1U << 7; ++bits) {
    Choices choices{.isRetained = (bits & 1) != 0, .isLogin = (bits & 2) != 0, .held = {}};
    for (std::size_t i = 0; i < freezable.size(); ++i) {
      if ((bits >> (i + 2) & 1) != 0) choices.held.insert(freezable.at(i));
    }
    for (const int item : {-1, 0, 1, 3, 4, 5}) {
      for (const int row : {-1, 0, 1, 2}) {
        choices.item = item;
        choices.row = row;
        choices.isFolderProtected = item == 3;
        SCOPED_TRACE(testing::Message() << "bits " << bits << " item " << item << " row " << row);
        expectAllRules(choices);
        if (HasFailure()) return;
      }
    }
  }
}

TEST_F(EnablingRulesTest, TheRemainingConditions) {
  for (const QString& name : {u"userNumber"_s, u"accountNumber"_s, u"userName"_s, u"jobName"_s}) {
    expectAllRules({.item = 1, .row = 1, .held = {name}});
  }
  choose({.isRetained = true, .item = 1, .row = 1, .held = {}});
  setControls(*panel.view, "retentionCheckBox=2 suspendKeyButton=2");  // not off, and not on
  expectRule(u"suspendKeyEditText"_s, true);
  panel.state.folderList.reset();
  expectAllRules({.isRetained = true, .item = 3, .row = 1, .held = {}});
}

TEST_F(EnablingRulesTest, AbsentControlsReadAsOff) {
  panel.state.outlets.retentionCheckBox = nullptr;
  panel.state.outlets.authenticationMatrix = nullptr;
  panel.state.outlets.loginNameButton = nullptr;
  expectRule(u"suspendMatrix"_s, false);
  expectRule(u"loginNameEditText"_s, true);
  panel.state.outlets = {};
  for (const QString& name : ruleNames)
    expectRule(name, std::nullopt);
  EXPECT_FALSE(panel.rules.runByName(u"suspendmatrixEnabled"_s) || EnablingRules::exists(u"suspendMatrix"_s));
}

}  // namespace
}  // namespace kesto
