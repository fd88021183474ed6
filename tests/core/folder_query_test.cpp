#include <QtCore/QJsonArray>

#include "tests/support/folder_server.h"
#include "tests/support/test_panel.h"

namespace kesto::test {
namespace {

using End = FolderServer::End;

// A restored panel in German, with an answer file of its own.
struct Query {
  Query() {
    panel.emplace(platform);
    panel->restore();
    EXPECT_TRUE(button(panel->view(), "retention").click());
  }

  void ask(const Text& address) {
    field(panel->view(), "printersAddress").setStringValue(address);
    EXPECT_TRUE(button(panel->view(), "getFolderNameButton").click());
  }
  // Reads the folders "A|B*" from an answer that is there already.
  void list(const Text& names) {
    writeFile(platform.temporary + u"vwxyz.xml"_s, folders(names));
    ask("");
  }
  // The folders of the panel, which must be those of its record as well.
  QString known() const {
    QStringList names;
    const QVariantList entries = panel->fact("folderList").toList();
    for (const QVariant& entry : entries)
      names.append(entry.toMap().value(u"name"_s).toString());
    EXPECT_EQ(platform.remembered().value(u"files"_s).toArray().toVariantList(), entries);
    return names.join(u'|');
  }
  // Titles and images of the pop-up's items: "title(image)", "-" for a separator.
  QString offered() {
    QStringList texts;
    const std::vector<PopUpItem> items = popUp(panel->view(), "item").items();
    for (const PopUpItem& item : items) {
      texts.append(item.separator ? u"-"_s
                                  : item.title + u'(' + (item.image ? item.image->name : QString()) + u')');
    }
    return texts.join(u' ');
  }

  TestPlatform platform{QLocale::German};
  std::optional<TestPanel> panel;
};

TEST(FolderQuery, WhatTheUserSeesAndWhatTheListContainsAfterwards) {
  const QByteArray failed = envelope("<result-code>no</result-code><files><f><name>X</name></f></files>");
  // The list after an earlier one of "Old".
  using Row = std::tuple<QByteArray, End, Text, FolderFetch>;
  for (const auto& [answer, end, list, result] :
       {Row{httpAnswer(folders("Art|Maps*")), End::Close, "Art|Maps", FolderFetch::Listed},
        Row{httpAnswer(folders("")), End::Close, "", FolderFetch::Listed},
        Row{"", End::Reset, "Old", FolderFetch::Failed},
        Row{httpAnswer("junk"), End::Close, "Old", FolderFetch::NotRead},
        Row{httpAnswer(envelope("")), End::Close, "", FolderFetch::NotRead},
        Row{httpAnswer(failed), End::Close, "", FolderFetch::NotRead}}) {
    SCOPED_TRACE(answer);
    FolderServer server;
    server.answer = answer;
    server.end = end;
    Query query;
    query.list("Old");
    query.ask(server.address());
    EXPECT_EQ(query.known(), list);
    EXPECT_EQ(query.panel->controller->lastFolderFetch(), result);
    EXPECT_EQ(query.platform.remembered().value(u"address"_s).toString(), server.address());
    EXPECT_TRUE(server.requests.value(0).contains("list-files"));
    const std::vector<QStringList> alerts{
        {u""_s, u"Die Ordnernamen konnten nicht abgerufen werden."_s, u"OK"_s}};
    EXPECT_EQ(query.platform.alerts, result == FolderFetch::Failed ? alerts : std::vector<QStringList>());
    EXPECT_TRUE(query.panel->view().control<ProgressIndicator>(u"chasingArrow"_s)->isHidden());
  }
}

TEST(FolderQuery, WithoutANewAnswerTheEarlierOneIsRead) {
  FolderServer server;
  Query query;
  const QString temporary = std::exchange(query.platform.temporary, u"/nonexistent/"_s);
  query.ask(server.address());
  EXPECT_EQ(query.panel->controller->lastFolderFetch(), FolderFetch::NotKept);
  EXPECT_EQ(query.known(), u""_s);
  query.platform.temporary = temporary;
  query.list("Old");
  query.ask("bad address");
  EXPECT_EQ(query.known(), u"Old"_s);
  EXPECT_TRUE(query.platform.alerts.empty());
  EXPECT_EQ(query.panel->controller->lastFolderFetch(), FolderFetch::None);
}

TEST(FolderQuery, AnswersTheUserAndTheHostWhileItWaits) {
  FolderServer server;
  Query query;
  TextField& number = field(query.panel->view(), "userNumber");
  server.onRequest = [&] {
    EXPECT_FALSE(query.panel->view().control<ProgressIndicator>(u"chasingArrow"_s)->isHidden());
    EXPECT_TRUE(button(query.panel->view(), "getFolderNameButton").click()) << "which does nothing";
    number.setStringValue(u"42"_s);
    query.panel->save();
    number.setStringValue(u"7"_s);
    query.panel->restore();
  };
  query.ask(server.address());
  EXPECT_EQ(server.requests.size(), 1);
  EXPECT_EQ(number.stringValue(), u"42"_s);
  EXPECT_EQ(query.known(), u"Art|Maps"_s);
}

TEST(FolderQuery, APanelDestroyedWhileItWaitsEndsTheExchange) {
  FolderServer server;
  server.end = End::StayOpen;
  server.answer = QByteArray();
  Query query;
  const QJsonObject before = query.platform.remembered();
  server.onRequest = [&] { query.panel->controller.reset(); };
  query.ask(server.address());
  EXPECT_EQ(query.panel->controller, nullptr);
  EXPECT_TRUE(query.platform.alerts.empty());
  EXPECT_EQ(query.platform.remembered(), before);
}

TEST(FolderPopup, ItemsFollowTheList) {
  Query query;
  const QString fixed = u"Schnellablage(space) Hauptordner(space)"_s;
  for (const auto& [list, offered] :
       Cases{{"Art|Maps: north*|OK", " - Art(space) Maps: north(lock) OK(space)"},
             {"B", " - B(space)"},
             {"", ""},
             {"Work|WORK*", " - Work(space) WORK(lock)"}}) {
    query.list(list);
    EXPECT_EQ(query.offered(), fixed + offered);
    expectControls(query.panel->view(), "item=1");
  }
}

// When a folder is found again, its action is sent, which moves the focus.
TEST(FolderPopup, ARebuildKeepsTheChoice) {
  using Row = std::tuple<int, Text, int, Text>;  // the item before, the list, the item and focus afterwards
  for (const auto& [chosen, list, item, focus] :
       {Row{0, "X", 0, "jobName"}, Row{1, "", 1, "jobName"}, Row{4, "Maps*|Art", 3, "folderPassword"},
        Row{4, "X|MAPS*", 4, "folderPassword"}, Row{4, "Maps", 3, ""}, Row{4, "Art", 1, ""},
        Row{4, "", 1, ""}}) {
    SCOPED_TRACE(list);
    Query query;
    query.list("Art|Maps*");
    setControls(query.panel->view(), u"item=%1"_s.arg(chosen));
    query.panel->view().makeFirstResponder(&field(query.panel->view(), "jobName"));
    query.list(list);
    expectControls(query.panel->view(), u"item=%1 focus="_s.arg(item) + focus);
  }
}

}  // namespace
}  // namespace kesto::test
