#include "plugin/confirmation.h"

#include "tests/support/test_panel.h"

namespace kesto {
namespace {

using namespace test;

const QByteArray printSystem = ppdOfModel + "*ARKestoPrintSystem: \"True\"\n";

TEST(ShouldPrint, AsksForTheEntryOfTheChoiceInForce) {
  using Case = std::tuple<Text, Text, bool>;
  for (const auto& [controls, operation, isEntered] :
       {Case{"", "", false}, Case{"userNumber=4", "", false}, Case{"loginName=jdoe", "", true},
        Case{"loginName=jdoe", "loginNameButton", true}, Case{"", "loginNameButton", false},
        Case{"loginName=jdoe", "authenticationMatrix=1", false},
        Case{"userNumber=4", "authenticationMatrix=1", true},
        Case{"userNumber=4 loginNameButton=1", "authenticationMatrix=1", true}}) {
    SCOPED_TRACE(controls + u" "_s + operation);
    for (const bool isAsked : {true, false}) {
      TestPlatform platform;
      TestPanel panel(platform, isAsked ? printSystem : ppdOfModel);
      panel.restore();
      setControls(panel.view(), controls);
      EXPECT_TRUE(operation.isEmpty() || operate(panel.view(), operation));
      const auto before = platform.defaults.domains;
      const bool prints = isEntered || !isAsked;
      EXPECT_EQ(panel.controller->shouldPrint(), prints);
      EXPECT_EQ(platform.alerts.size(), prints ? 0U : 1U);
      EXPECT_EQ(platform.defaults.domains != before, prints) << "a refused job is not remembered";
    }
  }
}

TEST(ShouldPrint, TheAlertInEachLanguageUntilTheEntryIsThere) {
  const QStringList english{
      u"Information"_s, u"Please confirm the following setting items.\nLogin Name\nUser Number"_s, u"OK"_s};
  const QStringList german{
      u"Hinweis"_s, u"Bitte prüfen Sie die folgenden Einstellungen.\nAnmeldename\nBenutzernummer"_s, u"OK"_s};
  for (const auto& [language, alert] :
       {std::pair(QLocale::English, english), std::pair(QLocale::German, german)}) {
    TestPlatform platform(language);
    TestPanel panel(platform, printSystem);
    EXPECT_FALSE(panel.controller->shouldPrint());
    EXPECT_FALSE(panel.controller->shouldPrint());
    EXPECT_EQ(platform.alerts, (std::vector{alert, alert}));
    EXPECT_TRUE(operate(panel.view(), "loginName=jdoe"));
    EXPECT_TRUE(panel.controller->shouldPrint());
  }
}

TEST(ShouldPrint, RestoresAndSavesWhatNeverWas) {
  TestPlatform platform;
  TestPanel panel(platform);
  panel.host.put("jobSuspend=1 userName=41");
  EXPECT_TRUE(panel.controller->shouldPrint());
  panel.host.expect("jobSuspend=1 userName=41 userName2=41 holdButton=0");
  setControls(panel.view(), "userName=later");
  EXPECT_TRUE(panel.controller->shouldPrint());
  expectControls(panel.view(), "userName=later");
  panel.host.expect("userName=41");
  EXPECT_EQ(platform.remembered().value(u"user name"_s), u"later"_s);
}

TEST(ShouldPrint, WithoutPrintSettingsNothingIsRemembered) {
  TestPlatform platform;
  TestPanel panel(platform);
  panel.host.settings.reset();
  const auto before = platform.defaults.domains;
  EXPECT_TRUE(panel.controller->shouldPrint());
  EXPECT_EQ(platform.defaults.domains, before);
}

TEST(ShouldPrint, AnEntryWithoutAControlIsNotAskedFor) {
  PanelGroups panel;
  panel.state.outlets.loginNameEditText = nullptr;
  EXPECT_TRUE(isAuthenticationEntered(panel.state));
  panel.state.outlets.authenticationRadioButton = nullptr;
  EXPECT_FALSE(isAuthenticationEntered(panel.state));
  panel.state.outlets.userNumberEditText = nullptr;
  EXPECT_TRUE(isAuthenticationEntered(panel.state));
}

// The pairs as "label=value", sorted, with "_" for blanks.
QString linesOf(const QMap<QString, QString>& summary) {
  QStringList lines;
  for (auto it = summary.begin(); it != summary.end(); ++it)
    lines.append(it.key() + u'=' + it.value());
  return lines.join(u'/').replace(u' ', u'_');
}

TEST(Summary, TheMainChoices) {
  TestPlatform platform;
  TestPanel panel(platform);
  EXPECT_EQ(linesOf(panel.controller->summaryInfo()), u""_s) << "before the controls are ready";
  panel.restore();
  setControls(panel.view(), "userName=jane jobName=report");
  EXPECT_EQ(linesOf(panel.controller->summaryInfo()), u"Job_Name=report/Retention=Off/User_Name=jane"_s);
  setControls(panel.view(),
              "retentionCheckBox=1 folderSelectionPopup=0 suspendMatrix=2 userNameStaticText=::A:B:");
  EXPECT_EQ(linesOf(panel.controller->summaryInfo()),
            u"A:B=jane/Folder=Quick_File/Hold_Mode=Sample_Print/Job_Name=report/Retention=On"_s);
}

TEST(Summary, UnderDirectoryOperationTheJobNameAlone) {
  TestPlatform platform;
  TestPanel panel(platform, ppdOfModel + "*ARActiveDirectory: \"True\"\n");
  panel.host.settings->setJobName(u"report"_s);
  panel.restore();
  EXPECT_EQ(linesOf(panel.controller->summaryInfo()), u"Job_Name=report"_s);
}

TEST(Summary, InGermanAndWithoutAPopUp) {
  TestPlatform platform(QLocale::German);
  TestPanel panel(platform);
  panel.controller->uiMode = 4;
  panel.host.put("jobSuspend=1 userName=41");
  panel.restore();
  EXPECT_EQ(linesOf(panel.controller->summaryInfo()),
            u"Auftragsname=/Benutzername=A/Haltemodus=Nach_dem_Druck_halten/Zurückhalten=Ein"_s);
}

TEST(Summary, WhatIsAbsentIsLeftOut) {
  PanelGroups panel;
  panel.state.hasInited = true;
  panel.state.outlets.jobNameStaticText = nullptr;
  panel.state.outlets.userNameEditText = nullptr;
  setControls(*panel.view, "retentionCheckBox=1");
  panel.state.outlets.folderSelectionPopup->setItems({});
  EXPECT_EQ(linesOf(summaryOf(panel.state)), u"Hold_Mode=Hold_Only/Retention=On"_s);
}

}  // namespace
}  // namespace kesto
