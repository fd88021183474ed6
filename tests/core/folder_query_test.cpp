#include <unistd.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QSocketNotifier>

#include "tests/support/folder_server.h"
#include "tests/support/test_panel.h"

namespace kesto::test {
namespace {

using End = FolderServer::End;

const QByteArray oldAnswer = folders({"Old"});

// A panel with an answer file of its own, restored.
struct Query {
  explicit Query(const QByteArray& answerFile = {}) {
    platform.temporary = folder.path() + u'/';
    panel.emplace(platform);
    panel->restore();
    if (answerFile.isNull()) return;
    QFile file(folder.filePath(u"vwxyz.xml"_s));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(answerFile);
  }

  void ask(const QString& address) {
    field(panel->view(), "printersAddressEditText").setStringValue(address);
    EXPECT_TRUE(button(panel->view(), "getFolderNameButton").click());
  }

  // The names of the folder list; "none" without a list.
  QString list() const {
    const QVariant value = panel->fact("folderList");
    return value.typeId() == QMetaType::QVariantList ? namesOf(value.toList()) : u"none"_s;
  }
  static QString namesOf(const QVariantList& entries) {
    QStringList names;
    for (const QVariant& entry : entries)
      names.append(entry.toMap().value(u"name"_s).toString());
    return names.join(u'|');
  }
  QJsonObject record() const {
    return platform.defaults.domains.value(u"kesto.mfp.Office_MFP"_s).value(u"Job Handling"_s).toObject();
  }

  QTemporaryDir folder;
  TestPlatform platform;
  std::optional<TestPanel> panel;
};

TEST(FolderQuery, WhatTheUserSeesAndWhatTheListHoldsAfterwards) {
  const QByteArray failed = envelope("<result-code>no</result-code><files><f><name>X</name></f></files>");
  struct Row {
    const char* name;
    QByteArray answer;
    End end;
    int alerts;
    QString list;       // after an earlier fetch of "Old"
    QString freshList;  // without any
    FolderFetch result;
  };
  const QList<Row> rows{
      {"a list", httpAnswer(folders({"Art", "Maps*"})), End::Close, 0, u"Art|Maps"_s, u"Art|Maps"_s,
       FolderFetch::Listed},
      {"transport error", "", End::Reset, 1, u"Old"_s, u""_s, FolderFetch::Failed},
      {"body cut short", "HTTP/1.1 200 OK\r\nContent-Length: 99\r\n\r\nx", End::Close, 1, u"Old"_s, u""_s,
       FolderFetch::Failed},
      {"not well-formed", httpAnswer("junk"), End::Close, 0, u"Old"_s, u""_s, FolderFetch::NotRead},
      {"no children at the response", httpAnswer(envelope("")), End::Close, 0, u""_s, u""_s,
       FolderFetch::NotRead},
      {"no files", httpAnswer(envelope("<result-code>ok</result-code>")), End::Close, 0, u""_s, u""_s,
       FolderFetch::NotRead},
      {"another result", httpAnswer(failed), End::Close, 0, u""_s, u""_s, FolderFetch::NotRead},
      {"no folders", httpAnswer(folders({})), End::Close, 0, u""_s, u""_s, FolderFetch::Listed},
  };
  for (const Row& row : rows) {
    for (const bool isFirst : {true, false}) {
      SCOPED_TRACE(testing::Message() << row.name << (isFirst ? ", first" : ", after another"));
      FolderServer server;
      Query query(isFirst ? QByteArray() : oldAnswer);
      if (!isFirst) query.ask(QString());
      ASSERT_EQ(query.list(), isFirst ? u""_s : u"Old"_s);
      server.answer = row.answer;
      server.end = row.end;
      query.ask(server.address());
      const QStringList alert{u""_s, u"Could not retrieve Folder Names."_s, u"OK"_s};
      EXPECT_EQ(query.platform.alerts, std::vector<QStringList>(static_cast<std::size_t>(row.alerts), alert));
      const QString expected = isFirst ? row.freshList : row.list;
      EXPECT_EQ(query.list(), expected);
      EXPECT_EQ(query.panel->controller->lastFolderFetch(), row.result);
      // As it then stands, the list is stored with the address and offered.
      EXPECT_EQ(query.record().value(u"address"_s).toString(), server.address());
      EXPECT_EQ(Query::namesOf(query.record().value(u"files"_s).toArray().toVariantList()), expected);
      const qsizetype offered = expected.isEmpty() ? 2 : 3 + expected.split(u'|').size();
      EXPECT_EQ(popUp(query.panel->view(), "folderSelectionPopup").items().size(),
                static_cast<std::size_t>(offered));
      EXPECT_TRUE(query.panel->view().control<ProgressIndicator>(u"chasingArrow"_s)->isHidden());
    }
  }
}

TEST(FolderQuery, WithoutAnExchangeTheOlderAnswerIsRead) {
  for (const char* address : {"", "bad address"}) {
    SCOPED_TRACE(address);
    Query query(oldAnswer);
    query.ask(QString::fromLatin1(address));
    EXPECT_EQ(query.list(), u"Old"_s);
    EXPECT_TRUE(query.platform.alerts.empty());
    EXPECT_EQ(query.panel->controller->lastFolderFetch(), FolderFetch::None);
    EXPECT_EQ(query.record().value(u"address"_s).toString(), QString::fromLatin1(address));
  }
}

TEST(FolderQuery, AnAnswerThatCannotBeKeptIsKnown) {
  FolderServer server;
  Query query(oldAnswer);
  query.ask(QString());
  query.platform.temporary = u"/nonexistent/"_s;
  query.ask(server.address());
  EXPECT_EQ(query.panel->controller->lastFolderFetch(), FolderFetch::NotKept);
  EXPECT_EQ(query.list(), u"Old"_s);
}

TEST(FolderQuery, AFailureIsToldInTheUsersLanguage) {
  Query query;
  query.platform.bundleOfPanel = TestPlatform(QLocale::German).bundleOfPanel;
  TestPanel german(query.platform);
  field(german.view(), "printersAddressEditText").setStringValue(u"127.0.0.1:1"_s);
  EXPECT_TRUE(button(german.view(), "getFolderNameButton").click());
  ASSERT_EQ(query.platform.alerts.size(), 1U);
  EXPECT_EQ(query.platform.alerts[0][1], u"Die Ordnernamen konnten nicht abgerufen werden."_s);
}

TEST(FolderQuery, ANewPanelOffersTheStoredFolders) {
  FolderServer server;
  Query query;
  query.ask(server.address());
  query.panel.emplace(query.platform);
  EXPECT_EQ(query.list(), u"Art|Maps"_s);
  EXPECT_EQ(query.panel->fact("addressStringRef").toString(), server.address());
  query.panel->restore();
  EXPECT_EQ(popUp(query.panel->view(), "folderSelectionPopup").items().size(), 5U);
  EXPECT_EQ(server.requests.size(), 1);
}

TEST(FolderQuery, ASecondPressWhileTheFirstWaitsDoesNothing) {
  FolderServer server;
  Query query;
  bool isSpinning = false;
  server.onRequest = [&] {
    isSpinning = !query.panel->view().control<ProgressIndicator>(u"chasingArrow"_s)->isHidden();
    EXPECT_TRUE(button(query.panel->view(), "getFolderNameButton").click());
  };
  query.ask(server.address());
  EXPECT_TRUE(isSpinning);
  EXPECT_EQ(server.requests.size(), 1);
  EXPECT_EQ(query.list(), u"Art|Maps"_s);
}

TEST(FolderQuery, SaveAndRestoreWhileItWaits) {
  FolderServer server;
  Query query;
  server.onRequest = [&] {
    field(query.panel->view(), "userNumberEditText").setStringValue(u"42"_s);
    query.panel->save();
    field(query.panel->view(), "userNumberEditText").setStringValue(u"7"_s);
    query.panel->restore();
  };
  query.ask(server.address());
  EXPECT_EQ(query.panel->host.value("userNumber"), u"00042"_s);
  expectControls(query.panel->view(), u"userNumberEditText=42"_s);
  EXPECT_EQ(query.list(), u"Art|Maps"_s);
}

// How many descriptors the process has.
qsizetype descriptors() {
  return QDir(u"/proc/self/fd"_s).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size();
}

// The second time it is destroyed by what the event loop delivers after the end of the exchange, in the same
// pass: a notifier that is always ready, and waits until the connection has been closed on the panel's side.
TEST(FolderQuery, APanelDestroyedWhileItWaitsEndsTheExchange) {
  for (const bool isAfterTheEnd : {false, true}) {
    SCOPED_TRACE(isAfterTheEnd);
    FolderServer server;
    server.end = isAfterTheEnd ? End::Reset : End::StayOpen;
    server.answer = QByteArray();
    Query query;
    const QJsonObject before = query.record();
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);  // its writing end is always ready
    std::optional<QSocketNotifier> notifier;
    const auto destroy = [&] { query.panel->controller.reset(); };
    server.onRequest = [&] {
      if (!isAfterTheEnd) return destroy();
      notifier.emplace(ends[1], QSocketNotifier::Write);
      QObject::connect(&*notifier, &QSocketNotifier::activated, &server, [&, open = descriptors()] {
        // The server's end, and the two of the panel's: Qt's own and the one beside it.
        if (descriptors() < open - 1) destroy();
      });
    };
    query.ask(server.address());
    EXPECT_EQ(query.panel->controller, nullptr);
    EXPECT_EQ(server.requests.size(), 1);
    EXPECT_TRUE(query.platform.alerts.empty());
    EXPECT_EQ(query.record(), before);
    ::close(ends[0]);
    ::close(ends[1]);
  }
}

}  // namespace
}  // namespace kesto::test
