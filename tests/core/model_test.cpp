#include "panel/input_filters.h"
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

TEST(Model, ChangesByCodeSendNoAction) {
  PanelView view;
  TextField text(u"text"_s, &view, 1);
  PopUp popUp(u"popUp"_s, &view);
  RadioMatrix matrix(u"matrix"_s, &view);
  matrix.addCell(u"first"_s, u"First"_s);
  const RadioCell* second = matrix.addCell(u"second"_s, u"Second"_s);
  const Signals sent[]{Signals(text), Signals(popUp), Signals(matrix)};
  const auto item = [](const Text& title) { return PopUpItem{.title = title, .image = {}}; };
  text.setStringValue(u"b"_s);
  popUp.setItems({item("a"), item("b"), {.title = {}, .image = {}, .separator = true}, item("c")});
  for (const int choice : {3, -1, 2, 4})
    popUp.selectItemAtIndex(choice);
  for (const int choice : {1, -1, 2})
    matrix.selectRow(choice);
  EXPECT_EQ(popUp.selectedItem()->title, u"c"_s);
  EXPECT_EQ(matrix.selectedCell(), second);
  for (const Signals& each : sent)
    EXPECT_TRUE(each.changes > 0 && each.actions == 0);
  popUp.setItems({item("a"), item("b")});
  EXPECT_EQ(popUp.selectedIndex(), 1) << "the choice lies beyond the items";
}

TEST(Model, TheUserOperatesWhatIsEnabled) {
  PanelView view;
  RadioMatrix matrix(u"matrix"_s, &view);
  const RadioCell* cell = matrix.addCell(u"first"_s, u"First"_s);
  PopUp popUp(u"popUp"_s, &view);
  popUp.setItems({{.title = u"a"_s, .image = {}}, {.title = {}, .image = {}, .separator = true}});
  for (const int choice : {-1, 1, 2})
    EXPECT_FALSE(matrix.choose(choice) || popUp.choose(choice));
  Button box(Button::Type::CheckBox, u"box"_s, &view);
  Button hold(Button::Type::HoldButton, u"lock"_s, &view);
  Button push(Button::Type::PushButton, u"push"_s, &view);
  const QStringList operations{u"matrix=0"_s, u"popUp=0"_s, u"box"_s, u"lock"_s, u"push"_s};
  const Signals sent[]{Signals(matrix), Signals(popUp), Signals(box), Signals(hold), Signals(push)};
  for (const int state : {1, 0}) {
    for (const QString& operation : operations)
      EXPECT_TRUE(operate(view, operation)) << operation << ", also once more";
    expectControls(view, u"matrix=0 popUp=0 box=%1 lock=%1 push=0"_s.arg(state));
  }
  matrix.setEnabled(false);
  popUp.setEnabled(false);
  for (Button* button : {&box, &hold, &push})
    button->setEnabled(false);
  for (const QString& operation : operations)
    EXPECT_FALSE(operate(view, operation)) << operation;
  for (const Signals& each : sent)
    EXPECT_EQ(each.actions, 2);
  EXPECT_FALSE(cell->isEnabled());
}

// A field whose state is written as "before|after", with the caret at the bar, or "before[selected]after".
class FieldTest : public testing::Test {
 protected:
  enum Filter { NoFilter, Digits, Characters, LoginNames };
  enum Edit { Type, Paste, Backspace };
  struct EditCase {
    Filter filter = NoFilter;
    int limit = 0;  // of the filter; 0 leaves it without one
    Text before;
    Edit edit = Type;
    Text inserted, after;
  };

  void put(const QString& marked) {
    const qsizetype open = marked.indexOf(u'[');
    const qsizetype at = open < 0 ? marked.indexOf(u'|') : open;
    text.setStringValue(QString(marked).remove(u'|').remove(u'[').remove(u']'));
    EXPECT_TRUE(text.placeCaret({at, open < 0 ? 0 : marked.indexOf(u']') - open - 1}));
  }
  QString marked() const {
    const auto [location, length] = text.selection();
    QString shown = text.stringValue();
    return length == 0 ? shown.insert(location, u'|')
                       : shown.insert(location + length, u']').insert(location, u'[');
  }
  template <class LengthLimited>
  void install(int limit) {
    auto filter = std::make_unique<LengthLimited>();
    if (limit != 0) filter->SetmaxCharactersCount(limit);
    text.setFormatter(std::move(filter));
  }
  void expectEdit(const EditCase& row) {
    text.setFormatter(nullptr);
    if (row.filter == Digits) install<MyIntegerNumberFilter>(row.limit);
    if (row.filter == Characters) install<MyRomanFilter>(row.limit);
    if (row.filter == LoginNames) text.setFormatter(std::make_unique<LoginnameInputFilter>());
    put(row.before);
    const Outcome edited = row.edit == Type    ? text.type(row.inserted)
                           : row.edit == Paste ? text.paste(row.inserted)
                                               : text.backspace();
    EXPECT_TRUE(edited);
    EXPECT_EQ(marked(), row.after) << row.before << " <- " << row.inserted;
  }

  PanelView view;
  TextField text{u"text"_s, &view, 1};
};

TEST_F(FieldTest, TypingWithoutAFilterTakesOneStepForAnyLength) {
  const Signals sent(text);
  expectEdit({NoFilter, 0, "|", Type, QString(1000000, u'x'), QString(1000000, u'x') + u'|'});
  EXPECT_EQ(sent.changes, 1);
}

TEST_F(FieldTest, EditsAtTheSelectionThroughTheFilters) {
  const QString smile = u"\U0001F600"_s;
  const QString high(smile[0]);
  const QString low(smile[1]);
  for (const EditCase& row : {
           EditCase{NoFilter, 0, "|", Type, "ab", "ab|"},
           {NoFilter, 0, "a|d", Type, "bc", "abc|d"},
           {NoFilter, 0, "a[bc]d", Type, "x", "ax|d"},
           {NoFilter, 0, "a[bc]d", Paste, "x😀", "ax😀|d"},
           {NoFilter, 0, "a[bc]d", Paste, "", "a|d"},
           {NoFilter, 0, "abc|", Backspace, "", "ab|"},
           {NoFilter, 0, "|abc", Backspace, "", "|abc"},
           {NoFilter, 0, "a[bc]d", Backspace, "", "a|d"},
           {NoFilter, 0, "a😀|b", Backspace, "", "a|b"},
           {NoFilter, 0, u"a"_s + high + u'|' + low + u'b', Type, "x", "ax|😀b"},
           {NoFilter, 0, u"[a"_s + high + u']' + low + u'b', Backspace, "", "|b"},
           {NoFilter, 0, u"a"_s + low + u"|b"_s, Backspace, "", "a|b"},
           // A digit filter checks the first character.
           {Digits, 8, "|", Type, "1a2", "12|"},
           {Digits, 8, "|", Type, "-/:٣１", "|"},
           {Digits, 8, "1234567|", Type, "8", "12345678|"},
           {Digits, 8, "12345678|", Type, "a", "[12345678]"},
           {Digits, 8, "[12345678]", Type, "9", "[12345678]"},
           {Digits, 8, "12|345678", Type, "9", "12|345678"},
           {Digits, 5, "12|", Paste, "3ab", "123ab|"},
           {Digits, 5, "12|", Paste, "a34", "12|"},
           {Digits, 5, "12|", Paste, "345678", "[12345]"},
           {Digits, 5, "|1234", Paste, "98765", "98765|1234"},
           {Digits, 5, "1[23]4", Paste, "", "1|4"},
           {Digits, 3, "abc|defg", Backspace, "", "ab|defg"},
           {Digits, 3, "abdefg|", Backspace, "", "[abd]"},
           {Digits, 0, "|", Type, "1", "|"},
           {Digits, -1, "12345678|", Type, "9", "123456789|"},
           // A text filter looks at lengths alone.
           {Characters, 32, "|", Type, "é\"漢,\n", "é\"漢,\n|"},
           {Characters, 3, "a|bc", Type, "x", "a|bc"},
           {Characters, 3, "|", Paste, "😀😀", "[😀]"},
           {Characters, 3, "a|", Type, "😀", "a😀|"},
           {Characters, 1, "|", Type, "😀", "|"},
           {LoginNames, 0, "|", Paste, QString(1000, u'x'), QString(1000, u'x') + u'|'},
       })
    expectEdit(row);
  put(u"[ab]c"_s);
  text.setStringValue(u"abc"_s);
  EXPECT_EQ(marked(), u"abc|"_s) << "code leaves the caret at the end";
}

TEST_F(FieldTest, TheCaretIsClampedToTheText) {
  text.setStringValue(u"abc"_s);
  for (const auto& [wish, place] : std::initializer_list<std::pair<TextRange, Text>>{
           {{1, 1}, "a[b]c"}, {{-5, 1}, "[a]bc"}, {{2, 9}, "ab[c]"}, {{9, 9}, "abc|"}, {{1, -4}, "a|bc"}}) {
    EXPECT_TRUE(text.placeCaret(wish));
    EXPECT_EQ(marked(), place);
  }
}

TEST_F(FieldTest, OnlyAnEditableFieldTakesEditsAndFocus) {
  const std::function<Outcome()> edits[] = {[this] { return text.type(u"x"_s); },
                                            [this] { return text.paste(u"x"_s); },
                                            [this] { return text.backspace(); },
                                            [this] {
                                              return text.placeCaret({0, 0});
                                            }};
  for (const bool isEditable : {true, false}) {
    text.setStringValue(u"kept"_s);
    text.setEditable(isEditable);
    text.setSelectable(isEditable);
    for (const auto& edit : edits) {
      view.makeFirstResponder(nullptr);
      EXPECT_EQ(static_cast<bool>(edit()), isEditable);
      EXPECT_EQ(view.firstResponder(), isEditable ? &text : nullptr);
    }
  }
  EXPECT_EQ(marked(), u"kept|"_s);
  EXPECT_FALSE(TextField(u"label"_s, &view, 0).type(u"x"_s));
}

}  // namespace
}  // namespace kesto
