// What the dialog starts from, and what a client of the portal gets back for a choice.
#include <QtCore/QJsonObject>

#include "hosts/channel/portal_settings.h"
#include "tests/support/printing.h"

namespace kesto::test {
namespace {

using namespace Qt::StringLiterals;

const QJsonObject a4{{u"PPDName"_s, u"A4"_s}, {u"DisplayName"_s, u"A4"_s}, {u"Width"_s, 210.0},
                     {u"Height"_s, 297.0},    {u"MarginTop"_s, 6.35},      {u"MarginBottom"_s, 14.224},
                     {u"MarginLeft"_s, 6.35}, {u"MarginRight"_s, 6.35},    {u"Orientation"_s, u"portrait"_s}};

// An object of the texts of "key=value key=value".
QJsonObject texts(const QString& notation) {
  QJsonObject object;
  forEachValue(notation, [&](const QString& key, const QString& value) { object.insert(key, value); });
  return object;
}

PortalChoice asked(const QString& key, const QString& value) {
  return choiceAskedFor({{key, value}}, {});
}

TEST(PortalSettings, AChoiceIsPresetFromTheClientsSettings) {
  const PortalChoice choice = choiceAskedFor(
      texts(u"n-copies=3 collate=false reverse=true number-up=2 number-up-layout=rltb scale=70.5 "
            "page-set=even print-pages=ranges page-ranges=0-2,4,6--1 duplex=vertical "
            "paper-format=iso_a4 printer=Office"_s),
      a4);
  EXPECT_EQ(choice.copies, 3);
  EXPECT_FALSE(choice.isCollated);
  EXPECT_TRUE(choice.isReversed);
  EXPECT_EQ(choice.numberUp, 2);
  EXPECT_EQ(choice.numberUpLayout, u"rltb"_s);
  EXPECT_EQ(choice.scale, 70.5);
  EXPECT_EQ(choice.pageSet, PortalPageSet::Even);
  EXPECT_EQ(choice.pages, PortalPages::Ranges);
  EXPECT_EQ(choice.pageRanges, u"1-3,5,7-"_s);
  EXPECT_EQ(choice.duplex, PortalDuplex::ShortEdge);
  EXPECT_EQ(choice.printer, u"Office"_s);
  EXPECT_EQ(choice.paper.ppdName, u"A4"_s);
  EXPECT_EQ(choice.paper.name, u"iso_a4"_s);
  EXPECT_EQ(choice.paper.height, 297);
  EXPECT_EQ(choice.paper.marginBottom, 14.224);
}

TEST(PortalSettings, WhatIsNoSenseIsTheDefault) {
  for (const QString& value : {u""_s, u"0"_s, u"-1"_s, u"10000"_s, u"many"_s, u"2.5"_s}) {
    EXPECT_EQ(asked(u"n-copies"_s, value).copies, 1) << value;
    EXPECT_EQ(asked(u"number-up"_s, value).numberUp, 1) << value;
  }
  for (const QString& value : {u""_s, u"x"_s, u"2-1"_s, u"-3--2"_s, u"1,x"_s}) {
    const PortalChoice choice = choiceAskedFor(texts(u"print-pages=ranges page-ranges="_s + value), {});
    EXPECT_EQ(choice.pages, PortalPages::All) << value;
  }
  EXPECT_EQ(asked(u"scale"_s, u"0"_s).scale, 100);
  EXPECT_EQ(asked(u"number-up-layout"_s, u"xxxx"_s).numberUpLayout, u"lrtb"_s);
  EXPECT_EQ(asked(u"page-set"_s, u"some"_s).pageSet, PortalPageSet::All);
  EXPECT_TRUE(asked(u"collate"_s, u""_s).isCollated);
}

TEST(PortalSettings, TheOrientationIsThePageSetupsThenTheSettings) {
  for (const QString& word : {u"landscape"_s, u"reverse_landscape"_s, u"reverse-landscape"_s}) {
    EXPECT_TRUE(asked(u"orientation"_s, word).isLandscape) << word;
    EXPECT_TRUE(choiceAskedFor({}, {{u"Orientation"_s, word}}).isLandscape) << word;
    EXPECT_FALSE(choiceAskedFor({{u"orientation"_s, word}}, a4).isLandscape) << word;
  }
}

TEST(PortalSettings, WhatThePrintSystemDoesIsNeutralForTheClient) {
  const QJsonObject settings = texts(
      u"n-copies=3 reverse=true number-up=2 number-up-layout=rltb scale=70 page-set=even collate=false "
      "output-file-format=ps quality=high output-uri=file:///etc/x print-pages=ranges page-ranges=4"_s);
  PortalChoice choice = choiceAskedFor(settings, a4);
  choice.pages = PortalPages::All;
  choice.printer = u"Office"_s;
  EXPECT_EQ(
      settingsToReturn(settings, choice),
      texts(u"n-copies=1 reverse=false number-up=1 number-up-layout=lrtb scale=100 page-set=all collate=true "
            "output-file-format=pdf quality=high print-pages=all orientation=portrait duplex=simplex "
            "printer=Office paper-format=A4 paper-width=210.000000 paper-height=297.000000"_s));
}

TEST(PortalSettings, TheClientDrawsTheChosenPages) {
  struct Case {
    PortalPages pages;
    QString ranges;
    QString printPages;
    QString pageRanges;
  };
  for (const Case& row :
       {Case{PortalPages::All, u"2"_s, u"all"_s, {}}, Case{PortalPages::Current, {}, u"current"_s, {}},
        Case{PortalPages::Selection, {}, u"selection"_s, {}},
        Case{PortalPages::Ranges, u"1"_s, u"ranges"_s, u"0"_s},
        Case{PortalPages::Ranges, u" 2 - 4, 7"_s, u"ranges"_s, u"1-3,6"_s},
        Case{PortalPages::Ranges, u"-3,9-"_s, u"ranges"_s, u"0-2,8-2147483646"_s},
        Case{PortalPages::Ranges, u"0-3"_s, u"all"_s, {}}, Case{PortalPages::Ranges, u","_s, u"all"_s, {}}}) {
    PortalChoice choice;
    choice.pages = row.pages;
    choice.pageRanges = row.ranges;
    const QJsonObject returned = settingsToReturn({}, choice);
    EXPECT_EQ(returned.value(u"print-pages"_s).toString(), row.printPages) << row.ranges;
    EXPECT_EQ(returned.value(u"page-ranges"_s).toString(), row.pageRanges) << row.ranges;
  }
}

TEST(PortalSettings, NoEntryOfTheUsersGoesOut) {
  QJsonObject settings{{u"print-at"_s, u"now"_s}, {u"my-option"_s, u"kesto."_s}};
  const QJsonObject open = settings;
  for (const QString& name :
       {u"kesto.print.PrintSettings.jobSuspend2Key"_s, u"kesto.print.PrintSettings.userNumber"_s,
        u"Kesto.Print.PrintSettings.loginName11"_s, u"job-password"_s, u"job-password-encryption"_s,
        u"auth-info"_s, u"JOB-ACCOUNT-ID"_s, u"job-accounting-user-id"_s}) {
    settings.insert(name, u"1234"_s);
    settings.insert(u"cups-"_s + name, u"1234"_s);
  }
  EXPECT_EQ(withoutPrivateKeys(settings), open);
  EXPECT_FALSE(
      settingsToReturn(settings, {}).keys().join(u' ').contains(u"job-account"_s, Qt::CaseInsensitive));
  for (const QJsonValue value : settingsToReturn(settings, {}))
    EXPECT_NE(value.toString(), u"1234"_s);
}

TEST(PortalSettings, ThePaperOfTheChoiceReplacesTheClients) {
  PortalChoice choice;
  EXPECT_EQ(pageSetupToReturn(a4, choice), a4) << "the client's own paper stays";
  choice.paper = {u"A5"_s, u"iso_a5"_s, {}, 148, 210, 4, 5, 6, 7};
  choice.isLandscape = true;
  EXPECT_EQ(pageSetupToReturn(a4, choice), (QJsonObject{{u"PPDName"_s, u"A5"_s},
                                                        {u"Name"_s, u"iso_a5"_s},
                                                        {u"DisplayName"_s, u"A5"_s},
                                                        {u"Width"_s, 148.0},
                                                        {u"Height"_s, 210.0},
                                                        {u"MarginTop"_s, 4.0},
                                                        {u"MarginBottom"_s, 5.0},
                                                        {u"MarginLeft"_s, 6.0},
                                                        {u"MarginRight"_s, 7.0},
                                                        {u"Orientation"_s, u"landscape"_s}}));
  const QJsonObject settings = settingsToReturn({}, choice);
  EXPECT_EQ(settings.value(u"paper-format"_s), u"iso_a5"_s);
  EXPECT_EQ(settings.value(u"paper-width"_s), u"148.000000"_s);
  EXPECT_EQ(settings.value(u"orientation"_s), u"landscape"_s);
}

}  // namespace
}  // namespace kesto::test
