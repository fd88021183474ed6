// The portal's service on a private bus. The test plays the front end, the clients and the users of the
// dialogs.
#include <QtCore/QCryptographicHash>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusPendingReply>
#include <QtNetwork/QLocalServer>
#include <QtNetwork/QLocalSocket>

#include "hosts/portal/service.h"
#include "tests/support/demo_process.h"
#include "tests/support/warnings.h"

namespace kesto::test {
namespace {

// A started dialog, which the test operates.
class Dialog {
 public:
  explicit Dialog(QLocalSocket* socket) : m_socket(socket), m_self(next()) {}

  /// What the service says next.
  QJsonObject next() {
    waitFor([&] { return m_socket->canReadLine(); });
    return QJsonDocument::fromJson(m_socket->readLine()).object();
  }
  QString nextWord() { return next().value(u"do"_s).toString(); }
  void say(const QByteArray& line) {
    m_socket->write(line + '\n');
    m_socket->flush();
  }
  const QJsonObject& self() const { return m_self; }

 private:
  std::unique_ptr<QLocalSocket> m_socket;
  QJsonObject m_self;
};

// The answer to a call, once it arrives.
class Answer {
 public:
  explicit Answer(const QDBusPendingCall& call) : m_watcher(call) {}
  uint response() {
    waitFor([&] { return m_watcher.isFinished(); });
    const QDBusPendingReply<uint, QVariantMap> reply = m_watcher;
    EXPECT_FALSE(reply.isError()) << reply.error().message();
    return reply.isError() ? 99 : reply.argumentAt<0>();
  }
  QVariantMap results() {
    EXPECT_EQ(response(), 0U);
    const QDBusPendingReply<uint, QVariantMap> reply = m_watcher;
    return reply.argumentAt<1>();
  }
  bool isThere() const { return m_watcher.isFinished(); }

 private:
  QDBusPendingCallWatcher m_watcher;
};

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
  QDBusPendingCall call(const QString& method, const QVariantList& arguments) const {
    QDBusMessage message = QDBusMessage::createMethodCall(QLatin1String(PortalService::busName),
                                                          QLatin1String(PortalService::objectPath),
                                                          u"org.freedesktop.impl.portal.Print"_s, method);
    message.setArguments(arguments);
    return connection("front end").asyncCall(message);
  }
  QDBusPendingCall prepare(const QString& handle, const QVariantMap& settings = {},
                           const QVariantMap& pageSetup = {}) const {
    return call(u"PreparePrint"_s,
                {QVariant::fromValue(QDBusObjectPath(handle)), u"org.example.App"_s, u"x11:2a"_s, u"Report"_s,
                 settings, pageSetup, QVariantMap{{u"modal"_s, false}}});
  }
  QDBusPendingCall print(const QString& handle, const QVariant& token) const {
    QFile file(m_folder.path(u"document"_s));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QVariantMap options = token.isValid() ? QVariantMap{{u"token"_s, token}} : QVariantMap();
    return call(u"Print"_s, {QVariant::fromValue(QDBusObjectPath(handle)), u""_s, u""_s, u"Job"_s,
                             QVariant::fromValue(QDBusUnixFileDescriptor(file.handle())), options});
  }
  QDBusPendingCall close(const QString& handle) const {
    return connection("front end")
        .asyncCall(QDBusMessage::createMethodCall(QLatin1String(PortalService::busName), handle,
                                                  u"org.freedesktop.impl.portal.Request"_s, u"Close"_s));
  }
  Dialog startedDialog() {
    waitFor([&] { return m_dialogs.hasPendingConnections(); });
    return Dialog(m_dialogs.nextPendingConnection());
  }
  // Opens a dialog whose user has chosen, and returns its token as well.
  Dialog chosenDialog(uint* token) {
    Answer answer(prepare(handle()));
    Dialog dialog = startedDialog();
    EXPECT_EQ(dialog.nextWord(), u"open");
    dialog.say(R"({"answer":"chosen","settings":{},"pageSetup":{}})");
    *token = answer.results().value(u"token"_s).toUInt();
    EXPECT_NE(*token, 0U);
    return dialog;
  }
  // With an unknown token the document gets a dialog of its own, whose user chooses first.
  void expectAnotherDialog(const QVariant& token, const char* client = "client") {
    Answer answer(print(handle(client), token));
    Dialog dialog = startedDialog();
    EXPECT_EQ(dialog.next().value(u"document"_s), true);
    EXPECT_EQ(dialog.next().value(u"document"_s), hash(m_document));
    EXPECT_FALSE(answer.isThere()) << "the user has not chosen";
    dialog.say(R"({"answer":"taken"})");
    EXPECT_EQ(answer.response(), 0U);
  }
  // Brings a print to a stage and ends it there, by the dialog's answer in JSON or in another way.
  void expectEnd(const char* stage, const QByteArray& end, uint response) {
    SCOPED_TRACE(end.toStdString() + ' ' + stage);
    const QString path = handle();
    uint token = 0;
    std::optional<Dialog> dialog;
    if (*stage == 'p') dialog = chosenDialog(&token);
    const bool hasDocument = qstrcmp(stage, "asked") != 0;
    Answer answer(hasDocument ? print(path, token) : prepare(path));
    if (!dialog) dialog = startedDialog();
    while (dialog->nextWord() != (hasDocument ? u"print" : u"open"))
      continue;
    const bool isDialogs = end.startsWith('{');
    if (isDialogs) dialog->say(end);
    if (end.contains("client")) QDBusConnection::disconnectFromBus(u"client"_s);
    if (end.contains("request")) close(path);
    EXPECT_EQ(answer.response(), response);
    if (!isDialogs) {
      EXPECT_EQ(dialog->nextWord(), u"close");  // it knows whether its document is whole
    }
    dialog->say(R"({"answer":"taken"})");
    QDBusPendingCallWatcher again(close(path));
    waitFor([&] { return again.isFinished(); });
    EXPECT_TRUE(again.isError()) << "the request is still on the bus";
  }
  static QString hash(const QByteArray& bytes) {
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex());
  }

  ScratchFolder m_folder;
  const QByteArray m_document = pdfDocument();
  QString m_program = builtProgram("portal-dialog-stand-in");
  DemoProcess m_bus{m_folder, u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s}};
  const QString m_address = QString::fromLatin1(m_bus.readOutLine().trimmed());
  QLocalServer m_dialogs;
  std::optional<PortalService> m_service;
  int m_handles = 0;
};

TEST_F(PortalServiceTest, AsksAndHandsTheDocumentOn) {
  qputenv("GTK_USE_PORTAL", "1");
  qputenv("QT_QPA_PLATFORMTHEME", "xdgdesktopportal:gtk3");
  const QString secret = u"kesto.print.PrintSettings.userNumber"_s;
  Answer asked(prepare(handle(), {{u"n-copies"_s, u"3"_s}, {u"my-key"_s, u"Größe"_s}, {secret, u"42"_s}},
                       {{u"PPDName"_s, u"A4"_s}, {u"Width"_s, 210.0}}));
  Dialog dialog = startedDialog();
  EXPECT_EQ(dialog.self(), json(R"({"arguments":["--portal", "3"],
      "environment":{"QT_QPA_PLATFORMTHEME":"gtk3"}})"));
  EXPECT_EQ(dialog.next(), json(R"({"do":"open", "title":"Report", "parentWindow":"x11:2a",
      "appId":"org.example.App", "modal":false, "document":false,
      "settings":{"n-copies":"3", "my-key":"Größe"}, "pageSetup":{"PPDName":"A4", "Width":210}})"));
  dialog.say(R"({"answer":"chosen","settings":{"n-copies":"1","cups-job-password":"7"},
                 "pageSetup":{"PPDName":"A5","Width":148}})"_ba.replace('\n', ""));
  const QVariantMap results = asked.results();
  const auto part = [&](const QString& name) { return qdbus_cast<QVariantMap>(results.value(name)); };
  EXPECT_EQ(part(u"settings"_s), (QVariantMap{{u"n-copies"_s, u"1"_s}}));
  EXPECT_EQ(part(u"page-setup"_s), (QVariantMap{{u"PPDName"_s, u"A5"_s}, {u"Width"_s, 148.0}}));
  EXPECT_EQ(part(u"page-setup"_s).value(u"Width"_s).typeId(), QMetaType::Double) << "a client takes no other";

  const QVariant token = results.value(u"token"_s);
  Answer printed(print(handle(), token));
  EXPECT_EQ(dialog.next(),
            (QJsonObject{{u"do"_s, u"print"_s}, {u"title"_s, u"Job"_s}, {u"document"_s, hash(m_document)}}));
  EXPECT_FALSE(printed.isThere());
  dialog.say(R"({"answer":"taken"})");
  EXPECT_EQ(printed.response(), 0U);
  expectAnotherDialog(token);
}

TEST_F(PortalServiceTest, AnInvalidTokenOpensAnotherDialogAndUsesNoOtherUp) {
  uint good = 0;
  Dialog chosen = chosenDialog(&good);
  for (const QVariant& token : {QVariant(), QVariant(0U), QVariant(good ^ 1U), QVariant(u"text"_s)})
    expectAnotherDialog(token);
  expectAnotherDialog(good, "stranger");
  Answer printed(print(handle(), good));
  EXPECT_EQ(chosen.nextWord(), u"print");

  uint token = 0;
  Dialog killed = chosenDialog(&token);
  killed.say(R"({"kill":1})");
  waitFor([&] { return m_service->findChildren<DialogSession*>().size() == 1; });
  expectAnotherDialog(token);
  Dialog ending = chosenDialog(&token);
  ending.say(R"({"leave":1})");
  EXPECT_EQ(ending.next(), (QJsonObject{{u"closed"_s, true}}));
  expectAnotherDialog(token);
  startService(std::chrono::milliseconds(0));
  Dialog expired = chosenDialog(&token);
  EXPECT_EQ(expired.nextWord(), u"close");
  expectAnotherDialog(token);
}

TEST_F(PortalServiceTest, ARequestIsAnsweredOnceAndByWhatWasAsked) {
  const ExpectedWarning twice("this handle is already in use");
  const ExpectedWarning unasked("sent an unexpected answer");
  const QString path = handle();
  Answer asked(prepare(path));
  Dialog dialog = startedDialog();
  EXPECT_EQ(Answer(prepare(path)).response(), 2U);
  dialog.say(R"({"answer":"taken"})");
  dialog.say(R"({"answer":"chosen"})");
  EXPECT_EQ(asked.results().keys(), (QStringList{u"page-setup"_s, u"settings"_s, u"token"_s}));
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
  uint token = 0;
  Dialog waiting = chosenDialog(&token);
  QDBusConnection::disconnectFromBus(u"client"_s);
  EXPECT_EQ(waiting.nextWord(), u"close");
  Answer failed(print(handle(), {}));
  Dialog dialog = startedDialog();
  dialog.say(R"({"answer":"failed"})");
  EXPECT_EQ(failed.response(), 2U);
}

TEST_F(PortalServiceTest, TheEndOfADocumentIsWholeWhileItsClientLives) {
  for (const bool lives : {true, false}) {
    uint token = 0;
    Dialog dialog = chosenDialog(&token);
    Answer printing(print(handle(), token));
    EXPECT_EQ(dialog.nextWord(), u"print");
    dialog.say(R"({"answer":"read"})");
    if (!lives) QDBusConnection::disconnectFromBus(u"client"_s);
    EXPECT_EQ(dialog.nextWord(), lives ? u"whole" : u"close");
    dialog.say(R"({"answer":"taken"})");
    EXPECT_EQ(printing.response(), lives ? 0U : 2U);
  }
}

TEST_F(PortalServiceTest, OneClientHasEightDialogsAtMost) {
  std::vector<std::unique_ptr<Answer>> answers;
  std::vector<Dialog> dialogs;
  for (int i = 0; i < PortalService::mostDialogs; ++i) {
    answers.push_back(std::make_unique<Answer>(prepare(handle())));
    dialogs.push_back(startedDialog());
  }
  for (const char* client : {"client", "stranger"}) {  // the same application, under another name
    const ExpectedWarning warning("a client already has 8 print dialogs; no more are opened for it");
    EXPECT_EQ(Answer(prepare(handle(client))).response(), 2U);
  }
  Answer another(print(handle("stranger"), {}));
  Dialog ofAnother = startedDialog();  // which ends when it is let go
  EXPECT_EQ(ofAnother.nextWord(), u"open");
  dialogs.front().say(R"({"answer":"cancelled"})");
  dialogs.front().say(R"({"exit":0})");
  EXPECT_EQ(answers.front()->response(), 1U);
  waitFor([this] { return m_service->findChildren<DialogSession*>().size() == PortalService::mostDialogs; });
  Answer again(prepare(handle()));
  EXPECT_EQ(startedDialog().nextWord(), u"open");
}

TEST_F(PortalServiceTest, ARequestThatCannotBeServedFails) {
  {
    const ExpectedWarning warning("does not name its client");
    EXPECT_EQ(Answer(prepare(u"/org/freedesktop/portal/desktop/request/other"_s)).response(), 2U);
  }
  EXPECT_EQ(Answer(prepare(u"/org/freedesktop/portal/desktop/request/1_999999/t"_s)).response(), 2U);
  const ExpectedWarning warning("cannot open the print dialog: /no/such/kesto-print: ");
  m_program = u"/no/such/kesto-print"_s;
  startService();
  EXPECT_EQ(Answer(prepare(handle())).response(), 2U);
}

TEST_F(PortalServiceTest, AServiceThatCannotStartSaysWhy) {
  for (const auto& [name, reason] : Cases{{"service", "another program has the portal's object path"},
                                          {"client", "another portal is already running"}}) {
    PortalService second(connection(name.toLatin1().constData()), m_program);
    EXPECT_EQ(second.start().reason(), reason);
  }
  qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/no/such/bus");
  const auto expectEnd = [this](const QStringList& arguments, int code, const char* error) {
    DemoProcess program(m_folder, builtProgram("kesto-portal"), arguments);
    EXPECT_EQ(program.code(), code);
    EXPECT_TRUE(program.log().startsWith(error)) << program.log();
  };
  expectEnd({u"--help"_s}, 2, "Usage: kesto-portal\n");
  expectEnd({}, 1, "kesto-portal: cannot connect to the session bus: ");
}

TEST(PortalDialog, ItsEnvironmentDoesNotLeadBackToThePortal) {
  const QString variable = u"QT_QPA_PLATFORMTHEME"_s;
  for (const auto& [given, kept] : Cases{{"gtk3", "gtk3"},
                                         {"xdgdesktopportal", nullptr},
                                         {"XdgDesktopPortal:snap", nullptr},
                                         {"flatpak:kde:gtk3", "kde:gtk3"},
                                         {"qt5ct:xdgdesktopportal", "qt5ct"},
                                         {nullptr, nullptr}}) {
    QProcessEnvironment environment;
    environment.insert(u"GTK_USE_PORTAL"_s, u"1"_s);
    if (!given.isNull()) environment.insert(variable, given);
    environment = dialogEnvironment(environment);
    EXPECT_EQ(environment.toStringList(),
              kept.isNull() ? QStringList() : QStringList{variable + u'=' + kept});
  }
}

}  // namespace
}  // namespace kesto::test
