#include <QtCore/QFile>
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
    EXPECT_TRUE(button(panel->view(), "retentionCheckBox").click());
  }

  void ask(const Text& address) {
    field(panel->view(), "printersAddress").setStringValue(address);
    EXPECT_TRUE(button(panel->view(), "getFolderNameButton").click());
  }
  // Reads the folders "A|B*" from an answer that is there already.
  void list(const Text& names) {
    QFile file(platform.temporary + u"vwxyz.xml"_s);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    QList<QByteArray> entries;
    for (const QString& name : names.split(u'|', Qt::SkipEmptyParts))
      entries.append(name.toUtf8());
    file.write(folders(entries));
    file.close();
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
    for (const PopUpItem& item : popUp(panel->view(), "folderSelectionPopup").items()) {
      texts.append(item.separator ? u"-"_s
                                  : item.title + u'(' + (item.image ? item.image->name : QString()) + u')');
    }
    return texts.join(u' ');
  }

  TestPlatform platform{QLocale::German};
  std::optional<TestPanel> panel;
};

TEST(FolderQuery, WhatTheUserSeesAndWhatTheListHoldsAfterwards) {
  const QByteArray failed = envelope("<result-code>no</result-code><files><f><name>X</name></f></files>");
  struct Row {
    const char* name;
    QByteArray answer;
    End end;
    QString list;  // after an earlier one of "Old"
    FolderFetch result;
  };
  for (const Row& row : {
           Row{"a list", httpAnswer(folders({"Art", "Maps*"})), End::Close, u"Art|Maps"_s,
               FolderFetch::Listed},
           Row{"no folders", httpAnswer(folders({})), End::Close, u""_s, FolderFetch::Listed},
           Row{"transport error", "", End::Reset, u"Old"_s, FolderFetch::Failed},
           Row{"not well-formed", httpAnswer("junk"), End::Close, u"Old"_s, FolderFetch::NotRead},
           Row{"no files", httpAnswer(envelope("")), End::Close, u""_s, FolderFetch::NotRead},
           Row{"another result", httpAnswer(failed), End::Close, u""_s, FolderFetch::NotRead},
       }) {
    SCOPED_TRACE(row.name);
    FolderServer server;
    server.answer = row.answer;
    server.end = row.end;
    Query query;
    query.list("Old");
    query.ask(server.address());
    EXPECT_EQ(query.known(), row.list);
    EXPECT_EQ(query.panel->controller->lastFolderFetch(), row.result);
    EXPECT_EQ(query.platform.remembered().value(u"address"_s).toString(), server.address());
    EXPECT_TRUE(server.requests.value(0).contains("list-files"));
    const std::vector<QStringList> alerts{
        {u""_s, u"Die Ordnernamen konnten nicht abgerufen werden."_s, u"OK"_s}};
    EXPECT_EQ(query.platform.alerts, row.result == FolderFetch::Failed ? alerts : std::vector<QStringList>());
    EXPECT_TRUE(query.panel->view().control<ProgressIndicator>(u"chasingArrow"_s)->isHidden());
  }
}

TEST(FolderQuery, WithoutANewAnswerTheOlderOneIsRead) {
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
    expectControls(query.panel->view(), "folderSelectionPopup=1");
  }
}

// When a folder is found again, its action is sent, which moves the focus.
TEST(FolderPopup, ARebuildKeepsTheChoice) {
  struct Row {
    int chosen = 0;
    Text list;
    int item = 0;
    Text focus;
  };
  for (const Row& row : {Row{0, "X", 0, "jobName"}, Row{1, "", 1, "jobName"},
                         Row{4, "Maps*|Art", 3, "folderPassword"}, Row{4, "X|MAPS*", 4, "folderPassword"},
                         Row{4, "Maps", 3, ""}, Row{4, "Art", 1, ""}, Row{4, "", 1, ""}}) {
    SCOPED_TRACE(row.list);
    Query query;
    query.list("Art|Maps*");
    setControls(query.panel->view(), u"folderSelectionPopup=%1"_s.arg(row.chosen));
    query.panel->view().makeFirstResponder(&field(query.panel->view(), "jobName"));
    query.list(row.list);
    expectControls(query.panel->view(), u"folderSelectionPopup=%1 focus="_s.arg(row.item) + row.focus);
  }
}

}  // namespace
}  // namespace kesto::test
