// The portal's service on a private bus. The test plays the front end, the clients and the users of the
// dialogs.
#include <QtDBus/QDBusPendingReply>
#include <QtNetwork/QLocalServer>
#include <QtNetwork/QLocalSocket>

#include "hosts/portal/service.h"
#include "tests/support/demo_process.h"
#include "tests/support/warnings.h"

namespace kesto::test {
namespace {

// A started dialog, which the test operates.
struct Dialog {
  explicit Dialog(QLocalSocket* connected) : socket(connected), self(next()) {}
  // What the service says next.
  QJsonObject next() {
    waitFor([&] { return socket->canReadLine(); });
    return QJsonDocument::fromJson(socket->readLine()).object();
  }
  QString nextWord() { return next().value(u"do"_s).toString(); }
  void say(const QByteArray& line) {
    socket->write(line + '\n');
    socket->flush();
  }
  void answer(const QByteArray& word) { say(R"({"answer":")" + word + R"("})"); }

  std::unique_ptr<QLocalSocket> socket;
  QJsonObject self;
};

// Waits for the answer to a call, expects its response and returns its results.
QVariantMap expectAnswer(const QDBusPendingCall& call, uint response) {
  waitFor([&] { return call.isFinished(); });
  const QDBusPendingReply<uint, QVariantMap> reply = call;
  EXPECT_FALSE(reply.isError()) << reply.error().message();
  if (reply.isError()) return {};
  EXPECT_EQ(reply.argumentAt<0>(), response);
  return reply.argumentAt<1>();
}

class PortalServiceTest : public testing::Test {
 protected:
  PortalServiceTest() {
    EXPECT_TRUE(m_dialogs.listen(m_folder.path(u"dialogs"_s)));
    qputenv("KESTO_STAND_IN", QFile::encodeName(m_dialogs.fullServerName()));
    m_folder.write(u"document"_s, m_document);
    startService();
  }
  void TearDown() override {
    for (const char* name : {"service", "front end", "client", "stranger"})
      QDBusConnection::disconnectFromBus(QLatin1String(name));
  }
  void startService(std::chrono::milliseconds lifetime = PortalService::ticketLifetime) {
    m_service.reset();
    QDBusConnection bus = connection("service");
    bus.unregisterService(QLatin1String(PortalService::busName));
    m_service.emplace(bus, m_program, lifetime);
    const Outcome started = m_service->start();
    ASSERT_TRUE(started) << started.reason();
  }
  QDBusConnection connection(const char* name) const {
    return QDBusConnection::connectToBus(m_address, QLatin1String(name));
  }
  // A new handle for a request of a client.
  QString handle(const char* client = "client") {
    QString sender = connection(client).baseService().mid(1);
    return u"/org/freedesktop/portal/desktop/request/%1/t%2"_s.arg(sender.replace(u'.', u'_'))
        .arg(++m_handles);
  }
  QDBusPendingCall call(const char* method, const QVariantList& arguments,
                        const QString& path = QLatin1String(PortalService::objectPath),
                        const char* interface = "Print") const {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QLatin1String(PortalService::busName), path,
        u"org.freedesktop.impl.portal."_s + QLatin1String(interface), QLatin1String(method));
    message.setArguments(arguments);
    return connection("front end").asyncCall(message);
  }
  QDBusPendingCall prepare(const QString& handle, const QVariantMap& settings = {},
                           const QVariantMap& pageSetup = {}) const {
    return call("PreparePrint", {QVariant::fromValue(QDBusObjectPath(handle)), u"org.example.App"_s,
                                 u"x11:2a"_s, u"Report"_s, settings, pageSetup,
                                 QVariantMap{{u"modal"_s, false},
                                             {u"accept_label"_s, u"_Share"_s},
                                             {u"has_selected_pages"_s, true},
                                             {u"supported_output_file_formats"_s, QStringList{u"ps"_s}}}});
  }
  QDBusPendingCall print(const QString& handle, const QVariant& token) const {
    QFile file(m_folder.path(u"document"_s));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QVariantMap options = token.isValid() ? QVariantMap{{u"token"_s, token}} : QVariantMap();
    return call("Print", {QVariant::fromValue(QDBusObjectPath(handle)), u""_s, u""_s, u"Job"_s,
                          QVariant::fromValue(QDBusUnixFileDescriptor(file.handle())), options});
  }
  QDBusPendingCall close(const QString& handle) const { return call("Close", {}, handle, "Request"); }
  Dialog startedDialog() {
    waitFor([&] { return m_dialogs.hasPendingConnections(); });
    return Dialog(m_dialogs.nextPendingConnection());
  }
  // Opens a dialog whose user has chosen, and keeps its token.
  Dialog chosenDialog() {
    const QDBusPendingCall asked(prepare(handle()));
    Dialog dialog = startedDialog();
    EXPECT_EQ(dialog.nextWord(), u"open");
    dialog.say(R"({"answer":"chosen","settings":{},"pageSetup":{}})");
    m_token = expectAnswer(asked, 0).value(u"token"_s).toUInt();
    EXPECT_NE(m_token, 0U);
    return dialog;
  }
  // With an unknown token the document gets a dialog of its own, whose user chooses first.
  void expectAnotherDialog(const QVariant& token, const char* client = "client") {
    const QDBusPendingCall answer(print(handle(client), token));
    Dialog dialog = startedDialog();
    EXPECT_EQ(dialog.next().value(u"document"_s), true);
    EXPECT_EQ(dialog.next().value(u"document"_s), QString::fromLatin1(m_document));
    EXPECT_FALSE(answer.isFinished()) << "the user has not chosen";
    dialog.answer("taken");
    expectAnswer(answer, 0);
  }
  // Brings a print to a stage and ends it there, by the dialog's answer in JSON or in another way.
  void expectEnd(const QByteArray& stage, const QByteArray& end, uint response) {
    SCOPED_TRACE(end + ' ' + stage);
    std::optional<Dialog> dialog;
    if (stage == "printing") dialog = chosenDialog();
    const QString path = handle();
    const QDBusPendingCall asked(stage == "asked" ? prepare(path) : print(path, dialog ? m_token : 0));
    if (!dialog) dialog = startedDialog();
    while (dialog->nextWord() != (stage == "asked" ? u"open" : u"print"))
      continue;
    const bool isDialogs = end.startsWith('{');
    if (isDialogs) dialog->say(end);
    if (end.contains("client")) QDBusConnection::disconnectFromBus(u"client"_s);
    if (end.contains("request")) close(path);
    expectAnswer(asked, response);
    EXPECT_TRUE(isDialogs || dialog->nextWord() == u"close");  // it knows whether its document is whole
    dialog->answer("taken");
    const QDBusPendingCall again = close(path);
    waitFor([&] { return again.isFinished(); });
    EXPECT_TRUE(again.isError()) << "the request is still on the bus";
  }

  ScratchFolder m_folder;
  const QByteArray m_document = pdfDocument();
  QString m_program = builtProgram(u"portal-dialog-stand-in"_s);
  DemoProcess m_bus{m_folder, u"dbus-daemon --session --nofork --print-address"_s};
  const QString m_address = QString::fromLatin1(m_bus.readOutLine().trimmed());
  QLocalServer m_dialogs;
  std::optional<PortalService> m_service;
  int m_handles = 0;
  uint m_token = 0;
};

TEST_F(PortalServiceTest, AsksAndPassesTheDocumentOn) {
  qputenv("GTK_USE_PORTAL", "1");
  qputenv("QT_QPA_PLATFORMTHEME", "xdgdesktopportal:gtk3");
  const QString secret = u"kesto.print.PrintSettings.userNumber"_s;
  const QDBusPendingCall asked(
      prepare(handle(), {{u"n-copies"_s, u"3"_s}, {u"my-key"_s, u"Größe"_s}, {secret, u"42"_s}},
              {{u"PPDName"_s, u"A4"_s}, {u"Width"_s, 210.0}}));
  Dialog dialog = startedDialog();
  EXPECT_EQ(dialog.self, json(R"({"arguments":["--portal", "3"],
      "environment":{"QT_QPA_PLATFORMTHEME":"gtk3"}})"));
  EXPECT_EQ(dialog.next(), json(R"({"do":"open", "title":"Report", "parentWindow":"x11:2a",
      "appId":"org.example.App", "modal":false, "document":false, "acceptLabel":"_Share",
      "hasCurrentPage":false, "hasSelection":true, "canWritePdf":false,
      "settings":{"n-copies":"3", "my-key":"Größe"}, "pageSetup":{"PPDName":"A4", "Width":210}})"));
  dialog.say(R"({"answer":"chosen","settings":{"n-copies":"1","cups-job-password":"7"},
                 "pageSetup":{"PPDName":"A5","Width":148}})"_ba.replace('\n', ""));
  const QVariantMap results = expectAnswer(asked, 0);
  const auto part = [&](const QString& name) { return qdbus_cast<QVariantMap>(results.value(name)); };
  EXPECT_EQ(part(u"settings"_s), (QVariantMap{{u"n-copies"_s, u"1"_s}}));
  EXPECT_EQ(part(u"page-setup"_s), (QVariantMap{{u"PPDName"_s, u"A5"_s}, {u"Width"_s, 148.0}}));
  EXPECT_EQ(part(u"page-setup"_s).value(u"Width"_s).typeId(), QMetaType::Double) << "a client takes no other";

  const QVariant token = results.value(u"token"_s);
  const QDBusPendingCall printed(print(handle(), token));
  EXPECT_EQ(dialog.next(), (QJsonObject{{u"do"_s, u"print"_s},
                                        {u"title"_s, u"Job"_s},
                                        {u"document"_s, QString::fromLatin1(m_document)}}));
  EXPECT_FALSE(printed.isFinished());
  dialog.answer("taken");
  expectAnswer(printed, 0);
  expectAnotherDialog(token);
}

TEST_F(PortalServiceTest, AnInvalidTokenOpensADialogAndKeepsTheValidOnes) {
  Dialog chosen = chosenDialog();
  for (const QVariant& token : {QVariant(), QVariant(0U), QVariant(m_token ^ 1U), QVariant(u"text"_s)})
    expectAnotherDialog(token);
  expectAnotherDialog(m_token, "stranger");
  const QDBusPendingCall printed(print(handle(), m_token));
  EXPECT_EQ(chosen.nextWord(), u"print");

  Dialog killed = chosenDialog();
  killed.say(R"({"kill":1})");
  waitFor([&] { return m_service->findChildren<DialogSession*>().size() == 1; });
  expectAnotherDialog(m_token);
  Dialog ending = chosenDialog();
  ending.say(R"({"leave":1})");
  EXPECT_EQ(ending.next(), (QJsonObject{{u"closed"_s, true}}));
  expectAnotherDialog(m_token);
  startService(std::chrono::milliseconds(0));
  EXPECT_EQ(chosenDialog().nextWord(), u"close");
  expectAnotherDialog(m_token);
}

TEST_F(PortalServiceTest, ARequestIsAnsweredOnce) {
  const ExpectedWarning twice("this handle is already in use");
  const ExpectedWarning unasked("sent an unexpected answer");
  const QString path = handle();
  const QDBusPendingCall asked(prepare(path));
  Dialog dialog = startedDialog();
  expectAnswer(prepare(path), 2);
  dialog.answer("taken");
  dialog.answer("chosen");
  EXPECT_EQ(expectAnswer(asked, 0).keys(), (QStringList{u"page-setup"_s, u"settings"_s, u"token"_s}));
}

TEST_F(PortalServiceTest, WhateverEndsAPrintEndsItsRequestAndItsDialog) {
  const std::pair<QByteArray, uint> ends[] = {
      {R"({"answer":"cancelled"})", 1}, {R"({"exit":0})", 1},   {R"({"exit":3})", 2}, {R"({"kill":1})", 2},
      {"the request is withdrawn", 2},  {"the client goes", 2},
  };
  for (const auto& [end, response] : ends) {
    for (const char* stage : {"asked", "asked with a document", "printing"})
      expectEnd(stage, end, response);
  }
  Dialog waiting = chosenDialog();
  QDBusConnection::disconnectFromBus(u"client"_s);
  EXPECT_EQ(waiting.nextWord(), u"close");
  const QDBusPendingCall failed(print(handle(), {}));
  Dialog dialog = startedDialog();
  dialog.answer("failed");
  expectAnswer(failed, 2);
}

TEST_F(PortalServiceTest, ADocumentIsCompleteOnlyWhileItsClientLives) {
  for (const bool lives : {true, false}) {
    Dialog dialog = chosenDialog();
    const QDBusPendingCall printing(print(handle(), m_token));
    EXPECT_EQ(dialog.nextWord(), u"print");
    dialog.answer("read");
    if (!lives) QDBusConnection::disconnectFromBus(u"client"_s);
    EXPECT_EQ(dialog.nextWord(), lives ? u"whole" : u"close");
    dialog.answer("taken");
    expectAnswer(printing, lives ? 0 : 2);
  }
}

TEST_F(PortalServiceTest, OneClientHasEightDialogsAtMost) {
  std::vector<QDBusPendingCall> answers;
  std::vector<Dialog> dialogs;
  for (int i = 0; i < PortalService::mostDialogs; ++i) {
    answers.push_back(prepare(handle()));
    dialogs.push_back(startedDialog());
  }
  for (const char* client : {"client", "stranger"}) {  // the same application, under another name
    const ExpectedWarning warning("a client already has 8 print dialogs; no more are opened for it");
    expectAnswer(prepare(handle(client)), 2);
  }
  const QDBusPendingCall another(print(handle("stranger"), {}));
  Dialog ofAnother = startedDialog();  // which ends when it is let go
  EXPECT_EQ(ofAnother.nextWord(), u"open");
  dialogs.front().answer("cancelled");
  dialogs.front().say(R"({"exit":0})");
  expectAnswer(answers.front(), 1);
  waitFor([this] { return m_service->findChildren<DialogSession*>().size() == PortalService::mostDialogs; });
  const QDBusPendingCall again(prepare(handle()));
  EXPECT_EQ(startedDialog().nextWord(), u"open");
}

TEST_F(PortalServiceTest, ARequestThatCannotBeServedFails) {
  {
    const ExpectedWarning warning("does not name its client");
    expectAnswer(prepare(u"/org/freedesktop/portal/desktop/request/other"_s), 2);
  }
  expectAnswer(prepare(u"/org/freedesktop/portal/desktop/request/1_999999/t"_s), 2);
  const ExpectedWarning warning("cannot open the print dialog: /no/such/kesto-print: ");
  m_program = u"/no/such/kesto-print"_s;
  startService();
  expectAnswer(prepare(handle()), 2);
}

TEST_F(PortalServiceTest, AServiceThatCannotStartSaysWhy) {
  for (const auto& [name, reason] : Cases{{"service", "another program has the portal's object path"},
                                          {"client", "another portal is already running"}}) {
    PortalService second(connection(name.toLatin1().constData()), m_program);
    EXPECT_EQ(second.start().reason(), reason);
  }
  qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/no/such/bus");
  DemoProcess used(m_folder, u"kesto-portal --no-such-option"_s);
  EXPECT_TRUE(used.code() == 2 && used.log().startsWith("Usage: kesto-portal ")) << used.log();
  DemoProcess alone(m_folder, u"kesto-portal"_s);
  EXPECT_EQ(alone.code(), 1);
  EXPECT_TRUE(alone.log().startsWith("kesto-portal: cannot connect to the session bus: ")) << alone.log();
}

TEST(PortalDialog, ItsEnvironmentDoesNotLeadBackToThePortal) {
  const QString variable = u"QT_QPA_PLATFORMTHEME"_s;
  for (const auto& [given, kept] :
       {Pair{"gtk3", "gtk3"}, Pair{"xdgdesktopportal", nullptr}, Pair{"XdgDesktopPortal:snap", nullptr},
        Pair{"flatpak:kde:gtk3", "kde:gtk3"}, Pair{"qt5ct:xdgdesktopportal", "qt5ct"},
        Pair{nullptr, nullptr}}) {
    QProcessEnvironment before;
    before.insert(u"GTK_USE_PORTAL"_s, u"1"_s);
    if (!given.isNull()) before.insert(variable, given);
    EXPECT_EQ(dialogEnvironment(before).value(variable, QString()), kept) << given;
    EXPECT_EQ(dialogEnvironment(before).keys().size(), kept.isNull() ? 0 : 1) << given;
  }
}

}  // namespace
}  // namespace kesto::test
