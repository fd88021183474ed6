// The scripted panel as a process of its own: its options, its answers, its log.
#include "tests/support/demo_process.h"
#include "tests/support/test_host.h"

namespace kesto::test {
namespace {

// A home without preferences, and a PPD.
class PanelProcess : public testing::Test {
 protected:
  std::unique_ptr<DemoProcess> startPanel(const QString& more = {}) const {
    return std::make_unique<DemoProcess>(
        m_folder, u"kesto-panel --queue Office --device-uri ipp://x --ppd %1 "_s.arg(m_ppd.path()) + more);
  }

  ScratchFolder m_folder;
  PpdFixture m_ppd;
};

TEST_F(PanelProcess, BadOptionsAndBadFilesEndIt) {
  m_folder.write(u"damaged"_s,
                 "*PPD-Adobe: \"4.3\"\n*OpenUI *PageSize: PickOne\nno keyword\n*ModelName \"x\n");
  m_folder.write(u"numbers"_s, R"({"a":"1","b":2})");
  using Case = std::tuple<Text, int, Text>;  // "%1" is the folder
  for (const auto& [arguments, code, message] :
       {Case{"--no-such", 2, "--no-such"}, Case{"--ppd", 2, "--ppd"}, Case{"stray", 2, "unexpected argument"},
        Case{"--ppd %1/damaged", 1, "%1/damaged: line 3: "}, Case{"--ppd %1", 1, "%1: a folder"},
        Case{"--ppd /no/such.ppd", 1, "/no/such.ppd: "},
        Case{"--settings %1/damaged", 1, "%1/damaged: not a JSON object"},
        Case{"--settings %1/numbers", 1, "%1/numbers: the value of b is not a string"},
        Case{"--settings /no/such", 1, "/no/such: "}}) {
    DemoProcess process(m_folder, u"kesto-panel "_s + arguments);
    process.closeWriteChannel();
    EXPECT_EQ(process.code(), code) << arguments;
    const QString fault = QString(message).replace(u"%1"_s, m_folder.path(u""_s));
    EXPECT_TRUE(process.log().contains(fault.toUtf8())) << process.log();
  }
}

TEST_F(PanelProcess, BadLinesAreAnsweredAndTheNextIsHeard) {
  m_folder.write(u"settings"_s, R"({"kesto.print.PrintSettings.jobSuspend":"3","of.another":""})");
  const auto process = startPanel(u"--settings %1/settings"_s);
  EXPECT_EQ(process->ask(R"({"do":"controls"})"),
            (QJsonObject{{u"controls"_s, QJsonObject()}, {u"firstResponder"_s, QJsonValue::Null}}));
  EXPECT_EQ(process->ask(R"({"do":"show"})"), (QJsonObject{{u"view"_s, true}}));
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
    EXPECT_TRUE(process->ask(line).contains(u"error")) << line;
  }
  EXPECT_EQ(
      process->ask(R"({"do":"panels","type":"BDB091F4-E57F-11D3-B5CC-0050E4603277"})").value(u"panels"_s), 1);
  EXPECT_EQ(
      process->ask(R"({"do":"facts"})").keys().join(u' '),
      u"active_directory addressStringRef folderList hasInited kesto_print_system mfpURL modelStringRef "
      "panelKind panelName ppdEncoding prefHoldButtonFlag preferenceName presetHoldButtonFlag shouldHide "
      "shouldShowHelp supportedPPDOptionKeys systemEncoding useConstraintHandling"_s);
  process->ask(R"({"do":"restore"})");
  EXPECT_EQ(process->ask(R"({"do":"controls"})")[u"controls"][u"suspendMatrix"_s][u"selectedRow"_s], 2);
  process->ask(R"({"do":"save"})");
  const QJsonValue saved = process->ask(R"({"do":"settings"})")[u"settings"];
  EXPECT_EQ(saved[u"of.another"_s], QString(u""_s));
  EXPECT_EQ(saved[u"kesto.print.PrintSettings.jobSuspend"_s], u"3"_s);
  EXPECT_EQ(process->ask(R"({"do":"quit"})"), QJsonObject());
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
    EXPECT_FALSE(process->ask(command).contains(u"error")) << command;
  }
  EXPECT_EQ(process->code(), 0);
  const QString trace = QString::fromUtf8(process->log());
  for (const auto& line :
       {u"enter initWithCallback:(HostCallback, 0x"_s, u"note Constraint Handling Available: YES"_s,
        u"leave initWithCallback:=id(self)"_s})
    EXPECT_TRUE(trace.contains(line)) << line << " is not in\n" << trace;
  for (const auto& secret : {u"47114711"_s, u"jdoe-of"_s, u"open-sesame"_s})
    EXPECT_FALSE(trace.contains(secret)) << trace;
}
#endif

}  // namespace
}  // namespace kesto::test
