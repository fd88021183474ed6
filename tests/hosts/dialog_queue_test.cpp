// The dialog and its print server: which printer is chosen, and what is said of it.
#include <QtGui/QAccessible>
#include <QtNetwork/QTcpServer>
#include <QtWidgets/QProgressBar>

#include "hosts/dialog/widgets/queue_chooser.h"
#include "tests/support/dialog_printer.h"
#include "tests/support/hostile_server.h"

namespace kesto::test {
namespace {

TEST_F(DialogPrint, ASilentServerIsReportedAndAskedAgain) {
  QTcpServer silent;
  ASSERT_TRUE(silent.listen(QHostAddress::LocalHost));
  m_options.server.address = u"127.0.0.1:%1"_s.arg(silent.serverPort());
  m_options.server.limit = std::chrono::milliseconds(300);
  open();
  await([this] { return widget(u"retry"_s)->isVisible(); }, u"the fault"_s);
  EXPECT_TRUE(text(u"printerState"_s).contains(u"did not answer"_s)) << text(u"printerState"_s);
  EXPECT_FALSE(widget(u"print"_s)->isEnabled());
  EXPECT_EQ(widget(u"print"_s)->toolTip(), u""_s) << "the document is there";
  EXPECT_EQ(widget<QComboBox>(u"printer"_s)->placeholderText(), u"No printer"_s);
  use("copies=3 retry");
  EXPECT_FALSE(widget(u"retry"_s)->isVisible());
  await([this] { return widget(u"retry"_s)->isVisible(); }, u"the fault again"_s);
  QTest::keyClick(&*m_dialog, Qt::Key_Escape);
  EXPECT_FALSE(m_dialog->isVisible());
}

// With a limit of an hour: only what is interrupted ends.
TEST_F(DialogPrint, TheDialogClosesWhileItWaitsForItsServer) {
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

TEST_F(DialogPrint, APasswordIsAskedWithoutBlockingTheWindow) {
  const HostileServer server("berta:open sesame");
  m_options.server.address = server.address();
  m_options.queue = u"q"_s;
  open();
  const auto asked = [&](QWidget*& dialog) {
    await([&] { return (dialog = QApplication::activeModalWidget()) != nullptr; }, u"the question"_s);
  };
  QWidget* dialog = nullptr;
  asked(dialog);
  QTest::keyClick(dialog, Qt::Key_Escape);
  await([this] { return widget(u"retry"_s)->isVisible(); }, u"the fault"_s);
  EXPECT_EQ(text(u"printerState"_s), u"The print server %1 asks for a password."_s.arg(server.address()));
  click(u"retry"_s);
  for (const char* password : {"0815", "open sesame"}) {
    asked(dialog);
    const bool isAgain = dialog->findChild<QLabel*>(u"credentialsMessage"_s)->isVisible();
    EXPECT_EQ(isAgain, QByteArray(password) != "0815");
    dialog->findChild<QLineEdit*>(u"credentialsUser"_s)->setText(u"berta"_s);
    QTest::keyClicks(dialog->findChild<QLineEdit*>(u"credentialsPassword"_s), QLatin1String(password));
    pressEnter(*dialog);
    await([&] { return QApplication::activeModalWidget() != dialog; }, u"the answer"_s);
  }
  await([this] { return m_dialog->isQueueReady() && m_dialog->preview().isExamined(); }, u"the queue"_s);
  click(u"print"_s);
  await([this] { return m_dialog->job() == 1; }, u"the job"_s);
}

TEST_F(DialogPrint, WhatThePrinterFieldShowsIsWhatIsPrintedOn) {
  startPrinter({u"--queues"_s, u"14"_s});
  openReady();
  click(u"retentionCheckBox"_s);
  auto* printer = widget<QComboBox>(u"printer"_s);
  ASSERT_TRUE(printer->isEditable());
  auto* chooser = m_dialog->findChild<QueueChooser*>();
  const auto press = [](QKeyCombination key) {
    QWidget* popup = QApplication::activePopupWidget();
    QTest::keyClick(popup != nullptr ? popup : QApplication::focusWidget(), key.key(),
                    key.keyboardModifiers());
  };
  QueueSummary late;
  late.name = u"Attic_Laser"_s;
  // A text that is typed and a way to go on; the queue that it leads to (null: still the one before), and
  // what is said when the field shows another text than the queue's.
  struct Way {
    Text typed;
    std::vector<QKeyCombination> keys;
    Text queue = nullptr;
    Text said = nullptr;
    std::function<void()> act = [] {};
  };
  const QKeyCombination letterOfPrint = Qt::AltModifier | Qt::Key_P;  // which is dimmed
  const char none[] = "There is no printer named \"Upstairs\".";
  const char enter5[] = "Press Enter to choose Office_MFP_0005.";
  const Way ways[] = {
      {"Office_MFP_0005", {}, nullptr, enter5},
      {"mfp_0004", {letterOfPrint}, "Office_MFP_0004"},
      {"Upstairs", {letterOfPrint}, nullptr, none},
      {"mfp_0005", {}, nullptr, enter5, [&] { QTest::mouseClick(widget(u"print"_s), Qt::LeftButton); }},
      {"Upstairs", {Qt::Key_Return}, nullptr, none},
      {"mfp", {Qt::Key_Return}, nullptr, "Several printers match. Choose one of them."},
      {"", {}, nullptr, "Enter the name of a printer.", [&] { printer->lineEdit()->clear(); }},
      {"Upstairs", {Qt::Key_Escape}},
      {"0005", {Qt::Key_Down, Qt::Key_Escape}},
      {"mfp_0005", {Qt::Key_Return}, "Office_MFP_0005"},
      {"0006", {Qt::Key_Tab}, "Office_MFP_0006"},
      {"0007", {Qt::Key_Down, Qt::Key_Return}, "Office_MFP_0007"},
      {"", {}, "Office_MFP_0008", nullptr, [&] { printer->lineEdit()->setText(u"Office_MFP_0008"_s); }},
      {"", {}, "Office_MFP_0003", nullptr, [&] { printer->setCurrentIndex(2); }},
      {"Attic", {}, nullptr, "Press Enter to choose Attic_Laser.", [&] { chooser->setQueue(late); }},
      {"Upstairs", {}, nullptr, none, [&] { chooser->removeQueue(late.name); }},
      {"0005", {}, nullptr, enter5, [&] { chooser->removeQueue(u"Office_MFP_0003"_s); }},
  };
  QString queue = m_dialog->queueName();
  for (const Way& way : ways) {
    SCOPED_TRACE(way.typed.toStdString() + '/' + std::to_string(&way - ways));
    if (QWidget* popup = QApplication::activePopupWidget()) popup->hide();
    m_dialog->activateWindow();
    await([this] { return m_dialog->isActiveWindow(); }, u"the window"_s);
    printer->setFocus();
    printer->lineEdit()->selectAll();
    if (!way.typed.isEmpty()) QTest::keyClicks(QApplication::focusWidget(), way.typed);
    for (const QKeyCombination& key : way.keys)
      press(key);
    way.act();
    if (!way.queue.isNull()) queue = way.queue;
    EXPECT_EQ(m_dialog->queueName(), queue);
    EXPECT_TRUE(m_dialog->isVisible());
    await([this] { return m_dialog->isQueueReady(); }, u"the queue"_s);
    EXPECT_EQ(widget(u"print"_s)->isEnabled(), way.said.isNull());
    EXPECT_EQ(printer->currentText().section(u' ', 0, 0) == queue, way.said.isNull())
        << printer->currentText();
    EXPECT_EQ(text(u"printerState"_s), way.said.isNull() ? Text("Ready") : way.said);
    EXPECT_EQ(m_dialog->job(), 0);
  }
  EXPECT_FALSE(widget<QAbstractButton>(u"retentionCheckBox"_s)->isChecked()) << "its panel is another";
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

TEST_F(DialogPrint, WhatThePrinterReportsIsSaidByItsSeverity) {
  using Kind = StateIcon::Kind;
  using Case = std::tuple<QStringList, Text, Kind>;  // reasons, the line, the icon
  for (const auto& [reasons, line, kind] :
       {Case{{u"none"_s}, "Ready · Attic · 2 jobs waiting", Kind::Ready},
        Case{{u"toner-low-report"_s}, "Ready · Toner low · Attic · 2 jobs waiting", Kind::Ready},
        Case{{u"toner-low"_s, u"media-jam"_s},
             "Paper jam · Toner low · Attic · 2 jobs waiting",
             Kind::Stopped},
        Case{{u"com.lamp-old-warning"_s, u"paused"_s, u"door-open-report"_s},
             "Ready · Lamp old · Paused · Door open · Attic · 2 jobs waiting",
             Kind::Attention}}) {
    QueueSummary queue;
    queue.state = u"idle"_s;
    queue.location = u"Attic"_s;
    queue.jobs = 2;
    queue.stateReasons = reasons;
    EXPECT_EQ(QueueListModel::stateText(queue), line);
    EXPECT_EQ(QueueListModel::stateKind(queue), kind) << line;
  }
  openReady();
  QueueSummary queue = *m_dialog->queues().queue(u"Office_MFP"_s);
  queue.supplies = {{.name = u"Black"_s, .color = u"#000000"_s, .level = 40},
                    {.name = u"Waste"_s, .color = {}}};
  auto* chooser = m_dialog->findChild<QueueChooser*>();
  chooser->showDetails(queue);
  click(u"printerDetailsButton"_s);
  auto* bar = widgetNamed<QProgressBar>(*m_dialog, u"Black"_s);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(bar)->valueInterface()->currentValue(), 40);
  queue.supplies.front().level = 39;
  chooser->showDetails(queue);
  EXPECT_EQ(widgetNamed<QProgressBar>(*m_dialog, u"Black"_s)->value(), 39);
  EXPECT_EQ(widgetNamed<QLabel>(*m_dialog, u"Model:"_s)->text(), u"KESTO VQ-250n PS"_s);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  await([] { return QApplication::activePopupWidget() == nullptr; }, u"the end of the details"_s);
}

TEST_F(DialogPrint, PrintersOnTheNetworkStandBelowTheQueuesWhileTheyHaveNone) {
  const auto named = [](const QString& name, bool isOnNetwork) {
    QueueSummary queue;
    queue.name = name;
    queue.location = isOnNetwork ? u"Attic"_s : QString();
    queue.isOnNetwork = isOnNetwork;
    return queue;
  };
  QueueListModel model;
  const auto rows = [&] {
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
      const QString name = model.index(row).data(QueueListModel::NameRole).toString();
      EXPECT_TRUE(name.isEmpty() || model.rowOf(name) == row) << name;
      EXPECT_EQ(model.flags(model.index(row)).testFlag(Qt::ItemIsSelectable), !name.isEmpty());
      rows.append(model.index(row).data().toString());
    }
    return rows.join(u'|');
  };
  model.setQueues({named(u"b"_s, false)});
  model.setNetwork({named(u"a"_s, true), named(u"b"_s, true)});
  model.offerPdf();
  EXPECT_EQ(rows(), u"b|On the network|a — Attic|Save as PDF"_s);
  EXPECT_TRUE(model.queue(u"a"_s)->isOnNetwork && !model.queue(u"b"_s)->isOnNetwork);
  model.setQueue(named(u"a"_s, false));
  EXPECT_EQ(rows(), u"a|b|Save as PDF"_s);
  model.removeQueue(u"b"_s);
  EXPECT_EQ(rows(), u"a|On the network|b — Attic|Save as PDF"_s);
  model.setNetwork({});
  EXPECT_EQ(rows(), u"a|Save as PDF"_s);
}

TEST_F(DialogPrint, AQueueWithoutThePanelPrintsWithItsOwnOptions) {
  startPrinter({u"--queues"_s, u"2"_s});
  changePpd(u"Office_MFP_0002"_s, "*APDialogExtension", "*% none");
  openReady();
  for (const int row : {1, 0, 1})  // only the last one is waited for
    EXPECT_TRUE(DialogUser(*m_dialog).choose(u"printer"_s, row));
  await([this] { return m_dialog->isQueueReady(); }, u"the other queue"_s);
  EXPECT_TRUE(widgetNamed(*m_dialog, u"Presets"_s)->isEnabled());
  EXPECT_TRUE(DialogUser(*m_dialog).choose(u"Duplex"_s, 1));
  click(u"print"_s);
  awaitJob(1);
  awaitMessage(u"Job 1: Printed."_s);
  EXPECT_TRUE(m_dialog->jobSettings().isEmpty()) << "of the panel of the queue before";
}

TEST_F(DialogPrint, TheFirstQueueThatTakesJobsReplacesAMissingOne) {
  changeScheduler(m_folder, "s/DefaultPrinter/Printer/; 0,/Accepting Yes/s//Accepting No/");
  startPrinter({u"--queues"_s, u"2"_s});
  for (const QString& asked : {QString(), u"Gone"_s}) {
    m_options.queue = asked;
    m_options.documentLater = !asked.isNull();  // an application may remember a queue that is gone
    openReady();
    EXPECT_EQ(m_dialog->queueName(), u"Office_MFP_0002"_s) << asked;
    const auto tip = [&](int row) { return m_dialog->queues().index(row).data(Qt::ToolTipRole).toString(); };
    EXPECT_TRUE(tip(0).startsWith(u"<p>Not accepting jobs"_s)) << tip(0);
    EXPECT_TRUE(tip(1).startsWith(u"<p>Ready"_s)) << tip(1);
  }
  DemoProcess(m_folder, u"kesto-print --timings -h "_s + m_options.server.address).output();
}

TEST_F(DialogPrint, ChangesOfQueuesAreFollowedEvenWhenTheSubscriptionIsLost) {
  openReady();
  const auto change = [this](const QString& how) { m_printer->ofPrintSystem(u"/usr/sbin/lpadmin "_s + how); };
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
  change(u"-p Annex -E -v socket://127.0.0.1:9"_s);
  await([&] { return queues.rowOf(u"Annex"_s) == 0; }, u"the new queue"_s);
  EXPECT_EQ(printer->currentText(), u"Office_MFP — Kesto VQ-250n (demo)"_s);
  EXPECT_TRUE(ask(IPP_OP_CANCEL_SUBSCRIPTION, 1));
  await([&] { return ask(IPP_OP_GET_SUBSCRIPTION_ATTRIBUTES, 2); }, u"the next subscription"_s);
  change(u"-p Annex -D Moved"_s);
  change(u"-x Office_MFP"_s);
  await([&] { return queues.queues().size() == 1 && printer->itemText(0) == u"Annex — Moved"_s; },
        u"the news"_s);
  EXPECT_EQ(printer->currentIndex(), -1) << "nobody has chosen another";
  EXPECT_EQ(printer->placeholderText(), u"Office_MFP"_s);
  EXPECT_EQ(text(u"printerState"_s),
            u"The print server no longer has this printer. It may have been removed."_s);
}

}  // namespace
}  // namespace kesto::test
