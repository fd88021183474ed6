// The dialog on the demo printer's scheduler, and on servers that are none.
#include <sys/stat.h>
#include <QtGui/QAccessible>

#include <QtNetwork/QTcpServer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QToolButton>

#include "hosts/dialog/panes/general_pane.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/dialog/widgets/queue_chooser.h"
#include "tests/support/dialog_printer.h"
#include "tests/support/hostile_server.h"

namespace kesto::test {
namespace {

TEST_F(DialogPrint, AHeldJobIsReleasedWithItsPassCodeAndItsEntriesAreRemembered) {
  startPrinter();
  openReady();
  click(u"retentionCheckBox"_s);
  type(u"suspendKeyEditText"_s, u"2468"_s);
  click(u"userNumberRadioButton"_s);
  type(u"userNumberEditText"_s, u"42"_s);
  click(u"userNumberButton"_s);
  type(u"copies"_s, u"2"_s);
  click(u"print"_s);
  await([this] { return m_dialog->job() > 0; }, u"the job"_s);
  EXPECT_EQ(text(u"message"_s), u"Job 1 sent to Office_MFP"_s);
  m_printer->waitForLog("job 1");
  EXPECT_EQ(m_printer->release({u"1"_s}), 3) << "without its pass code";
  EXPECT_EQ(m_printer->release({u"1"_s, u"--pin-file"_s, m_folder.path(u"pin"_s)}), 0);
  const QStringList printouts = m_printer->printouts();
  ASSERT_FALSE(printouts.isEmpty());
  EXPECT_TRUE(bytesOf(m_printer->place(u"output"_s) + u'/' + printouts.first()).contains(pdfDocument()));
  openReady();
  EXPECT_TRUE(widget<QToolButton>(u"userNumberButton"_s)->isChecked());
  EXPECT_EQ(widget<QLineEdit>(u"userNumberEditText"_s)->text(), u"42"_s);
  EXPECT_EQ(widget<QLineEdit>(u"suspendKeyEditText"_s)->text(), u""_s);
}

TEST_F(DialogPrint, AWholeJobIsDoneThroughAssistiveTechnologyAlone) {
  startPrinter();
  openReady();
  const auto accessible = [this](const QString& name) {
    return QAccessible::queryAccessibleInterface(widget(name));
  };
  const auto act = [&](const QString& name, const QString& action) {
    QAccessibleActionInterface* actions = accessible(name)->actionInterface();
    ASSERT_TRUE(actions->actionNames().contains(action)) << name;
    actions->doAction(action);
  };
  const QString toggle = QAccessibleActionInterface::toggleAction();
  const QString press = QAccessibleActionInterface::pressAction();
  const auto insert = [&](const QString& name, const QString& text) {
    accessible(name)->editableTextInterface()->insertText(0, text);
  };
  act(u"retentionCheckBox"_s, toggle);
  act(u"holdAfterRadioButton"_s, toggle);
  insert(u"suspendKeyEditText"_s, u"x"_s);
  EXPECT_EQ(accessible(u"suspendKeyEditText"_s)->text(QAccessible::Value), u""_s) << "it takes digits";
  insert(u"suspendKeyEditText"_s, u"2468"_s);
  EXPECT_EQ(accessible(u"suspendKeyEditText"_s)->text(QAccessible::Value), u"****"_s);
  act(u"customFolderRadioButton"_s, toggle);
  insert(u"folderNameEditText"_s, u"Plans"_s);
  act(u"userNumberRadioButton"_s, toggle);
  insert(u"userNumberEditText"_s, u"42"_s);
  act(u"userNumberButton"_s, toggle);
  accessible(u"jobNameEditText"_s)->setText(QAccessible::Value, u"Plan"_s);
  accessible(u"copies"_s)->valueInterface()->setCurrentValue(2);
  EXPECT_EQ(m_dialog->general().jobOptions().value(u"copies"_s), u"2"_s);
  act(u"print"_s, press);
  await([this] { return m_dialog->job() > 0; }, u"the job"_s);
  const QMap<QString, QString> settings = m_dialog->jobSettings();
  const auto setting = [&](const char* name) {
    return settings.value(u"kesto.print.PrintSettings."_s + QLatin1String(name));
  };
  EXPECT_EQ(setting("jobSuspend"), u"1"_s);
  EXPECT_EQ(setting("jobSuspendKey").size(), 32) << "the digest of the pass code";
  EXPECT_EQ(setting("userNumber"), u"00042"_s);
  EXPECT_EQ(setting("jobName"), u"506C616E"_s);
  EXPECT_EQ(setting("holdButton"), u"64"_s);
  m_printer->waitForLog("job 1");
  EXPECT_EQ(m_printer->release({u"1"_s, u"--pin-file"_s, m_folder.path(u"pin"_s)}), 0);
}

TEST_F(DialogPrint, ARefusedJobLeadsToTheMissingEntry) {
  startPrinter();
  changePpd(u"Office_MFP"_s, R"(*ARKestoPrintSystem: "False")", R"(*ARKestoPrintSystem: "True")");
  openReady();
  click(u"userNumberRadioButton"_s);
  const QString alert = alertOn([this] { click(u"print"_s); });
  EXPECT_TRUE(alert.contains(u"User Number"_s)) << alert;
  EXPECT_EQ(m_dialog->focusWidget()->objectName(), u"userNumberEditText"_s);
  EXPECT_TRUE(m_dialog->focusWidget()->isVisible());
  EXPECT_EQ(m_dialog->job(), 0);
}

TEST_F(DialogPrint, AJobThatCannotBeSentKeepsTheEntries) {
  startPrinter();
  openReady();
  click(u"userNumberRadioButton"_s);
  type(u"userNumberEditText"_s, u"42"_s);
  QWidget* pages = nullptr;
  EXPECT_TRUE(DialogUser(*m_dialog).turnTo(u"pages"_s, &pages));
  QTest::keySequence(&*m_dialog, widget<QAbstractButton>(u"somePages"_s)->shortcut());
  await([&] { return pages->hasFocus(); }, u"the field of the pages"_s);
  QTest::keyClicks(pages, u"3-1"_s);
  click(u"print"_s);
  EXPECT_TRUE(text(u"message"_s).contains(u"1-3, 5"_s)) << text(u"message"_s);
  EXPECT_EQ(m_dialog->focusWidget()->objectName(), u"pages"_s);
  type(u"pages"_s, u"2"_s);
  m_printer.reset();
  click(u"print"_s);
  await([this] { return text(u"message"_s).startsWith(u"Not printed: "_s); }, u"the reason"_s);
  EXPECT_TRUE(m_dialog->isVisible());
  EXPECT_TRUE(widget(u"print"_s)->isEnabled());
  EXPECT_EQ(widget<QLineEdit>(u"userNumberEditText"_s)->text(), u"42"_s);
}

TEST_F(DialogPrint, ADocumentThatCannotBePrintedIsNotSent) {
  startPrinter();
  open({QLatin1String(KESTO_TEST_DATA "/protected.pdf")});
  await([this] { return m_dialog->isQueueReady(); }, u"the queue"_s);
  for (int i = 0; i < 2; ++i) {  // before it is looked at, perhaps, and after that
    click(u"print"_s);
    await([this] { return text(u"message"_s).contains(u"is protected by a password"_s); }, u"the reason"_s);
    await([this] { return widget(u"print"_s)->isEnabled(); }, u"another try"_s);
  }
  EXPECT_EQ(m_printer->jobs(), "[]");
}

TEST_F(DialogPrint, CancelStopsAJobThatIsGoingOut) {
  startPrinter();
  openReady();
  click(u"retentionCheckBox"_s);
  signalScheduler(SIGSTOP);
  click(u"print"_s);
  auto* code = widget<QLineEdit>(u"suspendKeyEditText"_s);
  QAccessible::queryAccessibleInterface(code)->setText(QAccessible::Value, u"2468"_s);
  EXPECT_EQ(code->text(), u""_s) << "the job has its entries already";
  for (const auto* label : m_dialog->findChildren<QLabel*>())
    EXPECT_TRUE(label->buddy() == nullptr || !label->isEnabled()) << label->text();
  QTest::keyClick(&*m_dialog, Qt::Key_Escape);
  EXPECT_EQ(text(u"message"_s), u"Stopping the job…"_s);
  EXPECT_TRUE(m_dialog->isVisible());
  signalScheduler(SIGCONT);
  await([this] { return text(u"message"_s) == u"Not printed: the job was stopped"_s; }, u"the end"_s);
  EXPECT_TRUE(widget(u"print"_s)->isEnabled());
  EXPECT_EQ(m_printer->jobs(), "[]");
}

TEST_F(DialogPrint, ASilentServerIsToldAndAskedAgain) {
  QTcpServer silent;
  ASSERT_TRUE(silent.listen(QHostAddress::LocalHost));
  m_options.server.address = u"127.0.0.1:%1"_s.arg(silent.serverPort());
  m_options.server.limit = std::chrono::milliseconds(300);
  open();
  await([this] { return widget(u"retry"_s)->isVisible(); }, u"the fault"_s);
  EXPECT_TRUE(text(u"printerState"_s).contains(u"does not answer"_s)) << text(u"printerState"_s);
  EXPECT_FALSE(widget(u"print"_s)->isEnabled());
  EXPECT_EQ(widget(u"print"_s)->toolTip(), u""_s) << "the document is there";
  EXPECT_EQ(widget<QComboBox>(u"printer"_s)->placeholderText(), u"No printer"_s);
  type(u"copies"_s, u"3"_s);
  click(u"retry"_s);
  EXPECT_FALSE(widget(u"retry"_s)->isVisible());
  await([this] { return widget(u"retry"_s)->isVisible(); }, u"the fault again"_s);
  QTest::keyClick(&*m_dialog, Qt::Key_Escape);
  EXPECT_FALSE(m_dialog->isVisible());
}

// With a limit of an hour: only what is interrupted ends.
TEST_F(DialogPrint, TheDialogGoesWhateverItsServerIsWaitedForWith) {
  const QByteArray chunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
  const std::pair<int, Misbehaviour> cases[] = {
      {HostileServer::atConnect, {}},
      {IPP_OP_CUPS_GET_PRINTERS, {}},
      {IPP_OP_CUPS_GET_DEFAULT, {.again = "HTTP/1.1 100 Continue\r\n\r\n"}},
      {IPP_OP_CUPS_GET_DEFAULT, {chunked, "1\r\nx\r\n", std::chrono::milliseconds(20)}},
      {HostileServer::atConnect, {"HTTP/1.1 101 Switching Protocols\r\nUpgrade: TLS/1.2\r\n\r\n"}},
  };
  m_options.server.limit = std::chrono::hours(1);
  for (const auto& [operation, misbehaviour] : cases) {
    const HostileServer hostile(operation, misbehaviour);
    m_options.server.address = hostile.address();
    m_options.server.encrypt = misbehaviour.once.contains("TLS");
    open();
    await([&] { return hostile.hasMisbehaved(); }, u"the server"_s);
    QTest::keyClick(&*m_dialog, Qt::Key_Escape);
    EXPECT_FALSE(m_dialog->isVisible());
    m_dialog.reset();
  }
}

TEST_F(DialogPrint, AThousandQueuesAreListedAndFiltered) {
  startPrinter({u"--queues"_s, u"1000"_s});
  openReady();
  EXPECT_EQ(m_dialog->queues().rowCount(), 1000);
  click(u"retentionCheckBox"_s);
  auto* printer = widget<QComboBox>(u"printer"_s);
  printer->setFocus();
  printer->lineEdit()->selectAll();
  QTest::keyClicks(printer->lineEdit(), u"mfp_0777"_s);
  QTest::keyClick(printer->lineEdit(), Qt::Key_Return);
  EXPECT_EQ(m_dialog->queueName(), u"Office_MFP_0777"_s);
  await([this] { return m_dialog->isQueueReady(); }, u"the other queue"_s);
  EXPECT_FALSE(widget<QAbstractButton>(u"retentionCheckBox"_s)->isChecked()) << "its panel is another";
  EXPECT_EQ(m_dialog->job(), 0) << "Enter takes the name, it does not print";
}

TEST_F(DialogPrint, WhatThePrinterFieldShowsIsWhatIsPrintedOn) {
  startPrinter({u"--queues"_s, u"14"_s});
  openReady();
  auto* printer = widget<QComboBox>(u"printer"_s);
  auto* chooser = m_dialog->findChild<QueueChooser*>();
  const auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QWidget* popup = QApplication::activePopupWidget();
    QTest::keyClick(popup != nullptr ? popup : QApplication::focusWidget(), key, modifiers);
  };
  QueueSummary late;
  late.name = u"Attic_Laser"_s;
  // A way to change the field, the queue that it leads to (null: still the one before), and what is said when
  // the field shows another text than the queue's.
  struct Way {
    const char* what;
    QString typed;
    std::function<void()> act;
    QString queue;
    QString said;
  };
  const Way ways[] = {
      {"typed alone", u"Office_MFP_0005"_s, [] {}, {}, u"Press Enter to choose Office_MFP_0005."_s},
      {"the letter of Print, which is dimmed",
       u"mfp_0004"_s,
       [&] { press(Qt::Key_I, Qt::AltModifier); },
       u"Office_MFP_0004"_s,
       {}},
      {"the letter of Print after a text that names none",
       u"Upstairs"_s,
       [&] { press(Qt::Key_I, Qt::AltModifier); },
       {},
       u"There is no printer named \"Upstairs\"."_s},
      {"a click on Print",
       u"mfp_0005"_s,
       [&] { QTest::mouseClick(widget(u"print"_s), Qt::LeftButton); },
       {},
       u"Press Enter to choose Office_MFP_0005."_s},
      {"a text that names none",
       u"Upstairs"_s,
       [&] { press(Qt::Key_Return); },
       {},
       u"There is no printer named \"Upstairs\"."_s},
      {"a text that names many",
       u"mfp"_s,
       [&] { press(Qt::Key_Return); },
       {},
       u"Several printers match. Choose one of them."_s},
      {"no text", u""_s, [&] { printer->lineEdit()->clear(); }, {}, u"Enter the name of a printer."_s},
      {"back by Escape", u"Upstairs"_s, [&] { press(Qt::Key_Escape); }, {}, {}},
      {"back by Escape from the list",
       u"0005"_s,
       [&] {
         press(Qt::Key_Down);
         press(Qt::Key_Escape);
       },
       {},
       {}},
      {"Enter", u"0005"_s, [&] { press(Qt::Key_Return); }, u"Office_MFP_0005"_s, {}},
      {"leaving the field", u"0006"_s, [&] { press(Qt::Key_Tab); }, u"Office_MFP_0006"_s, {}},
      {"a choice from the list",
       u"0007"_s,
       [&] {
         press(Qt::Key_Down);
         press(Qt::Key_Return);
       },
       u"Office_MFP_0007"_s,
       {}},
      {"a text that assistive technology sets",
       u""_s,
       [&] { printer->lineEdit()->setText(u"Office_MFP_0008"_s); },
       u"Office_MFP_0008"_s,
       {}},
      {"an item that is set", u""_s, [&] { printer->setCurrentIndex(2); }, u"Office_MFP_0003"_s, {}},
      {"a queue that comes",
       u"Attic"_s,
       [&] { chooser->setQueue(late); },
       {},
       u"Press Enter to choose Attic_Laser."_s},
      {"a queue that goes",
       u"Attic"_s,
       [&] { chooser->removeQueue(late.name); },
       {},
       u"There is no printer named \"Attic\"."_s},
      {"the open queue that goes",
       u"0009"_s,
       [&] { chooser->removeQueue(u"Office_MFP_0003"_s); },
       {},
       u"Press Enter to choose Office_MFP_0009."_s},
  };
  QString queue = m_dialog->queueName();
  for (const Way& way : ways) {
    SCOPED_TRACE(way.what);
    if (QWidget* popup = QApplication::activePopupWidget()) popup->hide();
    m_dialog->activateWindow();
    await([this] { return m_dialog->isActiveWindow(); }, u"the window"_s);
    printer->setFocus();
    printer->lineEdit()->selectAll();
    if (!way.typed.isEmpty()) QTest::keyClicks(QApplication::focusWidget(), way.typed);
    way.act();
    if (!way.queue.isNull()) queue = way.queue;
    EXPECT_EQ(m_dialog->queueName(), queue);
    EXPECT_TRUE(m_dialog->isVisible());
    await([this] { return m_dialog->isQueueReady(); }, u"the queue"_s);
    EXPECT_EQ(widget(u"print"_s)->isEnabled(), way.said.isNull());
    EXPECT_EQ(printer->currentText().section(u' ', 0, 0) == queue, way.said.isNull())
        << printer->currentText();
    EXPECT_EQ(text(u"printerState"_s), way.said.isNull() ? u"Ready"_s : way.said);
    EXPECT_EQ(m_dialog->job(), 0);
  }
}

TEST_F(DialogPrint, WhyAQueueTakesNoJobsOrPrintsNoneIsShown) {
  for (const auto& [edits, said] :
       Cases{{"s/Accepting Yes/Accepting No\\nStateMessage Closed until Monday/",
              "Not accepting jobs: Closed until Monday"},
             {"s/Accepting Yes/Accepting No/", "Not accepting jobs"},
             {"s/State Idle/State Stopped\\nStateMessage Out of toner/", "Paused: Out of toner"},
             {"s/State Idle/State Stopped/", "Paused"}}) {
    m_printer.reset();
    changeScheduler(m_folder, edits.toLatin1());
    startPrinter();
    openReady();
    EXPECT_EQ(text(u"printerState"_s), said);
    EXPECT_EQ(widget(u"print"_s)->isEnabled(), said.startsWith(u"Paused"_s));
  }
}

TEST_F(DialogPrint, AQueueWithoutThePanelPrintsByItsOwnOptions) {
  startPrinter({u"--queues"_s, u"2"_s});
  changePpd(u"Office_MFP_0002"_s, "*APDialogExtension", "*% none");
  openReady();
  for (const int row : {1, 0, 1})  // only the last one is waited for
    EXPECT_TRUE(DialogUser(*m_dialog).choose(u"printer"_s, row));
  await([this] { return m_dialog->isQueueReady(); }, u"the other queue"_s);
  EXPECT_FALSE(widgetNamed(*m_dialog, u"Presets"_s)->isEnabled());
  EXPECT_TRUE(DialogUser(*m_dialog).choose(u"Duplex"_s, 1));
  click(u"print"_s);
  await([this] { return m_dialog->job() > 0; }, u"the job"_s);
  EXPECT_EQ(text(u"message"_s), u"Job 1 sent to Office_MFP_0002"_s);
  EXPECT_TRUE(m_dialog->jobSettings().isEmpty()) << "of the panel of the queue before";
  m_printer->waitForLog("job 1");
}

TEST_F(DialogPrint, TheFirstQueueThatTakesJobsStandsInForOneThatIsMissing) {
  changeScheduler(m_folder, "s/DefaultPrinter/Printer/; 0,/Accepting Yes/s//Accepting No/");
  startPrinter({u"--queues"_s, u"2"_s});
  for (const QString& asked : {QString(), u"Gone"_s}) {
    m_options.queue = asked;
    m_options.documentLater = !asked.isNull();  // an application may remember a queue that is gone
    openReady();
    EXPECT_EQ(m_dialog->queueName(), u"Office_MFP_0002"_s) << asked;
    const auto tip = [&](int row) { return m_dialog->queues().index(row).data(Qt::ToolTipRole); };
    EXPECT_EQ(tip(0), u"Not accepting jobs"_s);
    EXPECT_EQ(tip(1), u"Ready"_s);
  }
  DemoProcess program(m_folder, builtProgram("kesto-print"),
                      {u"-h"_s, m_options.server.address, u"--timings"_s});
  EXPECT_EQ(program.code(), 0) << program.log();
}

TEST_F(DialogPrint, ADocumentIsChosenInTheDialog) {
  startPrinter();
  openReady({});
  auto* button = widgetNamed<QPushButton>(*m_dialog, u"Choose the document"_s);
  whenModal([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
  button->click();
  EXPECT_FALSE(widget(u"print"_s)->isEnabled());
  whenModal([this](QWidget& window) {
    window.findChild<QLineEdit*>()->setText(m_folder.path(u"report.pdf"_s));
    pressEnter(*window.findChild<QLineEdit*>());
  });
  button->click();
  EXPECT_EQ(bytesOf(QString::fromLatin1(m_document.files().at(0).path)), pdfDocument());
  EXPECT_EQ(widget<QLineEdit>(u"jobNameEditText"_s)->text(), u"report.pdf"_s);
  EXPECT_TRUE(widget(u"print"_s)->isEnabled());
}

TEST_F(DialogPrint, WhatIsMissingOfTheDocumentsIsNamedAndTheRestPrinted) {
  startPrinter();
  m_folder.write(u"second"_s, "another");
  openReady({m_folder.path(u"report.pdf"_s), m_folder.path(u"none.pdf"_s), m_folder.path(u"second"_s)});
  EXPECT_EQ(text(u"documentName"_s),
            u"report.pdf and 1 more\n%1 cannot be read: No such file or directory"_s.arg(
                m_folder.path(u"none.pdf"_s)));
  click(u"print"_s);
  await([this] { return m_dialog->job() > 0; }, u"the job"_s);
  m_printer->waitForLog("job 1 from ");
  m_printer->waitForLog("job 1 from ");
  EXPECT_EQ(bytesOf(m_printer->place(u"output"_s) + u"/job-1-2"_s), "another");
  open({m_folder.path(u"none.pdf"_s)});
  await([this] { return m_dialog->isQueueReady() || m_dialog->isSettled(); }, u"the queue"_s);
  EXPECT_TRUE(text(u"documentName"_s).startsWith(m_folder.path(u"none.pdf"_s)));
  const auto isWhole = [this] {
    const auto* label = widget<QLabel>(u"documentName"_s);
    return label->height() >= label->heightForWidth(label->width());
  };
  await(isWhole, u"room for all lines beside the button"_s);
  EXPECT_FALSE(widget(u"print"_s)->isEnabled());
}

TEST_F(DialogPrint, PrintReadsTheRestOfALongPipe) {
  startPrinter();
  const QString fifo = m_folder.path(u"fifo"_s);
  ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
  openReady({fifo});  // it has no writer yet
  EXPECT_FALSE(widget(u"print"_s)->isEnabled());
  const DemoProcess writer(m_folder, u"sh"_s,
                           {u"-c"_s, u"cat \"$0\" > \"$1\""_s, m_folder.path(u"report.pdf"_s), fifo});
  await([this] { return widget(u"print"_s)->isEnabled(); }, u"the pause"_s);
  EXPECT_EQ(m_document.state(), Document::State::Paused);
  click(u"print"_s);
  EXPECT_TRUE(m_dialog->isVisible());
  await([this] { return m_dialog->job() > 0; }, u"the job"_s);
  m_printer->waitForLog("job 1 from ");
  EXPECT_EQ(bytesOf(m_printer->place(u"output"_s) + u"/job-1-1"_s), pdfDocument());
}

TEST_F(DialogPrint, TextsOfOthersStayOnTheirLine) {
  startPrinter();
  changePpd(u"Office_MFP"_s, "*PageSize A5/A5:", "*PageSize A5/A\x9b 5:");
  openReady();
  const auto* paper = widget<QComboBox>(u"PageSize"_s);
  EXPECT_EQ(paper->itemText(paper->findData(u"A5"_s)), u"A\\x9b 5"_s);
  QueueListModel queues;
  queues.setQueues({{u"q"_s, u"Floor\n\u202e2"_s, {}, {}, {}}});
  EXPECT_EQ(queues.index(0).data(), u"q — Floor\\n\\u202e2"_s);
  QLabel label;
  setPlainText(label, u"Folder\r\u0085 & more"_s);
  EXPECT_EQ(label.text(), u"Folder\\r\\x85 & more"_s);
}

TEST_F(DialogPrint, HelpStandsBesideTheDialog) {
  open();
  await([this] { return m_dialog->isActiveWindow(); }, u"the window"_s);
  QTest::keyClick(&*m_dialog, Qt::Key_F1);
  auto* help = widget<QDialog>(u"help"_s);
  EXPECT_TRUE(help->isVisible() && !help->isModal());
  EXPECT_TRUE(help->findChild<QTextBrowser*>()->toPlainText().contains(u"pass code of up to 8 digits"_s));
  QTest::keyClick(help, Qt::Key_Escape);
  EXPECT_FALSE(help->isVisible());
  EXPECT_TRUE(m_dialog->isVisible()) << "Escape closes the help alone";
  m_dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Help)->click();
  EXPECT_TRUE(help->isVisible()) << "the same one";
}

TEST_F(DialogPrint, TabGoesRoundTheDialogAsItIsRead) {
  startPrinter();
  openReady({QLatin1String(KESTO_TEST_DATA "/../../demo/quarterly-report.pdf")});
  const auto* forward = widgetNamed<QToolButton>(*m_dialog, u"Next page"_s);
  await([&] { return forward->isEnabled(); }, u"the number of pages"_s);
  click(u"retentionCheckBox"_s);
  click(u"holdAfterRadioButton"_s);
  widget(u"retentionCheckBox"_s)->setFocus();
  const auto walk = [this](Qt::KeyboardModifiers modifiers) {
    QStringList order;
    while (order.size() < 40 && (order.isEmpty() || order.last() != u"retentionCheckBox"_s)) {
      QTest::keyClick(m_dialog->focusWidget(), modifiers ? Qt::Key_Backtab : Qt::Key_Tab, modifiers);
      const QWidget& focused = *m_dialog->focusWidget();
      const bool isTabBar = focused.inherits("QTabBar");
      const QString name = focused.objectName().isEmpty() ? plainText(focused) : focused.objectName();
      order.append(isTabBar ? u"tabs"_s : name.isEmpty() ? focused.accessibleName() : name);
    }
    return order;
  };
  const QStringList order{u"holdAfterRadioButton"_s,
                          u"suspendKeyEditText"_s,
                          u"suspendKeyButton"_s,
                          u"mainFolderRadioButton"_s,
                          u"folderSelectionPopup"_s,
                          u"printersAddressEditText"_s,
                          u"getFolderNameButton"_s,
                          u"print"_s,
                          u"Cancel"_s,
                          u"Help"_s,
                          u"Next page"_s,
                          u"Presets"_s,
                          u"printer"_s,
                          u"tabs"_s,
                          u"tabs"_s,
                          u"retentionCheckBox"_s};
  EXPECT_EQ(walk({}), order);
  QStringList back(order.rbegin() + 1, order.rend());
  EXPECT_EQ(walk(Qt::ShiftModifier), back << order.last());
}

TEST_F(DialogPrint, AFailedFolderFetchIsAnAlert) {
  startPrinter();
  openReady();
  QTcpServer gone;
  ASSERT_TRUE(gone.listen(QHostAddress::LocalHost));
  type(u"printersAddressEditText"_s, u"127.0.0.1:%1"_s.arg(gone.serverPort()));
  gone.close();
  const QString alert = alertOn([this] { click(u"getFolderNameButton"_s); });
  EXPECT_EQ(alert, u"Could not retrieve Folder Names."_s);
  EXPECT_EQ(m_dialog->focusWidget(), widget(u"getFolderNameButton"_s));
  EXPECT_TRUE(widget<QPushButton>(u"print"_s)->isDefault());
  EXPECT_TRUE(m_dialog->isVisible());
}

TEST_F(DialogPrint, SaysWhyNobodyIsAskedForFolders) {
  startPrinter();
  openReady();
  for (const auto& [address, reason] : Cases{{"", "Enter the printer's address"},
                                             {"no host", "\"no host\" is not an address."},
                                             {"a\u202Eb/", "is not an address."}}) {
    type(u"printersAddressEditText"_s, u"x"_s);
    widget<QLineEdit>(u"printersAddressEditText"_s)->setText(address);
    click(u"getFolderNameButton"_s);
    EXPECT_TRUE(text(u"message"_s).contains(reason)) << text(u"message"_s);
    EXPECT_FALSE(text(u"message"_s).contains(QChar(0x202E)));
    EXPECT_EQ(m_dialog->focusWidget(), widget(u"printersAddressEditText"_s));
  }
  widget<QLineEdit>(u"printersAddressEditText"_s)->setText(m_printer->place(u"folders"_s));
  click(u"getFolderNameButton"_s);
  EXPECT_EQ(text(u"message"_s), u""_s);
}

TEST_F(DialogPrint, SaysWhenFetchedFoldersCannotBeKept) {
  startPrinter();
  const QByteArray temporary = qgetenv("TMPDIR");
  qputenv("TMPDIR", "/nonexistent");
  openReady();
  widget<QLineEdit>(u"printersAddressEditText"_s)->setText(m_printer->place(u"folders"_s));
  click(u"getFolderNameButton"_s);
  qputenv("TMPDIR", temporary);
  EXPECT_TRUE(text(u"message"_s).contains(u"cannot be written to the temporary folder"_s))
      << text(u"message"_s);
  click(u"getFolderNameButton"_s);
  EXPECT_EQ(text(u"message"_s), u""_s) << "there is room again";
}

TEST_F(DialogPrint, SaysThatNothingIsFiled) {
  startPrinter();
  openReady();
  click(u"retentionCheckBox"_s);
  click(u"customFolderRadioButton"_s);
  EXPECT_TRUE(widget(u"filingNote"_s)->isVisible());
  const auto isInSummary = [this](const QString& label) {
    QCoreApplication::processEvents();
    return std::ranges::any_of(m_dialog->findChildren<QLabel*>(),
                               [&](const QLabel* each) { return each->accessibleName() == label; });
  };
  EXPECT_TRUE(isInSummary(u"Hold Mode"_s));
  EXPECT_FALSE(isInSummary(u"Folder"_s));
}

TEST_F(DialogPrint, CancelEndsAFolderFetch) {
  startPrinter();
  QTcpServer silent;
  ASSERT_TRUE(silent.listen(QHostAddress::LocalHost));
  openReady();
  type(u"printersAddressEditText"_s, u"127.0.0.1:%1"_s.arg(silent.serverPort()));
  bool wasAlive = false;
  QObject::connect(&silent, &QTcpServer::newConnection, qApp, [&] {
    wasAlive = widget(u"chasingArrow"_s)->isVisible() && !widget(u"getFolderNameButton"_s)->isEnabled();
    QTest::keyClick(&*m_dialog, Qt::Key_Escape);
  });
  click(u"getFolderNameButton"_s);  // returns when the fetch has ended
  EXPECT_TRUE(wasAlive);
  EXPECT_FALSE(m_dialog->isVisible());
}

TEST_F(DialogPrint, WhatHappensToQueuesIsFollowedEvenWhenTheSchedulerForgetsIt) {
  startPrinter();
  openReady();
  const auto change = [this](const QStringList& arguments) {
    DemoProcess lpadmin(m_folder, u"/usr/sbin/lpadmin"_s,
                        QStringList{u"-h"_s, m_printer->place(u"server"_s)} + arguments);
    EXPECT_EQ(lpadmin.code(), 0) << lpadmin.log();
  };
  const auto ask = [this](ipp_op_t operation, int subscription) {
    const Ipp request(ippNewRequest(operation));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, "ipp://localhost/");
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "notify-subscription-id", subscription);
    std::unique_ptr<PrintServer> server;
    Ipp reply;
    return m_options.server.connect(&server) && server->ask(request.get(), &reply);
  };
  const QueueListModel& queues = m_dialog->queues();
  const auto* printer = widget<QComboBox>(u"printer"_s);
  await([&] { return ask(IPP_OP_GET_SUBSCRIPTION_ATTRIBUTES, 1); }, u"the subscription"_s);
  change({u"-p"_s, u"Annex"_s, u"-E"_s, u"-v"_s, u"socket://127.0.0.1:9"_s});
  await([&] { return queues.rowOf(u"Annex"_s) == 0; }, u"the new queue"_s);
  EXPECT_EQ(printer->currentText(), u"Office_MFP — Kesto VQ-250n (demo)"_s);
  EXPECT_TRUE(ask(IPP_OP_CANCEL_SUBSCRIPTION, 1));
  await([&] { return ask(IPP_OP_GET_SUBSCRIPTION_ATTRIBUTES, 2); }, u"the next subscription"_s);
  change({u"-p"_s, u"Annex"_s, u"-D"_s, u"Moved"_s});
  change({u"-x"_s, u"Office_MFP"_s});
  await([&] { return queues.rowCount() == 1 && printer->itemText(0) == u"Annex — Moved"_s; }, u"the news"_s);
  EXPECT_EQ(printer->currentIndex(), -1) << "nobody has chosen another";
  EXPECT_EQ(printer->placeholderText(), u"Office_MFP"_s);
  EXPECT_EQ(text(u"printerState"_s), u""_s);
}

TEST_F(DialogPrint, TheSummaryTellsWhatOthersSee) {
  for (const auto& [edits, part] : Cases{
           {"", "and no more of it."}, {"/JobPrivate/d", "These lines in its policy demo hide it:\n\nJob"}}) {
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

TEST_F(DialogPrint, PresetsComeBackAndGo) {
  startPrinter();
  openReady();
  QMenu* menu = widgetNamed<QToolButton>(*m_dialog, u"Presets"_s)->menu();
  const auto entryOf = [](const QMenu* menu, const QString& part) {
    const QList<QAction*> entries = menu->actions();
    const auto found = std::ranges::find_if(entries, [&](auto* each) { return each->text().contains(part); });
    return found == entries.end() ? nullptr : *found;
  };
  const auto entry = [&](const QString& part) {
    QMetaObject::invokeMethod(menu, "aboutToShow");
    return entryOf(menu, part);
  };
  const auto save = [&] {
    whenModal([](QWidget& window) {
      QTest::keyClicks(window.findChild<QLineEdit*>(), u"Held & fast"_s);
      pressEnter(window);
    });
    entry(u"Save"_s)->trigger();
  };
  click(u"retentionCheckBox"_s);
  click(u"holdAfterRadioButton"_s);
  save();
  click(u"retentionCheckBox"_s);
  entry(u"Held && fast"_s)->trigger();
  EXPECT_TRUE(widget<QAbstractButton>(u"retentionCheckBox"_s)->isChecked());
  EXPECT_TRUE(widget<QAbstractButton>(u"holdAfterRadioButton"_s)->isChecked());
  entryOf(entry(u"Delete"_s)->menu(), u"Held"_s)->trigger();
  EXPECT_EQ(entry(u"Held"_s), nullptr);
  EXPECT_FALSE(entry(u"Delete"_s)->isEnabled());
  // Another dialog may delete it while the menu is open.
  for (const bool deletes : {false, true}) {
    save();
    QAction* stale = deletes ? entryOf(entry(u"Delete"_s)->menu(), u"Held"_s) : entry(u"Held"_s);
    EXPECT_TRUE(QFile::remove(m_folder.path(u"config/kesto/kesto.presets.Office_MFP.json"_s)));
    const QString alert = alertOn([&] { stale->trigger(); });
    EXPECT_TRUE(alert.contains(u"there is no preset \"Held & fast\""_s)) << alert;
  }
}

// The program itself.
struct ProgramRun {
  const char* what = "";
  QStringList arguments;
  int code = 0;
  const char* output = "";
  const char* error = "";
};

TEST_F(DialogPrint, TheProgramEndsAsItsManualSays) {
  startPrinter();
  const QString server = m_printer->place(u"server"_s);
  const QString picture = m_folder.path(u"picture.png"_s);
  const ProgramRun runs[] = {
      {"timings", {u"-h"_s, server, u"--timings"_s}, 0, "queues=1", ""},
      {"a picture", {u"-h"_s, server, u"--screenshot"_s, picture, m_folder.path(u"report.pdf"_s)}, 0, "", ""},
      {"help", {u"--help"_s}, 0, "usage: kesto-print", ""},
      {"no such option", {u"--nonsense"_s}, 2, "", "--nonsense"},
      {"an option that a terminal would obey", {u"--\u001b[2J"_s}, 2, "", "--\\x1b[2J"},
      {"no time at all", {u"--timeout"_s, u"0"_s}, 2, "", "--timeout"},
      {"no number of seconds", {u"--timeout"_s, u"nan"_s}, 2, "", "--timeout"},
      {"a number as C has it", {u"-n"_s, u"0x10"_s}, 2, "", "-n"},
      {"no open descriptor", {u"--portal"_s, u"77"_s}, 2, "", "is no open descriptor"},
      {"no such file",
       {u"-h"_s, server, u"--screenshot"_s, picture, u"/no/such.pdf"_s},
       0,
       "",
       "/no/such.pdf cannot be read"},
      {"no such queue", {u"-h"_s, server, u"-d"_s, u"None"_s, u"--timings"_s}, 1, "", "no queue"},
  };
  for (const ProgramRun& run : runs) {
    SCOPED_TRACE(run.what);
    DemoProcess program(m_folder, builtProgram("kesto-print"), run.arguments);
    program.closeWriteChannel();
    EXPECT_EQ(program.code(), run.code);
    EXPECT_TRUE(program.readAllStandardOutput().contains(run.output));
    EXPECT_TRUE(program.readAllStandardError().contains(run.error));
  }
  EXPECT_FALSE(QImage(picture).isNull());
}

TEST(DialogOptions, AreReadAsTheManualSays) {
  std::vector<std::string> words{"kesto-print", "-o",        "sides=one-sided number-up=2",
                                 "a.pdf",       "--timeout", "0.5",
                                 "b.ps",        "-o",        "number-up=4"};
  std::vector<char*> arguments;
  arguments.reserve(words.size());
  for (std::string& word : words)
    arguments.push_back(word.data());
  PrintOptions options;
  ASSERT_EQ(parsePrintOptions(static_cast<int>(arguments.size()), arguments.data(), &options), std::nullopt);
  EXPECT_EQ(options.files, (QByteArrayList{"a.pdf", "b.ps"}));
  EXPECT_EQ(options.jobOptions,
            (QMap<QString, QString>{{u"sides"_s, u"one-sided"_s}, {u"number-up"_s, u"4"_s}}));
  EXPECT_EQ(options.server.limit, std::chrono::milliseconds(500));
}

}  // namespace
}  // namespace kesto::test
