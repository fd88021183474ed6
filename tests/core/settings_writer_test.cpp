#include "settings/settings_writer.h"

#include "tests/support/test_panel.h"

namespace kesto {
namespace {

using namespace test;

// Sealed codes by openssl enc -aes-128-ecb, digests by md5sum, the spool time of the test's clock by xxd.
const QString spoolTime = u"spoolTime=5468752C2032392046656220323032342030373A30383A3039202D30333330"_s;

class SettingsWriterTest : public testing::Test {
 protected:
  SettingsWriterTest() { panel.state.hasInited = true; }
  void write() { panel.writer.writeNonPPDSettingsToPrintSettings(); }
  void setName(const Text& name, const Text& text) { field(*panel.view, name).setStringValue(text); }

  PanelGroups panel;
  TestHost& host = panel.host;
};

TEST_F(SettingsWriterTest, AnEmptyPanelWritesItsChoicesAlone) {
  const QString stale =
      u"folderPassword2=47 folderPath2=42 folderPath3=43 jobName31=45 userName=44 userNumber=46"_s;
  host.put(stale);
  panel.state.hasInited = false;
  write();
  EXPECT_EQ(host.all(), stale) << "written before the controls are ready";
  panel.state.hasInited = true;
  write();
  EXPECT_EQ(host.all(), u"Authentication=1 filing=0 holdButton=0 jobSuspend=0 "_s + spoolTime);
  host.settings.reset();
  write();
}

// One job, written again after each change.
TEST_F(SettingsWriterTest, ControlsBecomeKeys) {
  for (const auto& [controls, settings] :
       Cases{{"retention=1 hold=0", "jobSuspend=2 filing=0 jobSuspendKey= jobSuspend2Key="},
             {"hold=1 suspendKey=123456",
              "jobSuspend=1 jobSuspendKey=5a9a398d3592cd5165361b093f991bd6 "
              "jobSuspend2Key=BDD2763479D559E89A55CC4BB3E1E136"},
             {"hold=2 suspendKey=123456789",
              "jobSuspend=3 jobSuspendKey=bab005ea7df521b54c51d50d0cde291d "
              "jobSuspend2Key=B70A9DC22C0094FFBCA920D972EC3098"},
             {"suspendKey=7 who=1",
              "jobSuspendKey=bd5fb32cb206a0cd8c93b584b5df8a20 "
              "jobSuspend2Key=898A6A33D5CDC2286B1F5D0458FBA991 Authentication=0"},
             {"retention=0 suspendKey=",
              "jobSuspend=0 jobSuspendKey=bd5fb32cb206a0cd8c93b584b5df8a20 "
              "jobSuspend2Key=898A6A33D5CDC2286B1F5D0458FBA991"},
             {"userNumber=42", "userNumber=00042 userNumber2=D4C886221F974CE34F262182C082702D"},
             {"userNumber=123456789 accountNumber=1234567",
              "userNumber=12345678 userNumber2=B70A9DC22C0094FFBCA920D972EC3098 accountNumber=12345 "
              "accountNumber2=14B7EEEE335A1C6F80913C213FC87AC6"},
             {"userNumber= folderPassword=1234",
              "userNumber= userNumber2= folderPassword=4d13731819794f6d52135eae89332c29 "
              "folderPassword2=3F3FA6A226B041DE0CA8F37F0E03543E"},
             {"suspendKeyButton=1", "holdButton=1"},
             {"loginNameButton=1 passwordButton=1", "holdButton=7"},
             {"userNameButton=1 jobNameButton=1 folderPasswordButton=1", "holdButton=63"},
             {"userNumberButton=1 accountNumberButton=1 folderNameButton=1", "holdButton=511"},
             {"loginName=jdoe password=secret", "loginName11= loginName12= password2="}}) {
    SCOPED_TRACE(controls);
    setControls(*panel.view, controls);
    write();
    host.expect(settings + u' ' + spoolTime);
    panel.platform.clock = panel.platform.clock.addSecs(3600);  // only the first write's moment counts
  }
}

TEST_F(SettingsWriterTest, NamesInTheThreeFormsOfEachSystemEncoding) {
  using enum TextEncoding;
  using Case = std::tuple<TextEncoding, Text, Text>;
  for (const auto& [encoding, name, settings] :
       {Case{MacRoman, "Aé", "userName=418E userName2=41E9 userName31=41C3A9"},
        Case{MacRoman, "é漢é", "userName=8E userName2=E920E9 userName31=C3A9E6BCA2C3A9"},
        Case{MacRoman, "漢é", "userName=8ABF20 userName2=20E9 userName31=E6BCA2C3A9"},
        Case{MacRoman, "a\"\x01\x08\t\n\x1F!c",
             "userName=61220108090A1F2163 userName2=612020200920202163 userName31=612020200920202163"},
        Case{MacRoman, "😀", "userName=20 userName2=20 userName31=F09F9880"},
        Case{MacRoman, u"x"_s + QChar(0xD83D), "userName=78 userName2=7820 userName31=7820"},
        Case{MacJapanese, "漢\"é", "userName=8ABF22 userName2=8ABF20 userName31=E6BCA220C3A9"},
        Case{MacJapanese, "é漢", "userName=208ABF userName2=208ABF userName31=C3A9E6BCA2"},
        Case{MacTraditionalChinese, "漢", "userName=BA7E userName2=BA7E userName31=E6BCA2"},
        Case{MacKorean, "한é", "userName=C7D1 userName2=C7D1 userName31=ED959CC3A9"},
        Case{MacSimplifiedChinese, "汉", "userName=BABA userName2=BABA userName31=E6B189"},
        Case{MacGreek, "Ω", "userName=BF userName2=20 userName31=CEA9"},
        Case{MacCyrillic, "Ж", "userName=86 userName2=20 userName31=D096"},
        Case{MacCentralEurope, "Ł", "userName=FC userName2=20 userName31=C581"},
        Case{MacTurkish, "ğ", "userName=DB userName2=20 userName31=C49F"},
        Case{MacRoman, "", "userName= userName2= userName31="}}) {
    SCOPED_TRACE(name);
    panel.state.systemEncoding = encoding;
    setName("userName", name);
    write();
    host.expect(settings);
  }
}

TEST_F(SettingsWriterTest, NamesAreCutByCharactersAndBytes) {
  const auto hex = [](const char* byte, int count) { return QString::fromLatin1(byte).repeated(count); };
  setName("userName", QString(300, u'u'));
  setName("jobName", QString(300, u'j'));
  write();
  host.expect(u"userName=%1 userName2=%1 userName31=%2 userName32=%3 userName33="_s.arg(
      hex("75", 32), hex("75", 127), hex("75", 65)));
  host.expect(u"jobName=%1 jobName2=%1 jobName31=%2 jobName32=%2 jobName33=%3 jobName34="_s.arg(
      hex("6A", 80), hex("6A", 127), hex("6A", 46)));

  setName("userName", QString(100, u'漢'));
  setName("jobName", u"😀"_s.repeated(200));
  panel.state.systemEncoding = TextEncoding::MacJapanese;
  write();
  host.expect(u"userName="_s + hex("8ABF", 16));
  EXPECT_EQ(host.value("userName32").size(), 2 * 192 - 254);
  EXPECT_EQ(host.value("jobName34").size(), 2 * 480 - 3 * 254) << "120 pairs are 480 bytes";

  panel.state.active_directory = true;
  write();
  host.expect("userName= userName2= userName31=");
  EXPECT_FALSE(host.value("userName32").isEmpty()) << "no piece but the first is removed";
  EXPECT_FALSE(host.value("jobName").isEmpty());
}

TEST_F(SettingsWriterTest, AStoredSpoolTimeIsKeptUnlessItCannotBeOne) {
  constexpr char ofClock[] = "bd5fb32cb206a0cd8c93b584b5df8a20";
  using Case = std::tuple<Text, bool, Text>;
  for (const auto& [stored, isKept, digest] :
       {Case{"4D6F6E2C203031204A616E20323032342030303A30303A3030202B30303030", true,
             "b5028734042a8f708f0b58725cfacd6f"},
        Case{"", true, "3354cbe0f7e1dbc43916af419085f9c4"}, Case{"4D6", false, ofClock},
        Case{u"30"_s.repeated(64), false, ofClock}, Case{"é0", false, ofClock},
        Case{u"30"_s + QString(126, QChar(0)), false, ofClock}}) {
    host.put("spoolTime", stored);
    setControls(*panel.view, "retention=1 suspendKey=7");
    write();
    EXPECT_EQ(host.value("spoolTime"), isKept ? stored : Text(spoolTime.section(u'=', 1)));
    EXPECT_EQ(host.value("jobSuspendKey"), digest) << stored;
  }
}

// The filing keys of a model with a hard disk, by its layout and its choices, when its list ends with the
// folder of item 4.
TEST(SettingsWriterWithHardDisk, FilingModeAndFolder) {
  using Case = std::tuple<Text, Text, Text>;
  for (const auto& [layout, controls, settings] :
       {Case{"JobControl6", "retention=0 folder=2", "filing=0 folderPath=00"},
        Case{"JobControl6", "folder=0 item=4", "filing=1 folderPath=00"},
        Case{"JobControl6", "folder=1 item=3", "filing=2 folderPath=2A7374616E64617264"},
        Case{"JobControl6", "folder=2 folderName=b", "filing=3 folderPath=62 folderPath2=62 folderPath31=62"},
        Case{"JobControl6", "folder=2 item=3 folderName=b", "filing=3 folderPath=416B74656E"},
        Case{"JobControl6", "folder=2 folderName=", "filing=3 folderPath= folderPath31="},
        Case{"JobControl6", "folder=2 item=5", "filing=3 folderPath=00 folderPath2="},
        Case{"JobControl5", "item=0", "filing=1 folderPath=00"},
        Case{"JobControl5", "item=1", "filing=2 folderPath=2A7374616E64617264"},
        Case{"JobControl5", "item=4",
             "filing=3 folderPath=5A776569 folderPath2=5A776569 folderPath31=5A776569"},
        Case{"JobControl5", "item=4 jobName=no-list", "filing=3 folderPath2= folderPath=2A7374616E64617264"},
        Case{"JobControl4", "folder=2 folderName=b", "filing=3 folderPath=62 jobSuspend=2"}}) {
    SCOPED_TRACE(layout + u": "_s + controls);
    PanelGroups panel(layout);
    panel.state.hasInited = panel.model.hasHardDisk = true;
    panel.state.folderList = {{.name = u"Akten"_s}, {.name = u"Zwei"_s}, {.name = u"Drei"_s}};
    panel.folderPopup.makeFolderPopup();
    panel.state.folderList->pop_back();
    if (controls.contains(u"no-list"_s)) panel.state.folderList.reset();
    panel.host.put("folderPath=00");
    setControls(*panel.view, u"retention=1 "_s + controls);
    panel.writer.writeNonPPDSettingsToPrintSettings();
    panel.host.expect(settings);
  }
}

TEST(SettingsWriterWithHardDisk, FolderNamesConvertWholeOrNotAtAll) {
  using enum TextEncoding;
  // The characters stored in folderPath, folderPath2 and the pieces of folderPath3; 0 for none.
  using Case = std::tuple<TextEncoding, Text, std::vector<qsizetype>>;
  for (const auto& [encoding, name, expected] :
       {Case{MacRoman, "漢", {4, 4, 6}}, Case{MacRoman, "한", {0, 0, 6}}, Case{MacRoman, "é€Ж", {0, 0, 14}},
        Case{MacCyrillic, "Ж", {2, 4, 4}}, Case{MacJapanese, "é", {0, 0, 4}},
        Case{MacJapanese, "漢", {4, 4, 6}}, Case{MacRoman, "a\"\n", {6, 6, 6}},
        Case{MacRoman, u"a"_s + QChar(0xD83D), {0, 0}},
        Case{MacRoman, QString(774, u'a'), {1548, 1548, 254, 254, 254, 254, 254, 254, 24}},
        Case{MacRoman, QString(775, u'a'), {0, 0}}, Case{MacRoman, QString(388, u'é'), {776, 776}},
        Case{MacRoman, QString(2000, u'a'), {0, 0}}}) {
    PanelGroups panel;
    panel.state.hasInited = panel.model.hasHardDisk = true;
    panel.state.systemEncoding = encoding;
    setControls(*panel.view, "retention=1 folder=2");
    field(*panel.view, "folderName").setStringValue(name);
    panel.writer.writeNonPPDSettingsToPrintSettings();
    std::vector sizes{panel.host.value("folderPath").size(), panel.host.value("folderPath2").size()};
    while (const auto size = panel.host.value(u"folderPath3%1"_s.arg(sizes.size() - 1)).size())
      sizes.push_back(size);
    EXPECT_EQ(sizes, expected) << name;
  }
}

TEST(SettingsWriterOfOtherModels, TheControllerAsksItsCapabilities) {
  TestPlatform platform;
  TestPanel panel(platform);
  panel.restore();
  EXPECT_FALSE(panel.controller->filesDocuments());
  panel.controller->hasHardDisk = panel.controller->isVelko = true;
  EXPECT_TRUE(panel.controller->filesDocuments());
  setControls(panel.view(), "retention=1 hold=1 folder=0 suspendKey=7");
  panel.save();
  panel.host.expect("filing=1 jobSuspend=0 jobSuspendKey= jobSuspend2Key=");
  panel.controller->isVelko = false;
  panel.save();
  panel.host.expect("filing=1 jobSuspend=1 jobSuspendKey=bd5fb32cb206a0cd8c93b584b5df8a20");
}

}  // namespace
}  // namespace kesto
