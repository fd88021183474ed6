#include "tests/support/controls.h"

namespace kesto {
namespace {

using namespace test;

// Counts the signals of a control.
struct Signals {
  explicit Signals(Control& control) {
    QObject::connect(&control, &Control::changed, &guard, [this] { ++changes; });
    QObject::connect(&control, &Control::actionSent, &guard, [this] { ++actions; });
  }
  QObject guard;
  int changes = 0;
  int actions = 0;
};

TEST(Model, ChangedIsEmittedExactlyOnChange) {
  PanelView view;
  TextField text(u"text"_s, &view, 1);
  text.setStringValue(u"a"_s);
  Button box(Button::Type::CheckBox, u"box"_s, &view);
  PopUp list(u"list"_s, &view);
  const std::array<std::pair<Control*, std::function<void()>>, 9> setters{{
      {&text, [&] { text.setStringValue(u"b"_s); }},
      {&text, [&] { text.setEditable(false); }},
      {&text, [&] { text.setTextColor(TextField::Color::Gray); }},
      {&text,
       [&] {
         (void)text.placeCaret({0, 1});
       }},
      {&text, [&] { text.setHidden(true); }},
      {&box, [&] { box.setTitle(u"t"_s); }},
      {&box, [&] { box.setState(1); }},
      {&box, [&] { box.setImage(Image{.name = u"lock"_s, .path = {}}); }},
      {&list, [&] { list.setItems({{.title = u"a"_s, .image = {}}}); }},
  }};
  for (std::size_t i = 0; i < setters.size(); ++i) {
    const auto& [control, set] = setters.at(i);
    const Signals sent(*control);
    set();
    EXPECT_EQ(sent.changes, 1);
    set();
    EXPECT_EQ(sent.changes, 1) << "told of no change by setter " << i;
    EXPECT_EQ(sent.actions, 0) << "code sends no action";
  }
}

TEST(Model, AClickTogglesAndSendsTheAction) {
  PanelView view;
  for (const Button::Type type :
       {Button::Type::CheckBox, Button::Type::HoldButton, Button::Type::PushButton}) {
    Button button(type, u"button"_s, &view);
    const Signals sent(button);
    EXPECT_TRUE(button.click());
    EXPECT_EQ(button.state(), type == Button::Type::PushButton ? 0 : 1);
    EXPECT_TRUE(button.click());
    button.setEnabled(false);
    EXPECT_FALSE(button.click());
    EXPECT_EQ(button.state(), 0);
    EXPECT_EQ(sent.actions, 2);
  }
}

TEST(Model, RowsOfAMatrix) {
  PanelView view;
  RadioMatrix matrix(u"matrix"_s, &view);
  EXPECT_EQ(matrix.selectedCell(), nullptr);
  const RadioCell* first = matrix.addCell(u"first"_s, u"First"_s);
  const RadioCell* second = matrix.addCell(u"second"_s, u"Second"_s);
  const Signals sent(matrix);
  int rowChanges = 0;
  QObject::connect(&matrix, &RadioMatrix::selectedRowChanged, &view, [&] {
    ++rowChanges;
    EXPECT_EQ(sent.actions, 0) << "the action goes before the rules of the row";
  });
  for (int time = 0; time < 2; ++time)
    EXPECT_TRUE(matrix.choose(1)) << "the chosen row may be chosen again";
  EXPECT_EQ(matrix.selectedCell(), second);
  EXPECT_EQ(first->state() * 10 + second->state(), 1);
  EXPECT_EQ(rowChanges, 1);
  for (const int row : {-1, 2}) {
    EXPECT_FALSE(matrix.choose(row));
    matrix.selectRow(row);
  }
  matrix.setEnabled(false);
  EXPECT_FALSE(first->isEnabled());
  EXPECT_FALSE(matrix.choose(0));
  EXPECT_EQ(matrix.selectedRow(), 1);
  EXPECT_EQ(sent.actions, 2);
}

TEST(Model, ItemsOfAPopUp) {
  PanelView view;
  PopUp popUp(u"popUp"_s, &view);
  EXPECT_EQ(popUp.selectedItem(), nullptr);
  const auto item = [](const Text& title) { return PopUpItem{.title = title, .image = {}}; };
  popUp.setItems({item("a"), item("b"), {.title = {}, .image = {}, .separator = true}, item("c")});
  const Signals sent(popUp);
  for (int time = 0; time < 2; ++time)
    EXPECT_TRUE(popUp.choose(3)) << "the chosen item may be chosen again";
  EXPECT_EQ(popUp.selectedItem()->title, u"c"_s);
  EXPECT_EQ(sent.changes, 1);
  for (const int index : {-1, 2, 4}) {
    EXPECT_FALSE(popUp.choose(index));
    popUp.selectItemAtIndex(index);
    EXPECT_EQ(popUp.selectedIndex(), 3);
  }
  popUp.setItems({item("a"), item("b")});
  EXPECT_EQ(popUp.selectedIndex(), 1) << "the choice lies beyond the items";
  popUp.setEnabled(false);
  EXPECT_FALSE(popUp.choose(0));
  EXPECT_EQ(sent.actions, 2);
}

TEST(Model, AViewKnowsItsControlsAndItsFirstResponder) {
  PanelView view;
  TextField text(u"text"_s, &view, 1);
  int changes = 0;
  QObject::connect(&view, &PanelView::firstResponderChanged, &view, [&] { ++changes; });
  for (TextField* field : {&text, &text, static_cast<TextField*>(nullptr)})
    view.makeFirstResponder(field);
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(view.control(u"text"_s), &text);
  EXPECT_EQ(view.control<Button>(u"text"_s), nullptr) << "of another kind";
}

}  // namespace
}  // namespace kesto
