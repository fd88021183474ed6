// The dialog of kesto-print --portal: what it says to its service, what ends it, and what is printed then.
#include <fcntl.h>

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVirtualObject>
#include <QtNetwork/QTcpServer>

#include "hosts/dialog/panes/option_pane.h"
#include "hosts/dialog/portal_print.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "tests/support/dialog_printer.h"
#include "tests/support/more_choices.h"

namespace kesto::test {
namespace {

class PortalDialog : public DialogPrint {
 protected:
  PortalDialog() {
    QApplication::setQuitOnLastWindowClosed(false);
    m_folder.write(u"empty"_s, {});
  }
  // Starts the dialog, and waits for its window.
  void open(bool hasDocument, const QJsonObject& settings = {}, const QJsonObject& pageSetup = {},
            QJsonObject more = {}) {
    Descriptor ours;
    Descriptor theirs;
    ASSERT_TRUE(PrintChannel::makePair(&ours, &theirs));
    m_options.channel = theirs.release();
    m_print.emplace(m_options);
    m_service = std::make_unique<PrintChannel>(std::move(ours));
    m_said = {};
    QObject::connect(m_service.get(), &PrintChannel::received, [this](const QJsonObject& message) {
      m_said = message;
      m_answers += message.value(u"answer"_s).toString() + u' ';
    });
    m_answers.clear();
    more.insert(u"document"_s, hasDocument);
    more.insert(u"settings"_s, settings);
    more.insert(u"pageSetup"_s, pageSetup);
    say(u"open"_s, more);
    await([] { return window() != nullptr; }, u"the dialog"_s);
  }
  void say(const QString& what, QJsonObject message = {}, int attached = -1) {
    message.insert(u"do"_s, what);
    ASSERT_TRUE(m_service->send(message, attached));
  }
  // Hands over a file, or a pipe that holds part of a document; returns the pipe's other end.
  Descriptor print(const QString& document) {
    std::array<int, 2> ends{-1, -1};
    if (document == u"pipe") {
      EXPECT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
      EXPECT_EQ(::write(ends[1], "half", 4), 4);
    } else {
      ends[0] = ::open(m_folder.path(document).toUtf8().constData(), O_RDONLY | O_CLOEXEC);
    }
    const Descriptor read(ends[0]);
    say(u"print"_s, {{u"title"_s, u"Report"_s}}, read.get());
    return Descriptor(ends[1]);
  }
  void awaitAnswers(const QString& answers) {
    await([&] { return m_answers == answers; }, answers);
  }
  void awaitEnd() {
    QTimer::singleShot(30000, &*m_print, [] { QApplication::exit(1); });
    EXPECT_EQ(QApplication::exec(), 0);
    QCoreApplication::processEvents();
    m_print.reset();
  }
  static PrintDialog* window() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (auto* dialog = qobject_cast<PrintDialog*>(window)) return dialog;
    }
    return nullptr;
  }
  static void pressEscape() {
    QTimer::singleShot(0, window(), [] { QTest::keyClick(window(), Qt::Key_Escape); });
  }
  void pressPrint() {
    await([] { return window()->isQueueReady(); }, u"the queue"_s);
    ASSERT_TRUE(DialogUser(*window()).click(u"print"_s));
  }

  std::optional<PortalPrint> m_print;
  std::unique_ptr<PrintChannel> m_service;
  QJsonObject m_said;
  QString m_answers;
};

TEST_F(PortalDialog, EndsWithItsServiceAndItsUser) {
  const QJsonObject settings{{u"n-copies"_s, u"2"_s}, {u"collate"_s, u"false"_s}};
  for (const QString& end : {u"close"_s, u"service"_s, u"user"_s, u"user after a failure"_s}) {
    SCOPED_TRACE(end.toStdString());
    open(true, settings);
    EXPECT_EQ(window()->jobOptions().travelling(),
              (QMap<QString, QString>{{u"copies"_s, u"2"_s}, {u"collate"_s, u"false"_s}}));
    if (end == u"user after a failure") {
      print(u"empty"_s);
      awaitAnswers(u"failed "_s);
      say(u"close"_s);
      const auto isTold = [] {
        return window()->findChild<QLabel*>(u"documentName"_s)->text().contains(u"is empty"_s);
      };
      await(isTold, u"the reason"_s);
      m_answers.clear();
    }
    if (end == u"close") say(end);
    if (end == u"service") m_service.reset();
    if (end.startsWith(u"user")) pressEscape();
    awaitEnd();
    EXPECT_EQ(m_answers, end.startsWith(u"user") ? u"cancelled "_s : QString());
  }
}

TEST_F(PortalDialog, PrintsOnlyACompleteDocument) {
  startPrinter();
  const QJsonObject settings = json(R"({"n-copies":"3", "number-up":"2", "number-up-layout":"rltb",
      "page-set":"even", "reverse":"true", "scale":"70", "collate":"false", "duplex":"vertical",
      "print-pages":"ranges", "page-ranges":"0-1,4,6--1"})");
  // A document, and whether the client closes it; the answers until the service speaks, what it says then,
  // and what is answered to that when a job is printed.
  const std::tuple<const char*, Text, bool, Text, Text, Text> cases[] = {
      {"a file of a client that ends", "report.pdf", false, "chosen ", "close", "taken "},
      {"a pipe of a living client", "pipe", true, "chosen read ", "whole", "taken "},
      {"a pipe of a dead client", "pipe", true, "chosen read ", "close", ""},
      {"a dead client's pipe in other hands", "pipe", false, "chosen ", "close", ""},
  };
  int jobs = 0;
  for (const auto& [name, document, isClosed, answers, word, last] : cases) {
    SCOPED_TRACE(name);
    open(false, settings, {{u"PPDName"_s, u"A5"_s}});
    pressPrint();
    awaitAnswers(u"chosen "_s);
    EXPECT_EQ(m_said[u"pageSetup"_s][u"Name"_s], u"iso_a5"_s);
    EXPECT_EQ(m_said[u"settings"_s][u"duplex"_s], u"vertical"_s);
    EXPECT_EQ(m_said[u"settings"_s][u"page-ranges"_s], u"0-1,4,6-2147483646"_s);
    EXPECT_FALSE(window()->isVisible());
    Descriptor written = print(document);
    if (isClosed) written.reset();
    awaitAnswers(answers);
    say(word);
    awaitEnd();
    EXPECT_EQ(m_answers, answers + last);
    jobs += last.isEmpty() ? 0 : 1;
    if (!last.isEmpty()) m_printer->waitForLog("job " + QByteArray::number(jobs) + " from ");
    EXPECT_EQ(QJsonDocument::fromJson(m_printer->jobs()).array().size(), jobs);
  }
  const QMap<QString, QString> sent = m_printer->attributesOfJob(1, cupsUser());
  forEachValue(
      u"copies=3 collate=false number-up=2 number-up-layout=rltb page-set=even outputorder=reverse "
      "scaling=70 Duplex=DuplexTumble PageSize=A5 page-ranges= job-name=Report "
      "kesto.print.PrintSettings.jobName=5265706F7274"_s,
      [&](const QString& name, const QString& value) { EXPECT_EQ(sent.value(name), value) << name; });
}

TEST_F(PortalDialog, TheClientsOwnPagesStayUnlessOthersAreChosen) {
  startPrinter();
  for (const auto& [asked, clicked, answered] : {std::tuple(u"current"_s, u""_s, u"current"_s),
                                                 {u"selection"_s, u""_s, u"selection"_s},
                                                 {u"selection"_s, u"allPages"_s, u"all"_s},
                                                 {u"all"_s, u"selection"_s, u"selection"_s}}) {
    open(false, {{u"print-pages"_s, asked}}, {}, {{u"hasSelection"_s, true}});
    await([] { return window()->isQueueReady(); }, u"the queue"_s);
    EXPECT_EQ(window()->findChild<QWidget*>(u"currentPage"_s)->isVisible(), asked == u"current");
    EXPECT_TRUE(clicked.isEmpty() || DialogUser(*window()).click(clicked));
    pressPrint();
    awaitAnswers(u"chosen "_s);
    EXPECT_EQ(m_said[u"settings"_s][u"print-pages"_s].toString(), answered);
    say(u"close"_s);
    awaitEnd();
  }
}

TEST_F(PortalDialog, OptionsOfTheQueueComeFromTheClientAndGoBackToIt) {
  startPrinter();
  changePpd(u"Office_MFP"_s, fewChoices, moreChoices);
  const QJsonObject settings =
      json(R"({"use-color":"true", "quality":"high", "resolution":"1200", "default-source":"Tray2",
      "media-type":"stationery-heavyweight", "output-bin":"upper", "cups-TonerSave":"True", "cups-Gloss":"On",
      "number-up":"1", "dialog-number-up":"4"})");
  open(false, settings, {}, {{u"acceptLabel"_s, u"_Share __now"_s}, {u"canWritePdf"_s, true}});
  await([] { return window()->isQueueReady(); }, u"the queue"_s);
  EXPECT_EQ(plainText(*window()->findChild<QWidget*>(u"print"_s)), u"Share _now"_s);
  const QMap<QString, QString> shown = window()->jobOptions().travelling();
  forEachValue(
      u"OutputMode=Best Resolution=1200dpi InputSlot=Tray2 MediaType=Thick TonerSave=True number-up=4"_s,
      [&](const QString& name, const QString& value) { EXPECT_EQ(shown[name], value) << name; });
  window()->jobOptions().choose(u"MediaType"_s, u"Transparency"_s);
  window()->jobOptions().choose(u"TonerSave"_s, u"False"_s);
  window()->jobOptions().choose(u"number-up"_s, u"2"_s);
  pressPrint();
  awaitAnswers(u"chosen "_s);
  const QJsonObject back = m_said[u"settings"_s].toObject();
  forEachValue(
      u"use-color=false quality=high resolution=1200 default-source=Tray2 media-type=Transparency "
      "output-bin=Upper cups-TonerSave=False cups-Gloss=On number-up=1 dialog-number-up=2"_s,
      [&](const QString& name, const QString& value) { EXPECT_EQ(back[name], value) << name; });
  say(u"close"_s);
  awaitEnd();
}

// The desktop's notifications on a private bus.
class Notifications : public QDBusVirtualObject {
 public:
  explicit Notifications(const QString& address)
      : m_bus(QDBusConnection::connectToBus(address, u"notifications"_s)) {
    EXPECT_TRUE(m_bus.registerVirtualObject(u"/org/freedesktop/Notifications"_s, this));
    EXPECT_TRUE(m_bus.registerService(u"org.freedesktop.Notifications"_s));
  }
  QString introspect(const QString& /*path*/) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& /*connection*/) override {
    text = message.arguments().value(4).toString();
    return m_bus.send(message.createReply(quint32(7)));
  }
  void press() {
    QDBusMessage pressed = QDBusMessage::createSignal(u"/org/freedesktop/Notifications"_s,
                                                      u"org.freedesktop.Notifications"_s, u"ActionInvoked"_s);
    pressed << quint32(7) << u"show"_s;
    m_bus.send(pressed);
  }
  QString text;

 private:
  QDBusConnection m_bus;
};

TEST_F(PortalDialog, AFailureOutOfSightComesAsANotification) {
  DemoProcess bus(m_folder, u"dbus-daemon --session --nofork --print-address"_s);
  const QByteArray address = bus.readOutLine().trimmed();
  qputenv("DBUS_SESSION_BUS_ADDRESS", address);
  Notifications notifications(QString::fromLatin1(address));
  startPrinter({u"--no-paper"_s});
  open(false);
  pressPrint();
  awaitAnswers(u"chosen "_s);
  print(u"report.pdf"_s);
  await([&] { return notifications.text == u"Job 1: Stopped: Out of paper (Load A4 paper into tray 1)."_s; },
        u"the notification"_s);
  EXPECT_FALSE(window()->isVisible());
  notifications.press();
  await([] { return window()->isVisible(); }, u"the dialog"_s);
  m_printer->setFault(u"none"_s);
  awaitEnd();
  EXPECT_EQ(m_answers, u"chosen taken "_s);
}

TEST_F(PortalDialog, ADocumentThatComesLaterIsSavedAsPdf) {
  startPrinter();
  const QString target = m_folder.path(u"saved.pdf"_s);
  open(false, {}, {}, {{u"canWritePdf"_s, true}});
  await([] { return window()->isQueueReady(); }, u"the queue"_s);
  auto* printer = window()->findChild<QComboBox*>(u"printer"_s);
  await([&] { return printer->findText(u"Save as PDF"_s) > 0; }, u"the list of printers"_s);
  printer->setCurrentIndex(printer->count() - 1);
  await([] { return window()->savesPdf(); }, u"the file in place of a printer"_s);
  whenModal([&](QWidget& files) {
    files.findChild<QLineEdit*>()->setText(target);
    pressEnter(*files.findChild<QLineEdit*>());
  });
  pressPrint();
  awaitAnswers(u"chosen "_s);
  EXPECT_FALSE(m_said[u"settings"_s].toObject().contains(u"printer"_s));
  m_folder.write(u"sound.pdf"_s, bytesOf(QStringLiteral(KESTO_TEST_DATA "/../../demo/quarterly-report.pdf")));
  print(u"sound.pdf"_s);
  awaitEnd();
  EXPECT_EQ(m_answers, u"chosen taken "_s);
  EXPECT_TRUE(bytesOf(target).startsWith("%PDF-"));
  EXPECT_EQ(m_printer->jobs(), "[]");
}

TEST_F(PortalDialog, AProgramCannotMakeItConnectToAnAddress) {
  startPrinter();
  QTcpServer trap;
  ASSERT_TRUE(trap.listen(QHostAddress::LocalHost));
  open(false, {{u"printer"_s, u"ipp://127.0.0.1:%1/ipp/print"_s.arg(trap.serverPort())}});
  await([] { return window()->isQueueReady(); }, u"the default queue"_s);
  EXPECT_EQ(window()->queueName(), u"Office_MFP");
  EXPECT_FALSE(trap.hasPendingConnections());
}

TEST_F(PortalDialog, ComesBackWithTheReasonWhenThereIsNothingToPrint) {
  startPrinter();
  open(false);
  pressPrint();
  awaitAnswers(u"chosen "_s);
  print(u"empty"_s);
  awaitAnswers(u"chosen failed "_s);
  await([] { return window()->isVisible(); }, u"the dialog"_s);
  EXPECT_EQ(window()->findChild<QLabel*>(u"message"_s)->text(),
            u"The job was not printed. Report is empty. There is nothing to print."_s);
  EXPECT_FALSE(window()->findChild<QWidget*>(u"print"_s)->isEnabled());
  pressEscape();
  awaitEnd();
  EXPECT_EQ(m_printer->jobs(), "[]");
}

}  // namespace
}  // namespace kesto::test
