// What becomes of a job in the dialog: its entries, its document, and the folders of its printer.
#include <sys/stat.h>

#include <QtGui/QAccessible>
#include <QtNetwork/QTcpServer>
#include <QtWidgets/QPushButton>

#include "hosts/dialog/widgets/password_dialog.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "tests/support/dialog_printer.h"

namespace kesto::test {
namespace {

// What was read out last in the dialog, without the focus on it. Call it once before, to listen.
QString heardIn([[maybe_unused]] const PrintDialog& dialog) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  static QString announced;
  QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
    if (event->type() == QAccessible::Announcement)
      announced = static_cast<QAccessibleAnnouncementEvent*>(event)->message();
  });
  return announced;
#else
  return dialog.focusWidget()->accessibleDescription();
#endif
}

TEST_F(DialogPrint, AWholeJobIsDoneThroughAssistiveTechnologyAlone) {
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
  const auto insert = [&](const QString& name, const QString& text) {
    accessible(name)->editableTextInterface()->insertText(0, text);
  };
  act(u"summaryHeader"_s, QAccessibleActionInterface::pressAction());
  act(u"retentionCheckBox"_s, toggle);
  act(u"holdAfterRadioButton"_s, toggle);
  insert(u"suspendKeyEditText"_s, u"x"_s);
  EXPECT_EQ(accessible(u"suspendKeyEditText"_s)->text(QAccessible::Value), u""_s) << "it takes digits";
  insert(u"suspendKeyEditText"_s, u"2468"_s);
  EXPECT_EQ(accessible(u"suspendKeyEditText"_s)->text(QAccessible::Value), u"****"_s);
  act(u"customFolderRadioButton"_s, toggle);
  insert(u"folderNameEditText"_s, u"Plans"_s);
  EXPECT_TRUE(widget(u"filingNote"_s)->isVisible());
  QCoreApplication::processEvents();
  QStringList summary;
  for (const auto* label : widget(u"summary"_s)->findChildren<QLabel*>())
    summary += label->accessibleName();
  EXPECT_TRUE(summary.contains(u"Hold mode"_s) && !summary.contains(u"Folder"_s)) << "nothing is filed";
  act(u"userNumberRadioButton"_s, toggle);
  insert(u"userNumberEditText"_s, u"42"_s);
  act(u"userNumberButton"_s, toggle);
  accessible(u"jobNameEditText"_s)->setText(QAccessible::Value, u"Plan"_s);
  accessible(u"copies"_s)->valueInterface()->setCurrentValue(2);
  EXPECT_EQ(m_dialog->jobOptions().value(u"copies"_s), u"2"_s);
  act(u"print"_s, QAccessibleActionInterface::pressAction());
  awaitJob(1);
  awaitMessage(u"Job 1: Printed, and kept at Office_MFP for printing again."_s);
  forEachValue(u"jobSuspend=1 userNumber=00042 jobName=506C616E holdButton=64"_s,
               [this](const QString& name, const QString& value) {
                 EXPECT_EQ(m_dialog->jobSettings().value(u"kesto.print.PrintSettings."_s + name), value);
               });
  EXPECT_EQ(m_printer->release(u"1"_s), 3) << "without its pass code";
  EXPECT_EQ(m_printer->release(u"1 --pin-file %1/pin"_s), 0);
  EXPECT_TRUE(printout(1).contains(pdfDocument()));
  openReady();
  EXPECT_TRUE(widget<QToolButton>(u"userNumberButton"_s)->isChecked());
  EXPECT_EQ(widget<QLineEdit>(u"userNumberEditText"_s)->text(), u"42"_s);
  EXPECT_EQ(widget<QLineEdit>(u"suspendKeyEditText"_s)->text(), u""_s);
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
  openReady();
  use("userNumberRadioButton userNumberEditText=42");
  QWidget* pages = nullptr;
  EXPECT_TRUE(DialogUser(*m_dialog).turnTo(u"pages"_s, &pages));
  click(u"somePages"_s);
  await([&] { return pages->hasFocus(); }, u"the field of the pages"_s);
  QTest::keyClicks(pages, u"3-1"_s);
  click(u"print"_s);
  EXPECT_TRUE(text(u"message"_s).contains(u"1-3, 5"_s)) << text(u"message"_s);
  EXPECT_EQ(m_dialog->focusWidget()->objectName(), u"pages"_s);
  type(u"pages"_s, u"2"_s);
  m_printer.reset();
  heardIn(*m_dialog);
  click(u"print"_s);
  await([this] { return heardIn(*m_dialog).startsWith(u"The job was not printed. "_s); }, u"the reason"_s);
  EXPECT_EQ(heardIn(*m_dialog), text(u"message"_s));
  EXPECT_TRUE(m_dialog->isVisible());
  EXPECT_TRUE(widget(u"print"_s)->isEnabled());
  EXPECT_EQ(widget<QLineEdit>(u"userNumberEditText"_s)->text(), u"42"_s);
}

TEST_F(DialogPrint, AProtectedDocumentIsPrintedWithItsPasswordOnly) {
  startPrinter();
  open({QLatin1String(KESTO_TEST_DATA "/protected.pdf")});
  const auto enter = [this](const QStringList& passwords) {
    auto* asking = m_dialog->findChild<PasswordDialog*>();
    for (const QString& password : passwords) {
      auto* field = asking->findChild<QLineEdit*>(u"documentPassword"_s);
      await([&] { return field->isEnabled(); }, u"the question"_s);
      field->setText(password);
      pressEnter(*field);
    }
  };
  const auto isAsked = [this] { return m_dialog->findChild<PasswordDialog*>() != nullptr; };
  await([&] { return isAsked() && m_dialog->isQueueReady(); }, u"the queue and the question"_s);
  enter({u"wrong"_s, u"Secret"_s, u"grün"_s});
  await([&] { return !isAsked(); }, u"the end of the tries"_s);
  click(u"print"_s);
  EXPECT_TRUE(text(u"message"_s).contains(u"is protected by a password"_s));
  enter({u"secre"_s, u"secret"_s});
  await([&] { return !isAsked() && m_dialog->preview().pageCount() == 1; }, u"the pages"_s);
  EXPECT_EQ(m_printer->jobs(), "[]");
}

TEST_F(DialogPrint, PagesAreSavedAsPdf) {
  const QString target = m_folder.path(u"saved.pdf"_s);
  m_folder.write(u"saved.pdf"_s, "before");
  openReady({QLatin1String(KESTO_TEST_DATA "/../../resources/lock.png")});
  auto* printer = widget<QComboBox>(u"printer"_s);
  printer->setCurrentIndex(printer->count() - 1);
  await([this] { return m_dialog->isQueueReady(); }, u"the file in place of a printer"_s);
  EXPECT_EQ(m_dialog->windowTitle(), u"Save as PDF"_s);
  EXPECT_EQ(text(u"printerState"_s), u"Only PDF documents can be saved as PDF."_s);
  EXPECT_FALSE(widget(u"print"_s)->isEnabled());
  m_document.openFiles({KESTO_TEST_DATA "/../../demo/quarterly-report.pdf"});
  await([this] { return widget(u"print"_s)->isEnabled(); }, u"the PDF document"_s);
  EXPECT_FALSE(widget(u"copies"_s)->isEnabled());
  EXPECT_TRUE(widget(u"pages"_s)->isEnabled());
  m_dialog->jobOptions().choose(u"page-ranges"_s, u"2-"_s);
  m_dialog->jobOptions().choose(u"outputorder"_s, u"reverse"_s);
  await([this] { return m_dialog->preview().isSettled(); }, u"the preview"_s);
  const auto save = [&](bool overwrites) {
    whenModal([&, overwrites](QWidget& files) {
      files.findChild<QLineEdit*>()->setText(target);
      whenModal([&files, overwrites](QWidget& question) {
        const auto answer = overwrites ? QMessageBox::Yes : QMessageBox::No;
        qobject_cast<QMessageBox*>(&question)->button(answer)->click();
        if (!overwrites) qobject_cast<QDialog*>(&files)->reject();
      });
      pressEnter(*files.findChild<QLineEdit*>());
    });
    click(u"print"_s);
  };
  save(false);
  EXPECT_EQ(bytesOf(target), "before");
  save(true);
  await([&] { return text(u"message"_s) == u"Saved as "_s + target + u'.'; }, u"the file"_s);
  Preview saved(nullptr);
  saved.QWidget::show();
  saved.show({{QFile::encodeName(target)}});
  await([&] { return saved.isExamined(); }, u"the look at it"_s);
  EXPECT_EQ(saved.pageCount(), 2);
  EXPECT_EQ(m_printer->jobs(), "[]");
}

TEST_F(DialogPrint, CancelStopsAJobThatIsGoingOut) {
  openReady();
  click(u"retentionCheckBox"_s);
  signalScheduler(SIGSTOP);
  click(u"print"_s);
  auto* code = widget<QLineEdit>(u"suspendKeyEditText"_s);
  QAccessible::queryAccessibleInterface(code)->setText(QAccessible::Value, u"2468"_s);
  EXPECT_EQ(code->text(), u""_s) << "the job has its entries already";
  for (const auto* label : m_dialog->findChildren<QLabel*>())
    EXPECT_TRUE(label->buddy() == nullptr || label->isHidden() || !label->isEnabled()) << label->text();
  QTest::keyClick(&*m_dialog, Qt::Key_Escape);
  EXPECT_EQ(text(u"message"_s), u"Canceling the job…"_s);
  EXPECT_TRUE(m_dialog->isVisible());
  signalScheduler(SIGCONT);
  await([this] { return text(u"message"_s) == u"The job was not printed. The job was stopped."_s; },
        u"the end"_s);
  EXPECT_TRUE(widget(u"print"_s)->isEnabled());
  EXPECT_EQ(m_printer->jobs(), "[]");
}

TEST_F(DialogPrint, AJobIsFollowedToItsEnd) {
  startPrinter({u"--jam"_s});
  m_options.server.limit = std::chrono::seconds(1);
  openReady();
  const auto press = [this](const QString& label) {
    EXPECT_EQ(plainText(*widget(u"messageButton"_s)), label);
    click(u"messageButton"_s);
  };
  click(u"print"_s);
  awaitMessage(u"Job 1: Stopped: Paper jam (Remove the paper from tray 1)."_s);
  EXPECT_FALSE(widget(u"copies"_s)->isEnabled());
  press(u"Cancel job"_s);
  awaitMessage(u"Job 1: Canceled by %1."_s.arg(QString::fromUtf8(cupsUser())));
  m_printer->setFault(u"none"_s);
  press(u"Print again"_s);
  awaitMessage(u"Job 2: Printed."_s);
  await([this] { return !m_dialog->isVisible(); }, u"the end of the dialog"_s);
  EXPECT_EQ(m_dialog->result(), QDialog::Accepted);

  m_printer->setFault(u"paused"_s);
  openReady();
  click(u"print"_s);
  awaitMessage(u"Job 3: Stopped: the printer is paused (Paused for maintenance)."_s);
  m_printer.reset();
  await(
      [this] {
        return text(u"message"_s).startsWith(u"Job 3: It is not known whether the job is printed"_s);
      },
      u"the loss of the server"_s);
}

TEST_F(DialogPrint, ADocumentIsChosenInTheDialog) {
  openReady({});
  auto* button = widgetNamed<QPushButton>(*m_dialog, u"Choose a document"_s);
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

TEST_F(DialogPrint, AMissingDocumentIsNamedAndTheOthersArePrinted) {
  startPrinter();
  m_folder.write(u"second"_s, "another");
  openReady({m_folder.path(u"report.pdf"_s), m_folder.path(u"none.pdf"_s), m_folder.path(u"second"_s)});
  EXPECT_EQ(text(u"documentName"_s),
            u"report.pdf and 1 more\n%1 cannot be read: No such file or directory"_s.arg(
                m_folder.path(u"none.pdf"_s)));
  click(u"print"_s);
  awaitJob(1);
  m_printer->waitForLog("job 1 from ");
  EXPECT_EQ(printout(1, 2), "another");
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
  awaitJob(1);
  EXPECT_EQ(printout(1), pdfDocument());
}

TEST_F(DialogPrint, TheEndOfAFolderFetchIsReported) {
  openReady();
  auto* address = widget<QLineEdit>(u"printersAddressEditText"_s);
  for (const auto& [given, reason] : Cases{{"", "Enter the printer's address"},
                                           {"no host", "\"no host\" is not an address."},
                                           {"a\u202Eb/", "is not an address."}}) {
    type(u"printersAddressEditText"_s, u"x"_s);
    address->setText(given);
    click(u"getFolderNameButton"_s);
    EXPECT_TRUE(text(u"message"_s).contains(reason)) << text(u"message"_s);
    EXPECT_FALSE(text(u"message"_s).contains(QChar(0x202E)));
    EXPECT_EQ(m_dialog->focusWidget(), address);
  }
  address->setText(u"127.0.0.1:1"_s);  // nobody listens there
  EXPECT_EQ(alertOn([this] { click(u"getFolderNameButton"_s); }), u"Could not retrieve Folder Names."_s);
  EXPECT_EQ(text(u"message"_s), u"No folder list from 127.0.0.1:1: connection refused."_s);
  EXPECT_EQ(m_dialog->focusWidget(), widget(u"getFolderNameButton"_s));
  EXPECT_TRUE(widget<QPushButton>(u"print"_s)->isDefault());
  EXPECT_TRUE(m_dialog->isVisible());
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

}  // namespace
}  // namespace kesto::test
