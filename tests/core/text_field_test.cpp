#include "panel/input_filters.h"
#include "tests/support/controls.h"

namespace kesto {
namespace {

using namespace test;

const QString smile = u"\U0001F600"_s;

enum Edit { Type, Paste, Backspace };
struct EditCase {
  Text before;
  Edit edit = Type;
  Text inserted;
  Text after;
  int limit = 0;
};

// A field whose state is written as "before|after", with the caret at the bar, or "before[selected]after". It
// edits through a digit or text filter when it has a limit.
class FieldTest : public testing::Test {
 protected:
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
  template <class Filter>
  void limit(int count) {
    auto filter = std::make_unique<Filter>();
    if (count != 0) filter->SetmaxCharactersCount(count);
    text.setFormatter(std::move(filter));
  }

  void expectEdit(const EditCase& row) {
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
  int steps = 0;
  QObject::connect(&text, &Control::changed, &text, [&steps] { ++steps; });
  expectEdit({"|", Type, QString(1000000, u'x'), QString(1000000, u'x') + u'|'});
  EXPECT_EQ(steps, 1);
}

TEST_F(FieldTest, EditsHappenAtTheSelection) {
  const QString half(smile[1]);
  for (const EditCase& row :
       {EditCase{"|", Type, "ab", "ab|"}, EditCase{"a|d", Type, "bc", "abc|d"},
        EditCase{"a[bc]d", Type, "x", "ax|d"}, EditCase{"a[bc]d", Paste, "x😀", "ax😀|d"},
        EditCase{"a[bc]d", Paste, "", "a|d"}, EditCase{"abc|", Backspace, "", "ab|"},
        EditCase{"|abc", Backspace, "", "|abc"}, EditCase{"a[bc]d", Backspace, "", "a|d"},
        EditCase{"a😀|b", Backspace, "", "a|b"},
        EditCase{u"a"_s + smile[0] + u'|' + half + u'b', Type, "x", "ax|😀b"},
        EditCase{u"[a"_s + smile[0] + u']' + half + u'b', Backspace, "", "|b"},
        EditCase{u"a"_s + half + u"|b"_s, Backspace, "", "a|b"}}) {
    expectEdit(row);
  }
  put(u"[ab]c"_s);
  text.setStringValue(u"abc"_s);
  EXPECT_EQ(marked(), u"abc|"_s) << "code leaves the caret at the end";
}

TEST_F(FieldTest, ADigitFilterJudgesTheFirstCharacter) {
  for (const EditCase& row :
       {EditCase{"|", Type, "1", "1|", 8}, EditCase{"|", Type, "a", "|", 8},
        EditCase{"|", Type, "1a2", "12|", 8}, EditCase{"|", Type, "-/:٣１", "|", 8},
        EditCase{"1234567|", Type, "8", "12345678|", 8}, EditCase{"12345678|", Type, "9", "[12345678]", 8},
        EditCase{"12345678|", Type, "a", "[12345678]", 8}, EditCase{"[12345678]", Type, "9", "[12345678]", 8},
        EditCase{"12|345678", Type, "9", "12|345678", 8}, EditCase{"12|", Paste, "3ab", "123ab|", 5},
        EditCase{"12|", Paste, "a34", "12|", 5}, EditCase{"12|", Paste, "345678", "[12345]", 5},
        EditCase{"|1234", Paste, "98765", "98765|1234", 5}, EditCase{"1[23]4", Type, "9", "19|4", 5},
        EditCase{"1[23]4", Paste, "", "1|4", 5}, EditCase{"abc|defg", Backspace, "", "ab|defg", 3},
        EditCase{"abdefg|", Backspace, "", "[abd]", 3}, EditCase{"|", Type, "1", "|", 0},
        EditCase{"12345678|", Type, "9", "123456789|", -1}}) {
    limit<MyIntegerNumberFilter>(row.limit);
    expectEdit(row);
  }
}

TEST_F(FieldTest, ATextFilterLooksAtLengthsAlone) {
  for (const EditCase& row :
       {EditCase{"|", Type, "é\"漢,\n", "é\"漢,\n|", 32}, EditCase{"a|b", Type, "x", "ax|b", 3},
        EditCase{"a|bc", Type, "x", "a|bc", 3}, EditCase{"abc|", Type, "x", "[abc]", 3},
        EditCase{"|", Paste, "abcdef", "[abc]", 3}, EditCase{"|", Paste, "😀😀", "[😀]", 3},
        EditCase{"a|", Type, "😀", "a😀|", 3}, EditCase{"|", Type, "😀", "|", 1},
        EditCase{"|", Type, "x", "|", 0}}) {
    limit<MyRomanFilter>(row.limit);
    expectEdit(row);
  }
}

TEST_F(FieldTest, ALoginNameFilterAcceptsEverything) {
  LoginnameInputFilterCallback callback;
  auto filter = std::make_unique<LoginnameInputFilter>();
  filter->setCallback(&callback);
  text.setFormatter(std::move(filter));
  EXPECT_TRUE(text.paste(QString(1000, u'x')));
  EXPECT_TRUE(text.type(u"7"_s));
  EXPECT_EQ(text.stringValue().size(), 1001);
}

TEST(Filters, ValuesAreTheTextsThemselves) {
  const MyIntegerNumberFilter digits;
  const MyRomanFilter characters;
  const LoginnameInputFilter login;
  for (const Formatter* filter : std::initializer_list<const Formatter*>{&digits, &characters, &login}) {
    for (const QString& value : {u""_s, u"abc"_s, u" 0012"_s}) {
      QVariant object;
      QString description = u"untouched"_s;
      EXPECT_TRUE(filter->getObjectValue(&object, value, &description));
      EXPECT_EQ(filter->stringForObjectValue(object), value);
      EXPECT_EQ(description, u"untouched"_s);
    }
    EXPECT_EQ(filter->stringForObjectValue(42), u"42"_s);
  }
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
  for (const bool isEditable : {true, false}) {
    text.setStringValue(u"kept"_s);
    text.setEditable(isEditable);
    text.setSelectable(isEditable);
    for (const auto& edit : std::initializer_list<std::function<Outcome()>>{
             [&] { return text.type(u"x"_s); }, [&] { return text.paste(u"x"_s); },
             [&] { return text.backspace(); },
             [&] {
               return text.placeCaret({0, 0});
             }}) {
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
