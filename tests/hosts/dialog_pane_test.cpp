// The panel in widgets: the effect of keys and mouse on the controls and on the job's settings.
#include <QtCore/QMimeData>
#include <QtGui/QAccessible>
#include <QtGui/QClipboard>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>

#include "panel/model/button.h"
#include "panel/model/pop_up.h"
#include "panel/model/radio_matrix.h"
#include "panel/model/simple_controls.h"
#include "panel/model/text_field.h"
#include "tests/support/dialog_support.h"

namespace kesto::test {
namespace {

QAccessibleInterface& accessible(QWidget* widget) {
  return *QAccessible::queryAccessibleInterface(widget);
}

class DialogPane : public testing::Test {
 protected:
  void use(const Text& operations) { useWidgets(m_window, operations); }
  void toggle(const QString& name) {
    accessible(m_window.widget(name)).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  }

  PaneWindow m_window;
  DialogUser& m_user = m_window.user;
};

TEST_F(DialogPane, EveryControlHasItsWidget) {
  for (const Control* control : m_window.view->controls())
    EXPECT_NE(m_window.findChild<QWidget*>(control->objectName()), nullptr) << control->objectName();
}

// The ways to edit a line: a user's, who is in it, and those of assistive technology, wherever the focus is.
const auto pressKeys = [](QLineEdit& line, const QString& text) { QTest::keyClicks(&line, text); };
const auto erase = [](QLineEdit& line, const QString&) { QTest::keyClick(&line, Qt::Key_Backspace); };
const auto undo = [](QLineEdit& line, const QString&) {
  QTest::keyClick(&line, Qt::Key_Z, Qt::ControlModifier);
};
const auto eraseAllAndUndo = [](QLineEdit& line, const QString&) {
  QTest::keyClick(&line, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&line, Qt::Key_Delete);
  EXPECT_EQ(line.text(), QString());
  undo(line, {});
};
const auto paste = [](QLineEdit& line, const QString& text) {
  QApplication::clipboard()->setText(text);
  QTest::keyClick(&line, Qt::Key_V, Qt::ControlModifier);
};
const auto drop = [](QLineEdit& line, const QString& text) {
  QMimeData data;
  data.setText(text);
  QDragEnterEvent enter(line.rect().center(), Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(&line, &enter);
  QDropEvent event(line.rect().center(), Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(&line, &event);
};
const auto compose = [](QLineEdit& line, const QString& text) {
  QInputMethodEvent event;
  event.setCommitString(text);
  QApplication::sendEvent(&line, &event);
};
const auto setValue = [](QLineEdit& line, const QString& text) {
  accessible(&line).setText(QAccessible::Value, text);
};
const auto insertText = [](QLineEdit& line, const QString& text) {
  accessible(&line).editableTextInterface()->insertText(0, text);
};
const auto replaceText = [](QLineEdit& line, const QString& text) {
  const int end = accessible(&line).textInterface()->characterCount();
  accessible(&line).editableTextInterface()->replaceText(0, end, text);
};
const auto deleteText = [](QLineEdit& line, const QString& text) {
  accessible(&line).editableTextInterface()->deleteText(0, static_cast<int>(text.size()));
};

TEST_F(DialogPane, EveryWayToEditGoesThroughTheFilter) {
  struct Edit {
    const char* what = "";
    Text before;
    void (*edit)(QLineEdit& line, const QString& text) = nullptr;
    Text given;
    Text after;
    TextRange selection{-1, 0};  // unless assistive technology edits
    const char* field = "suspendKeyEditText";
  };
  const Edit edits[] = {
      {"keys: digits pass, letters do not", "", pressKeys, "1a2b3", "123", {3, 0}},
      {"keys: a ninth digit selects the eight", "12345678", pressKeys, "9", "12345678", {0, 8}},
      {"paste: from a digit on", "12", paste, "345", "12345", {5, 0}},
      {"paste: not from a letter on", "12", paste, "x3", "12", {2, 0}},
      {"paste: cut to eight and selected", "12345", paste, "6789", "12345678", {0, 8}},
      {"drop: from a digit on", "12", drop, "34", "1234", {4, 0}},
      {"drop: not from a letter on", "12", drop, "x34", "12", {2, 0}},
      {"input method: a digit", "12", compose, "3", "123", {3, 0}},
      {"input method: a letter", "12", compose, "é", "12", {2, 0}},
      {"undo: of a deletion", "1", undo, "", "1", {1, 0}},
      {"undo: of all", "First", eraseAllAndUndo, "", "First", {0, 5}, "jobNameEditText"},
      {"backspace", "123", erase, "", "12", {2, 0}},
      {"value: digits", "", setValue, "13579", "13579"},
      {"value: as pasted over the rest, its first counts", "13579", setValue, "2x", "2x"},
      {"value: a letter first", "12", setValue, "x3", "12"},
      {"value: nine digits", "", setValue, "123456789", "12345678"},
      {"value: the end goes", "12345678", setValue, "12", "12"},
      {"value: a letter in it", "12345678", setValue, "1234x678", "12345678"},
      {"value: none", "12345678", setValue, "", ""},
      {"insertion", "34", insertText, "12", "1234"},
      {"insertion of a letter", "34", insertText, "é", "34"},
      {"deletion", "1234", deleteText, "12", "34"},
      {"replacement", "12", replaceText, "34", "34"},
      {"value: of a dimmed field", "", setValue, "Plans", "", {-1, 0}, "folderNameEditText"},
      {"value: half of a pair", "😀", setValue, "😁", "😁", {-1, 0}, "userNameEditText"},
  };
  use("retentionCheckBox");
  for (const Edit& edit : edits) {
    SCOPED_TRACE(edit.what);
    const QString name = QLatin1String(edit.field);
    auto* line = m_window.widget<QLineEdit>(name);
    auto* field = m_window.control<TextField>(name);
    field->setStringValue(edit.before);
    const bool isUsers = edit.selection.location >= 0;
    if (isUsers) {
      ASSERT_TRUE(m_user.click(name));
      line->end(false);
      line->setEchoMode(QLineEdit::Normal);  // a field that hides its text has no undo
    }
    const QWidget* focused = m_window.focusWidget();
    edit.edit(*line, edit.given);
    EXPECT_EQ(line->text(), edit.after);
    EXPECT_EQ(field->stringValue(), edit.after);
    EXPECT_EQ(m_window.focusWidget(), focused);
    if (!isUsers) continue;
    EXPECT_EQ(field->selection(), edit.selection);
    EXPECT_EQ(line->selectedText().size(), edit.selection.length);
  }
}

TEST_F(DialogPane, AHoldButtonLocksItsField) {
  auto* line = m_window.widget<QLineEdit>(u"jobNameEditText"_s);
  auto* button = m_window.widget<QToolButton>(u"jobNameButton"_s);
  const auto state = [&] { return accessible(button).state(); };
  EXPECT_TRUE(line->isEnabled());
  EXPECT_FALSE(state().checked);
  const QImage open = button->grab().toImage();
  use("jobNameButton");
  EXPECT_FALSE(line->isEnabled());
  EXPECT_TRUE(state().checked);
  EXPECT_TRUE(state().checkable);
  EXPECT_EQ(button->accessibleName(), u"Lock Job name"_s);
  EXPECT_NE(button->grab().toImage(), open);
  ASSERT_TRUE(DialogUser::waitUntil([&] { return !line->toolTip().isEmpty(); }, u"the reason"_s));
  EXPECT_TRUE(button->accessibleDescription().startsWith(u"Locked"_s));
  // With its key as well: Alt and Shift with the letter of the field.
  QTest::keySequence(&m_window, button->shortcut());
  ASSERT_TRUE(DialogUser::waitUntil([&] { return line->isEnabled(); }, u"the lock to open"_s));
  EXPECT_TRUE(line->hasFocus()) << "an opened field takes the focus";
  EXPECT_EQ(line->text(), u"report.pdf"_s);
}

TEST_F(DialogPane, SecretsAreHiddenUntilTheyAreShown) {
  auto* login = m_window.widget<QLineEdit>(u"loginNameEditText"_s);
  auto* password = m_window.widget<QLineEdit>(u"passwordEditText"_s);
  auto* code = m_window.widget<QLineEdit>(u"suspendKeyEditText"_s);
  use("loginNameEditText=anna passwordEditText=secret");
  EXPECT_EQ(password->displayText(), QString(6, password->displayText().at(0)));
  EXPECT_NE(password->displayText().at(0), u's');
  use("loginNameButton");
  EXPECT_EQ(login->text(), QString(4, QChar(0x2022)));
  use("retentionCheckBox suspendKeyEditText=24");
  EXPECT_NE(code->displayText(), u"24"_s);
  QTest::keyClick(code, Qt::Key_R, Qt::ControlModifier);
  EXPECT_EQ(code->displayText(), u"24"_s);
  QTest::keyClick(code, Qt::Key_R, Qt::ControlModifier);
  EXPECT_NE(code->displayText(), u"24"_s);
  const QImage eye = code->actions().constFirst()->icon().pixmap(16, QIcon::Disabled).toImage();
  EXPECT_EQ(eye.pixelColor(2, 8).rgb(), code->palette().color(QPalette::Disabled, QPalette::Text).rgb());
}

// By a user, and by assistive technology.
TEST_F(DialogPane, PopUpAndMatrixOfFoldersStayInStep) {
  use("retentionCheckBox");
  auto* popUp = m_window.control<PopUp>(u"folderSelectionPopup"_s);
  auto* items = m_window.widget<QComboBox>(u"folderSelectionPopup"_s);
  std::vector<PopUpItem> more = popUp->items();
  more.push_back({.title = {}, .image = {}, .separator = true});
  more.push_back({.title = u"Invoices"_s, .image = {}});
  popUp->setItems(more);
  const auto choose = [&](const Text& chosen, bool isAssistive) {
    if (chosen.size() > 1) return isAssistive ? toggle(chosen) : use(chosen);
    if (isAssistive) return items->setCurrentIndex(chosen.toInt());
    EXPECT_TRUE(m_user.choose(u"folderSelectionPopup"_s, chosen.toInt()));
  };
  // What is chosen, an item or a cell, and the row and the item that are chosen then.
  using Case = std::tuple<Text, int, int>;
  const Case cases[] = {
      {"3", 2, 3}, {"1", 1, 1}, {"quickFileRadioButton", 0, 0},    {"customFolderRadioButton", 2, 1},
      {"0", 0, 0}, {"3", 2, 3}, {"customFolderRadioButton", 2, 3}, {"mainFolderRadioButton", 1, 1}};
  for (const bool isAssistive : {false, true}) {
    for (const auto& [chosen, row, index] : cases) {
      choose(chosen, isAssistive);
      EXPECT_EQ(m_window.control<RadioMatrix>(u"folderSelectionMatrix"_s)->selectedRow(), row) << chosen;
      EXPECT_EQ(popUp->selectedIndex(), index) << chosen;
      EXPECT_EQ(items->currentIndex(), index) << chosen;
    }
  }
  toggle(u"quickFileRadioButton"_s);
  EXPECT_EQ(m_window.control<RadioMatrix>(u"suspendMatrix"_s)->selectedRow(), 1) << "the rules have run";
  toggle(u"retentionCheckBox"_s);
  EXPECT_EQ(m_window.setting(u"jobSuspend"_s), u"0"_s);
  toggle(u"holdAfterRadioButton"_s);  // dimmed
  m_window.widget<QAbstractButton>(u"samplePrintRadioButton"_s)->setChecked(true);
  items->setCurrentIndex(0);
  EXPECT_TRUE(m_window.widget<QAbstractButton>(u"holdOnlyRadioButton"_s)->isChecked());
  EXPECT_EQ(items->currentIndex(), 1);
}

TEST_F(DialogPane, FocusFollowsTheModelAndBack) {
  auto* name = m_window.widget<QLineEdit>(u"folderNameEditText"_s);
  use("retentionCheckBox");
  auto* code = m_window.widget<QLineEdit>(u"suspendKeyEditText"_s);
  EXPECT_TRUE(code->hasFocus());
  QCoreApplication::processEvents();
  QTest::keyClicks(m_window.focusWidget(), u"24"_s);
  EXPECT_EQ(code->text(), u"24"_s) << "it keeps the focus";
  EXPECT_EQ(m_window.view->firstResponder()->objectName(), u"suspendKeyEditText"_s);
  use("suspendKeyButton");
  for (int i = 0; i < 2; ++i)
    use("retentionCheckBox");
  EXPECT_TRUE(m_window.widget(u"retentionCheckBox"_s)->hasFocus()) << "the pass code is locked";
  use("suspendKeyButton customFolderRadioButton");
  EXPECT_TRUE(name->hasFocus());
  QTest::keyClicks(name, u"Plans"_s);
  EXPECT_EQ(m_window.view->firstResponder()->objectName(), u"folderNameEditText"_s);
  QTest::keyClick(name, Qt::Key_Tab);
  EXPECT_FALSE(name->hasFocus());
  EXPECT_EQ(m_window.view->firstResponder(), nullptr) << "a button has the focus";
  use("suspendKeyEditText=1");
  restorePanel(*m_window.host, {});
  QCoreApplication::processEvents();
  EXPECT_FALSE(code->hasFocus()) << "it is dimmed";
  EXPECT_EQ(m_window.view->firstResponder()->objectName(), m_window.focusWidget()->objectName());
  use("userNumberRadioButton");
  EXPECT_TRUE(m_window.widget(u"userNumberEditText"_s)->hasFocus());
  use("authenticationRadioButton");
  EXPECT_TRUE(m_window.widget(u"loginNameEditText"_s)->hasFocus());
}

TEST_F(DialogPane, TabsProgressAndACaretMovedWithoutTheFocusFollow) {
  auto* line = m_window.widget<QLineEdit>(u"jobNameEditText"_s);
  line->setCursorPosition(0);
  accessible(line).actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_EQ(m_window.control<TextField>(u"jobNameEditText"_s)->selection(), TextRange());
  m_window.control<ProgressIndicator>(u"chasingArrow"_s)->setHidden(false);
  EXPECT_TRUE(m_window.widget(u"chasingArrow"_s)->isVisible());
  auto* tabs = m_window.control<TabView>(u"tabView"_s);
  for (const auto& [entered, page] : {std::pair{u"jobNameEditText"_s, 1}, {u"retentionCheckBox"_s, 0}}) {
    m_window.widget(entered)->setFocus();
    EXPECT_EQ(tabs->selectedTab(), page) << entered;
  }
}

TEST_F(DialogPane, ATipSaysWhyAControlIsDimmed) {
  const auto expectTips = [&](const QString& tips) {
    QCoreApplication::processEvents();  // tool tips follow after the current events
    forEachValue(tips, [&](const QString& name, const QString& part) {
      const QString tip = m_window.widget(name)->toolTip().replace(u' ', u'_');
      EXPECT_TRUE(part.isEmpty() ? tip.isEmpty() : tip.contains(part)) << name << ": " << tip;
    });
  };
  expectTips(
      u"suspendKeyEditText=not_held folderSelectionPopup=not_held holdOnlyRadioButton=not_held "
      "userNumberEditText="_s);
  use("retentionCheckBox userNumberRadioButton");
  expectTips(
      u"suspendKeyEditText= folderNameEditText=custom_folder folderPasswordStaticText=protected "
      "loginNameEditText=user_number"_s);
  use("quickFileRadioButton userNumberButton");
  expectTips(u"suspendKeyEditText=quick_file userNumberEditText=locked"_s);
}

TEST_F(DialogPane, OutlivesItsPanel) {
  use("retentionCheckBox");
  m_window.host.reset();
  QTest::mouseClick(m_window.widget(u"retentionCheckBox"_s), Qt::LeftButton);
  QTest::keyClicks(m_window.widget(u"suspendKeyEditText"_s), u"12"_s);
  QCoreApplication::processEvents();
  EXPECT_TRUE(m_window.isVisible());
}

TEST(Mnemonics, BelongToTheTextsWhateverIsShown) {
  rememberEnglish(u"印刷"_s, u"Print"_s);
  const QStringList all{u"Paper size"_s, u"Copies"_s, u"Staple"_s, u"印刷:"_s,
                        u"Ss"_s,         u"用&户"_s,  u"A & B"_s,  u"P"_s};
  const QStringList expected{u"&Paper size"_s, u"&Copies"_s, u"S&taple"_s, u"印刷(&R):"_s,
                             u"&Ss"_s,         u"用&&户"_s,  u"&A && B"_s, u"P"_s};
  for (int first = 0; first < all.size(); ++first) {
    QWidget window;
    setMnemonicTexts(window, all.first(5).replaceInStrings(u":"_s, u""_s));
    QList<QCheckBox*> boxes;
    for (const QString& text : all.sliced(first))
      setPlainText(*boxes.emplaceBack(new QCheckBox(&window)), text);
    assignMnemonics(window);
    for (int i = first; i < all.size(); ++i)
      EXPECT_EQ(boxes[i - first]->text(), expected[i]);
  }
}

}  // namespace
}  // namespace kesto::test
