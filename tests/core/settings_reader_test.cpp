#include "settings/settings_reader.h"

#include "tests/support/availability.h"
#include "tests/support/test_panel.h"

namespace kesto {
namespace {

using namespace test;

class SettingsReaderTest : public testing::Test {
 protected:
  SettingsReaderTest() {
    panel.state.folderList = {
        {.name = u"Akten"_s, .password = true}, {.name = u"akten"_s}, {.name = u"Zwei"_s}};
  }
  void read() { panel.reader.getNonPPDSettingsFromPrintSettings(); }

  // Print settings, and the controls of a new panel that has read them.
  void expectCases(Cases cases) {
    for (const auto& [settings, controls] : cases) {
      SCOPED_TRACE(settings);
      PanelGroups fresh;
      fresh.state.folderList = panel.state.folderList;
      fresh.state.active_directory = panel.state.active_directory;
      fresh.host.put(settings);
      fresh.reader.getNonPPDSettingsFromPrintSettings();
      expectControls(*fresh.view, controls);
      if (valueOf(*fresh.view, "who") == u"0") expectRulesHold(*fresh.view, {firstFolderItem});
    }
  }

  PanelGroups panel;
  TestHost& host = panel.host;
};

TEST_F(SettingsReaderTest, ChoicesAndDefaults) {
  expectCases({Pair{"", "retention=0 hold=0 suspendKey= suspendKeyButton=0 who=0 focus="},
               Pair{"", "item=1 folder=1 userName=Jane_Doe jobName="},
               Pair{"jobSuspend=2", "retention=1 hold=0"}, Pair{"jobSuspend=1", "retention=1 hold=1"},
               Pair{"jobSuspend=3x", "retention=1 hold=2"}, Pair{"jobSuspend=0", "retention=0 hold=0"},
               Pair{"jobSuspend=\u0663", "retention=0"}, Pair{"Authentication=0", "who=1 focus="},
               Pair{"Authentication=", "who=1"}, Pair{"jobSuspend=1 filing=1", "item=0 folder=0 hold=1"},
               Pair{"jobSuspend=3 filing=1", "item=0 folder=0 hold=1"},
               Pair{"jobSuspend=0 filing=1", "item=1 folder=1"},
               Pair{"jobSuspend=1 filing=3", "item=1 folder=1"},
               Pair{"jobSuspend=1 filing=3 folderPath=5A576549",
                    "item=5 folder=2 folderName=ZWeI focus=folderPassword"},
               Pair{"jobSuspend=1 filing=3 folderPath=616B74656E", "item=3 focus=folderPassword"},
               Pair{"jobSuspend=1 filing=3 folderPath=8E", "item=1 folder=2 folderName=\u00E9"},
               Pair{"jobSuspend=0 filing=3 folderPath=5A576549", "folder=2 folderName="},
               Pair{"jobSuspend=0 filing=3 folderPath=5A576549 holdButton=256",
                    "folderName=ZWeI folderNameButton=1"}});
}

// Sealed by openssl enc -aes-128-ecb.
TEST_F(SettingsReaderTest, SealedFields) {
  expectCases(
      {{"jobSuspend=2 jobSuspend2Key=898A6A33D5CDC2286B1F5D0458FBA991", "suspendKey=7 suspendKeyButton=0"},
       {"jobSuspend=2 jobSuspend2Key=B70A9DC22C0094FFBCA920D972EC3098 holdButton=1",
        "suspendKey=12345678 suspendKeyButton=1"},
       {"jobSuspend=2 jobSuspend2Key=AF545963687A84AFEC6B471B38AEA7CC holdButton=1",
        "suspendKey= suspendKeyButton=1"},
       {"jobSuspend=0 jobSuspend2Key=898A6A33D5CDC2286B1F5D0458FBA991", "suspendKey="},
       {"jobSuspend=2 jobSuspend2Key= holdButton=1", "suspendKey= suspendKeyButton=1"},
       {"jobSuspend=2 jobSuspend2Key=898A6A33D5CDC2286B1F5D0458FBA9", "suspendKey="},
       {"jobSuspend=2 jobSuspend2Key=898A6A33D5CDC2286B1F5D0458FBA991FF", "suspendKey=7"},
       {"userNumber2=AF545963687A84AFEC6B471B38AEA7CC holdButton=64 "
        "accountNumber2=BDD2763479D559E89A55CC4BB3E1E136",
        "userNumber=123456789 userNumberButton=1 accountNumber="},
       {"userNumber2=C604CF6E588747093B725502E4C1A943 holdButton=128 "
        "accountNumber2=14B7EEEE335A1C6F80913C213FC87AC6",
        "userNumber=0123456789abcdef userNumberButton=0 accountNumber=12345 accountNumberButton=1"},
       {"jobSuspend=2 folderPassword2=3F3FA6A226B041DE0CA8F37F0E03543E holdButton=36 "
        "password2=42A8039B150545E873199E0B2A645FB300000000000000000000000000000000",
        "folderPassword=1234 folderPasswordButton=1 password=secret passwordButton=1"},
       {"jobSuspend=2 folderPassword2=AF545963687A84AFEC6B471B38AEA7CC "
        "password2=C604CF6E588747093B725502E4C1A94300000000000000000000000000000000",
        "folderPassword= password=0123456789abcdef"},
       {"password2=C604CF6E588747093B725502E4C1A943A490E3E9BA0E3E79B7A9E0E91EC7F553",
        "password=0123456789abcdefgh12"},
       {"password2=42A8039B150545E873199E0B2A645FB3", "password="}});
}

TEST_F(SettingsReaderTest, NamesAndLoginNames) {
  expectCases(
      {{"userName=418E jobName=6A holdButton=24",
        "userName=A\u00E9 userNameButton=1 jobName=j jobNameButton=1"},
       {"userName=00414243", "userName=Jane_Doe"},
       {"loginName11=J715aTy6C1tJPaVj loginName12=4yTI/Q==", "loginName=jdoe loginNameButton=0"},
       {"loginName11=J715aTy6C1tJPaVj loginName12=4yTI/Q== holdButton=2", "loginName=•••• loginNameButton=1"},
       {"loginName11=J715aTy6C1tJPaVj4yTI/Q==", "loginName=jdoe"},
       {"loginName12=J715aTy6C1tJPaVj4yTI/Q==", "loginName="},
       {"loginName11=!", "loginName="}});
  host.settings->setJobName(u"report"_s);
  panel.platform.fullName = QString();
  setControls(*panel.view, "userName=kept");
  read();
  host.settings.reset();
  read();
  expectControls(*panel.view, "userName=kept jobName=report");

  panel.state.active_directory = true;
  expectCases({{"jobSuspend=0", "retention=1 hold=0 userName=jdoe loginName=jdoe"},
               {"jobSuspend=3 userName=41", "hold=0 userName=A"},
               {"loginName12=J715aTy6C1tJPaVj4yTI/Q== holdButton=2", "loginName=•••• loginNameButton=1"},
               {"loginName11=s3bezgBn+w9AsV4L loginName12=UZX8fw==", "loginName=jdoe1"}});
}

TEST_F(SettingsReaderTest, TheHoldMaskIsTheLeadingInteger) {
  panel.state.presetHoldButtonFlag = 3;
  read();
  EXPECT_EQ(panel.state.presetHoldButtonFlag, 3) << "kept while the key is absent";
  using Case = std::pair<Text, int>;
  for (const auto& [text, mask] :
       {Case{" +17 4", 17}, Case{"-1", -1}, Case{"511x", 511}, Case{"x", 0}, Case{"", 0}, Case{"\u0661", 0},
        Case{"99999999999999999999", 2147483647}, Case{"-99999999999999999999", -2147483647 - 1}}) {
    host.put("holdButton", text);
    read();
    EXPECT_EQ(panel.state.presetHoldButtonFlag, mask) << text;
  }
}

TEST_F(SettingsReaderTest, ARememberedValueWinsOnce) {
  host.put(
      "jobSuspend=2 jobSuspend2Key=898A6A33D5CDC2286B1F5D0458FBA991 userName=41 filing=3 "
      "folderPath=5A776569");
  RememberedValues& remembered = panel.state.remembered;
  remembered.prefSuspendKeyStringRef = u"BDD2763479D559E89A55CC4BB3E1E136"_s;
  remembered.prefLoginNameStringRef = u"J715aTy6C1tJPaVj4yTI/Q=="_s;
  remembered.prefPasswordStringRef = u"42A8039B150545E873199E0B2A645FB3"_s + u"0"_s.repeated(32);
  remembered.prefUserNameStringRef = u"held-name"_s;
  remembered.prefFolderNameStringRef = u"held-folder"_s;
  remembered.prefAuthenticationBooleanRef = false;
  panel.state.prefHoldButtonFlag = 511;
  read();
  EXPECT_EQ(panel.state.prefHoldButtonFlag, 0);
  EXPECT_EQ(panel.state.loginNameStringRef, u"jdoe"_s);
  // The last two are held without a remembered value: the button is on, the value comes from the job.
  expectControls(*panel.view,
                 "suspendKey=123456 suspendKeyButton=1 loginName=•••• password=secret passwordButton=1 "
                 "userName=held-name folderName=held-folder folder=2 folderNameButton=1 who=1 jobName= "
                 "jobNameButton=1 userNumber= userNumberButton=1");
  read();
  expectControls(*panel.view,
                 "suspendKey=7 suspendKeyButton=0 loginName= loginNameButton=0 password= passwordButton=0 "
                 "userName=A userNameButton=0 folderName=Zwei folderNameButton=0 who=0");
  EXPECT_TRUE(panel.state.loginNameStringRef.isNull());
}

TEST_F(SettingsReaderTest, BitsThatConcernMoreThanTheirField) {
  for (const int bit : {1, 2, 4, 8, 16, 32, 64, 128, 256}) {
    for (const char* layout : {"JobControl5", "JobControl6"}) {
      PanelGroups fresh(layout);
      fresh.state.remembered.prefAuthenticationBooleanRef = false;
      fresh.state.prefHoldButtonFlag = bit;
      fresh.reader.getNonPPDSettingsFromPrintSettings();
      const bool isOfAuthentication = bit == 2 || bit == 4 || bit == 64;
      EXPECT_EQ(matrix(*fresh.view, "who").selectedRow(), isOfAuthentication ? 1 : 0) << bit;
      const bool isLeft = bit == 256 && fresh.state.outlets.folderSelectionMatrix == nullptr;
      EXPECT_EQ(fresh.state.prefHoldButtonFlag, isLeft ? bit : 0)
          << "the folder name's bit waits for its matrix";
    }
  }
}

TEST_F(SettingsReaderTest, TheLongestPathAndName) {
  for (const auto& [bytes, isRead] : {std::pair(127, true), std::pair(128, false)}) {
    host.put(u"jobSuspend=1 filing=3 folderPath=%1 jobName=%1"_s.arg(u"61"_s.repeated(bytes)));
    read();
    EXPECT_EQ(matrix(*panel.view, "folder").selectedRow(), isRead ? 2 : 1);
    EXPECT_EQ(field(*panel.view, "jobName").stringValue().size(), isRead ? bytes : 0);
  }
}

TEST_F(SettingsReaderTest, FoldersThatThePopUpDoesNotHaveAreOffered) {
  for (const auto& [name, settings] : Cases{{"Zwei", "5A776569"}, {"Drei", "44726569"}}) {
    panel.state.folderList = {{.name = name}};
    host.put(u"filing=3 folderPath="_s + settings);
    read();
    EXPECT_EQ(popUp(*panel.view, "item").selectedItem()->title, name);
  }
}

}  // namespace
}  // namespace kesto
