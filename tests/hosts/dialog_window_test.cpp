// The window of the dialog: the way through it, its help, presets and sections, and how the program ends.
#include <QtGui/QAccessible>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTextBrowser>

#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/dialog/widgets/printer_details.h"
#include "tests/support/dialog_printer.h"
#include "tests/support/more_choices.h"

namespace kesto::test {
namespace {

TEST_F(DialogPrint, TabGoesRoundTheDialogInReadingOrder) {
  openReady({QLatin1String(KESTO_TEST_DATA "/../../demo/quarterly-report.pdf")});
  const auto* forward = widgetNamed<QToolButton>(*m_dialog, u"Next page"_s);
  await([&] { return forward->isEnabled(); }, u"the number of pages"_s);
  use("retentionCheckBox holdAfterRadioButton");
  widget(u"retentionCheckBox"_s)->setFocus();
  const auto walk = [this](Qt::KeyboardModifiers modifiers) {
    QStringList order;
    while (order.size() < 99 && (order.isEmpty() || order.last() != u"retentionCheckBox"_s)) {
      QTest::keyClick(m_dialog->focusWidget(), modifiers ? Qt::Key_Backtab : Qt::Key_Tab, modifiers);
      const QWidget& focused = *m_dialog->focusWidget();
      const QString name = focused.objectName().isEmpty() ? plainText(focused) : focused.objectName();
      order.append(name.isEmpty() ? focused.accessibleName() : name);
      order.last().replace(u' ', u'_');
    }
    return order;
  };
  const QStringList all = walk({});
  const QStringList expected =
      u"holdAfterRadioButton suspendKeyEditText suspendKeyButton mainFolderRadioButton folderSelectionPopup "
      "printersAddressEditText getFolderNameButton jobNameEditText summaryHeader Preview pageNumber "
      "Next_page Presets print Cancel Help "
      "printer generalHeader copies job-handlingHeader retentionCheckBox"_s.split(u' ');
  QStringList order = all;
  order.removeIf([&](const QString& name) { return !expected.contains(name); });
  EXPECT_EQ(order, expected) << all.join(u' ');
  QStringList back(all.rbegin() + 1, all.rend());
  EXPECT_EQ(walk(Qt::ShiftModifier), back << all.last());
}

TEST_F(DialogPrint, HelpOpensBesideTheDialog) {
  open();
  await([this] { return m_dialog->isActiveWindow(); }, u"the window"_s);
  QTest::keyClick(&*m_dialog, Qt::Key_F1);
  auto* help = widget<QDialog>(u"help"_s);
  EXPECT_TRUE(help->isVisible() && !help->isModal());
  EXPECT_TRUE(help->findChild<QTextBrowser*>()->toPlainText().contains(u"pass code of up to 8 digits"_s));
  QTest::keyClick(help, Qt::Key_Escape);
  EXPECT_TRUE(m_dialog->isVisible() && !help->isVisible()) << "Escape closes the help alone";
}

TEST_F(DialogPrint, PresetsAreRestoredAndDeleted) {
  startPrinter({u"--queues"_s, u"2"_s});
  changePpd(u"Office_MFP_0002"_s, fewChoices, moreChoices);
  m_options.queue = u"Office_MFP_0002"_s;
  openReady();
  const auto button = [this] { return widgetNamed<QPushButton>(*m_dialog, u"Presets"_s); };
  const auto entryOf = [](const QMenu* shown, const QString& part) {
    const QList<QAction*> entries = shown->actions();
    const auto found = std::ranges::find_if(entries, [&](auto* each) { return each->text().contains(part); });
    return found == entries.end() ? nullptr : *found;
  };
  // An entry of the menu as it is now, or of the menu below it that deletes.
  const auto entry = [&](const QString& part, bool deletes = false) {
    QMenu* menu = button()->menu();
    QMetaObject::invokeMethod(menu, "aboutToShow");
    return entryOf(deletes ? entryOf(menu, u"Delete"_s)->menu() : menu, part);
  };
  const auto save = [&] {
    whenModal([](QWidget& window) {
      QTest::keyClicks(window.findChild<QLineEdit*>(), u"Held & fast"_s);
      pressEnter(window);
    });
    entry(u"Save"_s)->trigger();
  };
  use("retentionCheckBox holdAfterRadioButton");
  const auto choose = [this](const QString& name, const QString& value) {
    m_dialog->jobOptions().choose(name, value);
  };
  const auto chosen = [this] {
    const JobOptions& options = m_dialog->jobOptions();
    return options.value(u"Duplex"_s) + options.value(u"copies"_s);
  };
  choose(u"Duplex"_s, u"DuplexTumble"_s);
  choose(u"TonerSave"_s, u"True"_s);
  save();
  EXPECT_EQ(button()->accessibleDescription(), u"Held & fast"_s);
  EXPECT_FALSE(button()->shortcut().isEmpty()) << "keeps a letter";
  click(u"retentionCheckBox"_s);
  await([&] { return button()->accessibleDescription() == u"Held & fast (changed)"_s; }, u"the mark"_s);
  choose(u"Duplex"_s, u"None"_s);
  choose(u"copies"_s, u"3"_s);
  entry(u"Held && fast"_s)->trigger();
  EXPECT_EQ(chosen(), u"DuplexTumble1"_s);
  EXPECT_TRUE(widget<QAbstractButton>(u"retentionCheckBox"_s)->isChecked());
  EXPECT_TRUE(widget<QAbstractButton>(u"holdAfterRadioButton"_s)->isChecked());
  choose(u"copies"_s, u"2"_s);
  EXPECT_FALSE(entry(u"Last"_s)->isEnabled());
  click(u"print"_s);
  await([this] { return m_dialog->job() > 0; }, u"the job"_s);

  m_options.queue = QString();
  openReady();
  EXPECT_EQ(m_dialog->queueName(), u"Office_MFP_0002"_s) << "of the last job";
  entry(u"Last"_s)->trigger();
  EXPECT_TRUE(entry(u"Last"_s)->isChecked() && !entry(u"Held"_s)->isChecked());
  EXPECT_EQ(chosen(), u"DuplexTumble1"_s) << "without the copies";
  EXPECT_TRUE(widget<QAbstractButton>(u"holdAfterRadioButton"_s)->isChecked());

  m_options.queue = u"Office_MFP"_s;
  openReady();
  entry(u"Held"_s)->trigger();
  EXPECT_EQ(chosen(), u"DuplexTumble1"_s);
  EXPECT_TRUE(text(u"message"_s).contains(u"does not support TonerSave: "_s)) << text(u"message"_s);
  entry(u"Held"_s, true)->trigger();
  EXPECT_EQ(entry(u"Held"_s), nullptr);
  EXPECT_EQ(button()->accessibleDescription(), u""_s);
  // Another dialog may delete it while the menu is open.
  for (const bool deletes : {false, true}) {
    save();
    QAction* stale = entry(u"Held"_s, deletes);
    EXPECT_TRUE(QFile::remove(m_folder.path(u"config/kesto/kesto.presets.Office_MFP.json"_s)));
    const QString alert = alertOn([&] { stale->trigger(); });
    EXPECT_TRUE(alert.contains(u"There is no preset \"Held & fast\""_s)) << alert;
  }
}

TEST_F(DialogPrint, ASectionFoldsAndStaysAsItWasLeft) {
  openReady();
  const auto header = [this] { return widget<QAbstractButton>(u"job-handlingHeader"_s); };
  const auto accessible = [&] { return QAccessible::queryAccessibleInterface(header()); };
  const std::function<void()> ways[] = {
      [&] { QTest::keyClick(header(), Qt::Key_Space); },
      [&] { QTest::keyClick(header(), Qt::Key_Return); },
      [&] { QTest::mouseClick(header(), Qt::LeftButton); },
      [&] { accessible()->actionInterface()->doAction(QAccessibleActionInterface::pressAction()); },
  };
  const QSize size = m_dialog->size();
  for (const auto& operate : ways) {
    for (const bool isOpen : {false, true}) {
      if (!isOpen) widget(u"retentionCheckBox"_s)->setFocus();
      operate();
      EXPECT_EQ(widget(u"retentionCheckBox"_s)->isVisible(), isOpen);
      EXPECT_TRUE(accessible()->state().expanded == isOpen && accessible()->state().collapsed != isOpen);
      EXPECT_EQ(m_dialog->focusWidget(), header());
    }
  }
  EXPECT_EQ(m_dialog->size(), size);
  EXPECT_EQ(accessible()->text(QAccessible::Name), u"Job Handling"_s);
  click(u"retentionCheckBox"_s);
  await([&] { return accessible()->text(QAccessible::Description) == u"Hold only"_s; }, u"the headline"_s);
  header()->click();
  m_dialog->resize(size - QSize(10, 10));
  m_dialog->reject();
  openReady();
  EXPECT_FALSE(header()->isChecked());
  EXPECT_EQ(m_dialog->size(), size - QSize(10, 10));
}

TEST_F(DialogPrint, TextsFromOutsideStayOnTheirLine) {
  startPrinter();
  changePpd(u"Office_MFP"_s, "*PageSize A5/A5:", "*PageSize A5/A\x9b 5:");
  openReady();
  const auto* paper = widget<QComboBox>(u"PageSize"_s);
  EXPECT_EQ(paper->itemText(paper->findData(u"A5"_s)), u"A\\x9b 5"_s);
  QueueListModel queues;
  QueueSummary queue;
  queue.name = u"q"_s;
  queue.info = u"Floor\n\u202e2"_s;
  queues.setQueues({queue});
  EXPECT_EQ(queues.index(0).data(), u"q — Floor\\n\\u202e2"_s);
  QLabel label;
  setPlainText(label, u"Folder\r\u0085 & more"_s);
  EXPECT_EQ(label.text(), u"Folder\\r\\x85 & more"_s);
  PrinterDetails details(nullptr);
  queue.supplies = {{.name = u"<b>Black</b>"_s, .color = {}, .level = 70},
                    {.name = u"<b>Cyan</b>"_s, .color = {}}};
  details.showQueue(queue);
  for (const auto* each : details.findChildren<QLabel*>())
    EXPECT_EQ(each->textFormat(), Qt::PlainText) << each->text();
}

TEST_F(DialogPrint, TheSummarySaysWhatOthersSee) {
  for (const auto& [edits, part] :
       Cases{{"", "none of its details."},
             {"/JobPrivate/d", "add these lines to the print server's policy \"demo\":\n\nJob"}}) {
    m_printer.reset();
    changeScheduler(m_folder, edits.toLatin1());
    startPrinter();
    openReady();
    click(u"privacy"_s);
    await([this] { return widget(u"privacyText"_s)->isVisible(); }, u"what others see"_s);
    EXPECT_TRUE(text(u"privacyText"_s).contains(part)) << text(u"privacyText"_s);
    EXPECT_NE(text(u"privacyText"_s).contains(u"the pass code, "_s), edits.isEmpty());
  }
}

TEST_F(DialogPrint, TheProgramEndsAsItsManualSays) {
  startPrinter();
  using Run = std::tuple<Text, int, const char*, const char*>;  // "%1" is the folder, "%2" the server
  for (const auto& [line, code, output, error] :
       {Run{"-h %2 --timings", 0, "queues=1", ""},
        Run{"-h %2 --screenshot %1/picture.png %1/report.pdf", 0, "", ""},
        Run{"-h %2 --screenshot %1/picture.png /no/such.pdf", 0, "", "/no/such.pdf cannot be read"},
        Run{"-h %2 -d None --timings", 1, "", "no printer"}, Run{"--help", 0, "Usage: kesto-print", ""},
        Run{"--nonsense", 2, "", "--nonsense"}, Run{"--x\u001b[2J", 2, "", "--x\\x1b[2J"},
        Run{"--timeout nan", 2, "", "--timeout"}, Run{"-n 0x10", 2, "", "-n"},
        Run{"--portal 77", 2, "", "must be an open descriptor"}}) {
    const QString arguments = QString(line).replace(u"%2"_s, m_printer->place(u"server"_s));
    DemoProcess program(m_folder, u"kesto-print "_s + arguments);
    program.closeWriteChannel();
    EXPECT_EQ(program.code(), code) << line;
    EXPECT_TRUE(program.readAllStandardOutput().contains(output)) << line;
    EXPECT_TRUE(program.log().contains(error)) << line;
  }
  EXPECT_FALSE(QImage(m_folder.path(u"picture.png"_s)).isNull());
}

}  // namespace
}  // namespace kesto::test
