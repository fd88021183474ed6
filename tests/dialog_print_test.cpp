// The dialog on the demo printer's scheduler, and on servers that are none.
#include <QtNetwork/QTcpServer>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

#include "demo_process.h"
#include "hosts/dialog/preview.h"
#include "hosts/dialog/print_dialog.h"
#include "hosts/dialog/queue_list_model.h"
#include "hosts/dialog/user/dialog_user.h"

namespace kesto::test {
namespace {

// Answers the next modal window as a user would.
void whenModal(const std::function<void(QWidget&)>& act) {
  QTimer::singleShot(20, qApp, [act] {
    QWidget* modal = QApplication::activeModalWidget();
    modal == nullptr ? whenModal(act) : act(*modal);
  });
}

void pressEnter(QWidget& window) {
  QTest::keyClick(&window, Qt::Key_Return);
}

class DialogPrint : public testing::Test {
 protected:
  DialogPrint() {
    qputenv("XDG_CONFIG_HOME", m_folder.path(u"config"_s).toUtf8());
    qputenv("TMPDIR", m_folder.path(u""_s).toUtf8());
    m_folder.write(u"report.pdf"_s, pdfDocument());
    m_folder.write(u"pin"_s, "2468\n");
    m_options.server.limit = std::chrono::seconds(20);
  }

  void startPrinter(const QStringList& arguments = {}) {
    m_printer.emplace(m_folder, arguments);
    m_options.server.address = m_printer->place(u"server"_s);
  }
  PrintDialog& open() {
    m_document.openFiles({m_folder.path(u"report.pdf"_s)});
    m_dialog.emplace(m_options, m_document);
    m_dialog->show();
    return *m_dialog;
  }
  void openReady() {
    open();
    await([this] { return m_dialog->isQueueReady() && m_dialog->queues().rowCount() > 0; }, u"the queue"_s);
  }
  static void await(const std::function<bool()>& isSo, const QString& what) {
    const Outcome waited = DialogUser::waitUntil(isSo, what);
    ASSERT_TRUE(waited) << waited.reason();
  }
  void click(const QString& name) {
    const Outcome clicked = DialogUser(*m_dialog).click(name);
    ASSERT_TRUE(clicked) << clicked.reason();
  }
  void type(const QString& name, const QString& text) {
    const Outcome typed = DialogUser(*m_dialog).replace(name, text);
    ASSERT_TRUE(typed) << typed.reason();
  }
  template <class T = QWidget>
  T* widget(const QString& name) const {
    T* found = m_dialog->findChild<T*>(name);
    EXPECT_NE(found, nullptr) << name;
    return found;
  }
  QString text(const QString& label) const { return widget<QLabel>(label)->text(); }

  ScratchFolder m_folder;
  std::optional<RunningPrinter> m_printer;
  PrintOptions m_options;
  Document m_document;
  std::optional<PrintDialog> m_dialog;
};

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

TEST_F(DialogPrint, ARefusedJobLeadsToTheMissingEntry) {
  startPrinter();
  const QString ppd = m_folder.path(u"run/cups/ppd/Office_MFP.ppd"_s);
  const QByteArray description =
      bytesOf(ppd).replace(R"(*ARKestoPrintSystem: "False")", R"(*ARKestoPrintSystem: "True")");
  QFile file(ppd);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(description) > 0);
  file.close();
  openReady();
  click(u"userNumberRadioButton"_s);
  QString alert;
  whenModal([&](QWidget& window) {
    alert = qobject_cast<QMessageBox*>(&window)->text();
    pressEnter(window);
  });
  click(u"print"_s);
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
  type(u"pages"_s, u"3-1"_s);
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

TEST_F(DialogPrint, ASilentServerIsToldAndAskedAgain) {
  QTcpServer silent;
  ASSERT_TRUE(silent.listen(QHostAddress::LocalHost));
  m_options.server.address = u"127.0.0.1:%1"_s.arg(silent.serverPort());
  m_options.server.limit = std::chrono::milliseconds(300);
  open();
  await([this] { return widget(u"retry"_s)->isVisible(); }, u"the fault"_s);
  EXPECT_TRUE(text(u"printerState"_s).contains(u"does not answer"_s)) << text(u"printerState"_s);
  EXPECT_FALSE(widget(u"print"_s)->isEnabled());
  type(u"copies"_s, u"3"_s);
  startPrinter();
  m_options.server.address = u"127.0.0.1:%1"_s.arg(silent.serverPort());
  click(u"retry"_s);
  EXPECT_FALSE(widget(u"retry"_s)->isVisible());
  await([this] { return widget(u"retry"_s)->isVisible(); }, u"the fault again"_s);
  QTest::keyClick(&*m_dialog, Qt::Key_Escape);
  EXPECT_FALSE(m_dialog->isVisible());
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
  printer->lineEdit()->setText(u"no such queue"_s);
  QTest::keyClick(printer->lineEdit(), Qt::Key_Return);
  EXPECT_EQ(m_dialog->queueName(), u"Office_MFP_0777"_s);
  EXPECT_TRUE(printer->currentText().startsWith(u"Office_MFP_0777"_s));
  EXPECT_EQ(m_dialog->job(), 0) << "Enter takes the name, it does not print";
}

TEST_F(DialogPrint, TabGoesThroughTheDialogAsItIsRead) {
  startPrinter();
  openReady();
  click(u"retentionCheckBox"_s);
  widget(u"printer"_s)->setFocus();
  QStringList order;
  for (int i = 0; i < 60 && !order.contains(u"print"_s); ++i) {
    QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Tab);
    order.append(m_dialog->focusWidget()->objectName());
  }
  const QStringList expected{u"retentionCheckBox"_s,
                             u"holdOnlyRadioButton"_s,
                             u"suspendKeyEditText"_s,
                             u"suspendKeyButton"_s,
                             u"printersAddressEditText"_s,
                             u"getFolderNameButton"_s,
                             u"print"_s};
  order.removeIf([&](const QString& name) { return !expected.contains(name); });
  EXPECT_EQ(order, expected);
}

TEST_F(DialogPrint, AFailedFolderFetchIsAnAlert) {
  startPrinter();
  openReady();
  QTcpServer gone;
  ASSERT_TRUE(gone.listen(QHostAddress::LocalHost));
  type(u"printersAddressEditText"_s, u"127.0.0.1:%1"_s.arg(gone.serverPort()));
  gone.close();
  QString alert;
  whenModal([&](QWidget& window) {
    alert = qobject_cast<QMessageBox*>(&window)->text();
    pressEnter(window);
  });
  click(u"getFolderNameButton"_s);
  EXPECT_EQ(alert, u"Could not retrieve Folder Names."_s);
  EXPECT_EQ(m_dialog->focusWidget(), widget(u"getFolderNameButton"_s));
  EXPECT_TRUE(widget<QPushButton>(u"print"_s)->isDefault());
  EXPECT_TRUE(m_dialog->isVisible());
}

TEST_F(DialogPrint, WhatHappensToAQueueIsFollowed) {
  startPrinter();
  openReady();
  bool hasChanged = false;
  QObject::connect(&m_dialog->queues(), &QAbstractItemModel::dataChanged, qApp, [&] { hasChanged = true; });
  DemoProcess job(m_folder, builtProgram("kesto-lp"),
                  {u"-h"_s, m_printer->place(u"server"_s), m_folder.path(u"report.pdf"_s)});
  EXPECT_EQ(job.code(), 0) << job.log();
  await([&] { return hasChanged; }, u"news of the queue"_s);
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

TEST_F(DialogPrint, TheSummaryTellsWhatOthersSee) {
  startPrinter();
  openReady();
  click(u"privacy"_s);
  await([this] { return widget(u"privacyText"_s)->isVisible(); }, u"what others see"_s);
  EXPECT_TRUE(text(u"privacyText"_s).contains(u"no more"_s)) << text(u"privacyText"_s);
}

TEST_F(DialogPrint, APresetComesBack) {
  startPrinter();
  openReady();
  auto* presets = m_dialog->findChild<QToolButton*>(QString(), Qt::FindChildrenRecursively);
  for (auto* each : m_dialog->findChildren<QToolButton*>()) {
    if (each->menu() != nullptr) presets = each;
  }
  const auto trigger = [&](const QString& part) {
    QMetaObject::invokeMethod(presets->menu(), "aboutToShow");
    for (QAction* action : presets->menu()->actions()) {
      if (action->text().contains(part)) return action->trigger();
    }
    FAIL() << "no entry " << part;
  };
  click(u"retentionCheckBox"_s);
  click(u"holdAfterRadioButton"_s);
  whenModal([](QWidget& window) {
    QTest::keyClicks(window.findChild<QLineEdit*>(), u"Held & fast"_s);
    pressEnter(window);
  });
  trigger(u"Save"_s);
  click(u"retentionCheckBox"_s);
  trigger(u"Held"_s);
  EXPECT_TRUE(widget<QAbstractButton>(u"retentionCheckBox"_s)->isChecked());
  EXPECT_TRUE(widget<QAbstractButton>(u"holdAfterRadioButton"_s)->isChecked());
}

// The program itself.
struct ProgramRun {
  const char* what;
  QStringList arguments;
  QByteArray input;
  int code;
  const char* output;
  const char* error;
};

TEST_F(DialogPrint, TheProgramEndsAsItsManualSays) {
  startPrinter();
  const QString server = m_printer->place(u"server"_s);
  const QString picture = m_folder.path(u"picture.png"_s);
  const ProgramRun runs[] = {
      {"timings", {u"-h"_s, server, u"--timings"_s}, {}, 0, "queues=1", ""},
      {"a picture",
       {u"-h"_s, server, u"--screenshot"_s, picture, m_folder.path(u"report.pdf"_s)},
       {},
       0,
       "",
       ""},
      {"no such option", {u"--nonsense"_s}, {}, 2, "", "--nonsense"},
      {"no such file", {u"-h"_s, server, u"/no/such.pdf"_s}, {}, 1, "", "/no/such.pdf"},
      {"no such queue", {u"-h"_s, server, u"-d"_s, u"None"_s, u"--timings"_s}, {}, 1, "", "no queue"},
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

TEST_F(DialogPrint, StandardInputIsADocument) {
  QFile pipe;
  int ends[2] = {};
  ASSERT_EQ(::pipe(ends), 0);
  m_document.readDescriptor(ends[0], u"(stdin)"_s);
  ASSERT_TRUE(pipe.open(ends[1], QIODevice::WriteOnly, QFile::AutoCloseHandle));
  EXPECT_EQ(m_document.state(), Document::State::Reading);
  pipe.write(bytesOf(m_folder.path(u"report.pdf"_s)).first(50'000));
  pipe.close();
  await([this] { return m_document.state() == Document::State::Ready; }, u"the document"_s);
  EXPECT_EQ(bytesOf(m_document.files().first()), pdfDocument().first(50'000));
  EXPECT_EQ(QFile::permissions(m_document.files().first()) & (QFile::ReadGroup | QFile::ReadOther),
            QFile::Permissions());
}

}  // namespace
}  // namespace kesto::test
