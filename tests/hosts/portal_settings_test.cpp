// What the dialog starts with, and what a client of the portal gets back for a choice.
#include <QtCore/QJsonObject>

#include "hosts/channel/portal_settings.h"
#include "tests/support/printing.h"

namespace kesto::test {
namespace {

const QJsonObject a4 =
    json(R"({"PPDName":"A4", "DisplayName":"A4", "Width":210, "Height":297, "MarginTop":6.35,
    "MarginBottom":14.224, "MarginLeft":6.35, "MarginRight":6.35, "Orientation":"portrait"})");

// An object with the texts of "key=value key=value".
QJsonObject texts(const QString& notation) {
  QJsonObject object;
  forEachValue(notation, [&](const QString& key, const QString& value) { object.insert(key, value); });
  return object;
}

TEST(PortalSettings, MeaninglessValuesBecomeTheDefault) {
  const auto asked = [](const char* key, const QString& value) {
    return choiceAskedFor({{QLatin1String(key), value}}, {});
  };
  for (const QString& value : {u""_s, u"0"_s, u"-1"_s, u"10000"_s, u"many"_s, u"2.5"_s}) {
    EXPECT_EQ(asked("n-copies", value).copies, 1) << value;
    EXPECT_EQ(asked("number-up", value).numberUp, 1) << value;
  }
  for (const QString& value : {u""_s, u"x"_s, u"2-1"_s, u"-3--2"_s, u"1,x"_s}) {
    const PortalChoice choice = choiceAskedFor(texts(u"print-pages=ranges page-ranges="_s + value), {});
    EXPECT_EQ(choice.pages, PortalPages::All) << value;
  }
  EXPECT_EQ(asked("scale", u"0"_s).scale, 100);
  EXPECT_EQ(asked("number-up-layout", u"xxxx"_s).numberUpLayout, u"lrtb"_s);
  EXPECT_EQ(asked("page-set", u"some"_s).pageSet, PortalPageSet::All);
  EXPECT_TRUE(asked("collate", u""_s).isCollated);
  EXPECT_EQ(asked("paper-format", u"iso_a4"_s).paper.name, u"iso_a4"_s) << "without a page setup";
  EXPECT_EQ(asked("printer", u"Office"_s).printer, u"Office"_s);
  for (const QString& word : {u"landscape"_s, u"reverse_landscape"_s, u"reverse-landscape"_s}) {
    EXPECT_TRUE(asked("orientation", word).isLandscape) << word;
    EXPECT_TRUE(choiceAskedFor({}, {{u"Orientation"_s, word}}).isLandscape) << word;
    EXPECT_FALSE(choiceAskedFor({{u"orientation"_s, word}}, a4).isLandscape) << "the page setup counts";
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
  const std::tuple<PortalPages, Text, Text> cases[] = {
      {PortalPages::All, "2", "all"},
      {PortalPages::Current, "", "current"},
      {PortalPages::Selection, "", "selection"},
      {PortalPages::Ranges, "1", "ranges 0"},
      {PortalPages::Ranges, " 2 - 4, 7", "ranges 1-3,6"},
      {PortalPages::Ranges, "-3,9-", "ranges 0-2,8-2147483646"},
      {PortalPages::Ranges, "0-3", "all"},
      {PortalPages::Ranges, ",", "all"},
  };
  for (const auto& [pages, ranges, drawn] : cases) {
    PortalChoice choice;
    choice.pages = pages;
    choice.pageRanges = ranges;
    const QJsonObject returned = settingsToReturn({}, choice);
    const QString given =
        returned[u"print-pages"_s].toString() + u' ' + returned[u"page-ranges"_s].toString();
    EXPECT_EQ(given.trimmed(), drawn) << ranges;
  }
}

TEST(PortalSettings, NoEntryOfTheUsersGoesOut) {
  QJsonObject settings{{u"print-at"_s, u"now"_s}, {u"my-option"_s, u"kesto."_s}};
  const QJsonObject open = settings;
  for (const QString& name :
       {u"kesto.print.PrintSettings.jobSuspend2Key"_s, u"Kesto.Print.PrintSettings.loginName11"_s,
        u"job-password"_s, u"job-password-encryption"_s, u"auth-info"_s, u"JOB-ACCOUNT-ID"_s,
        u"job-accounting-user-id"_s}) {
    settings.insert(name, u"1234"_s);
    settings.insert(u"cups-"_s + name, u"1234"_s);
  }
  EXPECT_EQ(withoutPrivateKeys(settings), open);
  EXPECT_EQ(settingsToReturn(settings, {}), settingsToReturn(open, {}));
}

TEST(PortalSettings, ThePaperOfTheChoiceReplacesTheClients) {
  PortalChoice choice;
  EXPECT_EQ(pageSetupToReturn(a4, choice), a4) << "the client's own paper stays";
  choice.paper = {u"A5"_s, u"iso_a5"_s, {}, 148, 210, 4, 5, 6, 7};
  choice.isLandscape = true;
  EXPECT_EQ(pageSetupToReturn(a4, choice), json(R"({"PPDName":"A5", "Name":"iso_a5", "DisplayName":"A5",
      "Width":148, "Height":210, "MarginTop":4, "MarginBottom":5, "MarginLeft":6, "MarginRight":7,
      "Orientation":"landscape"})"));
  const QJsonObject settings = settingsToReturn({}, choice);
  EXPECT_EQ(settings[u"paper-format"_s], u"iso_a5"_s);
  EXPECT_EQ(settings[u"paper-width"_s], u"148.000000"_s);
  EXPECT_EQ(settings[u"orientation"_s], u"landscape"_s);
}

}  // namespace
}  // namespace kesto::test
