// The scripted panel as a process of its own: its options, its answers, its log.
#include "tests/support/demo_process.h"
#include "tests/support/test_host.h"

namespace kesto::test {
namespace {

// A home without preferences, and a PPD.
class PanelProcess : public testing::Test {
 protected:
  std::unique_ptr<DemoProcess> startPanel(const QStringList& more = {}) const {
    const QStringList queue{u"--queue"_s, u"Office"_s,       u"--ppd"_s,
                            m_ppd.path(), u"--device-uri"_s, u"ipp://x"_s};
    return std::make_unique<DemoProcess>(m_folder, builtProgram("kesto-panel"), queue + more);
  }
  static QJsonObject ask(DemoProcess& process, const QByteArray& command) {
    process.write(command + '\n');
    return QJsonDocument::fromJson(process.readOutLine()).object();
  }

  ScratchFolder m_folder;
  PpdFixture m_ppd;
};

TEST_F(PanelProcess, BadOptionsAndBadFilesEndIt) {
  m_folder.write(u"damaged"_s,
                 "*PPD-Adobe: \"4.3\"\n*OpenUI *PageSize: PickOne\nno keyword\n*ModelName \"x\n");
  m_folder.write(u"numbers"_s, R"({"a":"1","b":2})");
  const std::tuple<QString, int, QString> cases[] = {
      {u"--no-such"_s, 2, u"--no-such"_s},
      {u"--ppd"_s, 2, u"--ppd"_s},
      {u"stray"_s, 2, u"unexpected argument"_s},
      {u"--ppd %1/damaged"_s, 1, u"%1/damaged: line 3: "_s},
      {u"--ppd %1"_s, 1, u"%1: a folder"_s},
      {u"--ppd /no/such.ppd"_s, 1, u"/no/such.ppd: "_s},
      {u"--settings %1/damaged"_s, 1, u"%1/damaged: not a JSON object"_s},
      {u"--settings %1/numbers"_s, 1, u"%1/numbers: the value of b is not a string"_s},
      {u"--settings /no/such"_s, 1, u"/no/such: "_s},
  };
  const auto inFolder = [this](QString text) { return text.replace(u"%1"_s, m_folder.path(u""_s)); };
  for (const auto& [arguments, code, message] : cases) {
    DemoProcess process(m_folder, builtProgram("kesto-panel"), inFolder(arguments).split(u' '));
    process.closeWriteChannel();
    EXPECT_EQ(process.code(), code) << arguments;
    EXPECT_TRUE(process.log().contains(inFolder(message).toUtf8())) << process.log();
  }
}

TEST_F(PanelProcess, BadLinesAreAnsweredAndTheNextIsHeard) {
  const auto process = startPanel();
  EXPECT_EQ(ask(*process, R"({"do":"controls"})"),
            (QJsonObject{{u"controls"_s, QJsonObject()}, {u"firstResponder"_s, QJsonValue::Null}}));
  EXPECT_EQ(ask(*process, R"({"do":"show"})"), (QJsonObject{{u"view"_s, true}}));
  for (const char* line :
       {"", "{", "[]", "7", R"({"do":7})", R"({"do":"nothing"})", R"({"do":"click"})",
        R"({"do":"click","control":"noSuch"})", R"({"do":"click","control":"suspendMatrix"})",
        R"({"do":"type","control":"userNameEditText"})",
        R"({"do":"type","control":"userNameStaticText","text":"x"})",
        R"({"do":"select","control":"suspendMatrix"})",
        R"({"do":"select","control":"suspendMatrix","row":3})",
        R"({"do":"select","control":"suspendMatrix","row":0.5})",
        R"({"do":"select","control":"folderSelectionPopup","index":2})",
        R"({"do":"caret","control":"userNameEditText","location":"1","length":0})",
        R"({"do":"set","key":"k","value":1})"}) {
    EXPECT_TRUE(ask(*process, line).contains(u"error")) << line;
  }
  EXPECT_EQ(
      ask(*process, R"({"do":"panels","type":"BDB091F4-E57F-11D3-B5CC-0050E4603277"})").value(u"panels"_s),
      1);
  EXPECT_EQ(
      ask(*process, R"({"do":"facts"})").keys().join(u' '),
      u"active_directory addressStringRef folderList hasInited kesto_print_system mfpURL modelStringRef "
      "panelKind panelName ppdEncoding prefHoldButtonFlag preferenceName presetHoldButtonFlag shouldHide "
      "shouldShowHelp supportedPPDOptionKeys systemEncoding useConstraintHandling"_s);
  EXPECT_EQ(ask(*process, R"({"do":"quit"})"), QJsonObject());
  EXPECT_EQ(process->code(), 0);
}

TEST_F(PanelProcess, StartsFromTheSettingsOfAFile) {
  m_folder.write(u"settings"_s, R"({"kesto.print.PrintSettings.jobSuspend":"3","of.another":""})");
  const auto process = startPanel({u"--settings"_s, m_folder.path(u"settings"_s)});
  ask(*process, R"({"do":"restore"})");
  const QJsonValue controls = ask(*process, R"({"do":"controls"})")[u"controls"_s];
  EXPECT_EQ(controls[u"suspendMatrix"_s][u"selectedRow"_s], 2);
  ask(*process, R"({"do":"save"})");
  const QJsonValue saved = ask(*process, R"({"do":"settings"})")[u"settings"_s];
  EXPECT_EQ(saved[u"of.another"_s], QString(u""_s));
  EXPECT_EQ(saved[u"kesto.print.PrintSettings.jobSuspend"_s], u"3"_s);
  process->closeWriteChannel();
  EXPECT_EQ(process->code(), 0);
}

#ifndef NDEBUG
TEST_F(PanelProcess, ItsTraceShowsCallsAndNoSecret) {
  qputenv("QT_LOGGING_RULES", "kesto.pde.debug=true");
  const auto process = startPanel();
  qunsetenv("QT_LOGGING_RULES");
  for (const char* command : {R"({"do":"restore"})", R"({"do":"click","control":"retentionCheckBox"})",
                              R"({"do":"type","control":"suspendKeyEditText","text":"47114711"})",
                              R"({"do":"type","control":"loginNameEditText","text":"jdoe-of-accounts"})",
                              R"({"do":"type","control":"passwordEditText","text":"open-sesame"})",
                              R"({"do":"click","control":"loginNameButton"})", R"({"do":"save"})",
                              R"({"do":"shouldPrint"})", R"({"do":"summary"})", R"({"do":"quit"})"}) {
    EXPECT_FALSE(ask(*process, command).contains(u"error")) << command;
  }
  EXPECT_EQ(process->code(), 0);
  const QString trace = QString::fromUtf8(process->log());
  for (const auto& line :
       {u"enter initWithCallback:(HostCallback, 0x"_s, u"note Constraint Handling Available: YES"_s,
        u"leave initWithCallback:=id(self)"_s})
    EXPECT_TRUE(trace.contains(line)) << line << " is not in\n" << trace;
  // There is one panel, which all calls name except those of the entry object.
  QSet<QString> objects;
  for (const QString& line : trace.split(u'\n')) {
    if (line.startsWith(u"kesto.pde: ") && !line.contains(u"PDEPanelsForType") &&
        !line.contains(u"initWithBundle"))
      objects.insert(line.section(u' ', 1, 1));
  }
  EXPECT_EQ(objects.size(), 1) << trace;
  for (const auto& secret : {u"47114711"_s, u"jdoe-of"_s, u"open-sesame"_s})
    EXPECT_FALSE(trace.contains(secret)) << trace;
}
#endif

}  // namespace
}  // namespace kesto::test
