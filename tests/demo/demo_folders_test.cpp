// The folder service of the demo printer, seen by the real panel.
#include <QtNetwork/QTcpSocket>

#include "demo/folder_list.h"
#include "tests/support/demo_process.h"

namespace kesto::test {
namespace {

// kesto-panel on a queue, with its layout loaded.
class PanelProcess : public DemoProcess {
 public:
  explicit PanelProcess(const ScratchFolder& folder)
      : DemoProcess(
            folder, builtProgram("kesto-panel"),
            {u"--queue"_s, u"Office_MFP"_s, u"--ppd"_s, builtProgram("../share/kesto/kesto-vq250n.ppd")}) {
    ask({{u"do"_s, u"show"_s}});
    ask({{u"do"_s, u"restore"_s}});
  }

  QJsonObject ask(const QJsonObject& command) {
    write(QJsonDocument(command).toJson(QJsonDocument::Compact) + '\n');
    return QJsonDocument::fromJson(readOutLine()).object();
  }
  // Fetches from the address; whether there was an alert.
  bool fetch(const QString& address) {
    const QString field = u"printersAddressEditText"_s;
    ask({{u"do"_s, u"caret"_s}, {u"control"_s, field}, {u"location"_s, 0}, {u"length"_s, 1000}});
    ask({{u"do"_s, u"paste"_s}, {u"control"_s, field}, {u"text"_s, address}});
    const QJsonObject answer = ask({{u"do"_s, u"click"_s}, {u"control"_s, u"getFolderNameButton"_s}});
    EXPECT_FALSE(answer.contains(u"error"_s)) << address.toStdString();
    return answer.contains(u"alerts"_s);
  }
  // The names of the folders, a locked one with "*".
  QStringList folders() {
    QStringList names;
    for (const QJsonValue folder : ask({{u"do"_s, u"facts"_s}})[u"folderList"].toArray()) {
      names.append(folder[u"name"].toString() + (folder[u"password"].toBool() ? u"*"_s : QString()));
    }
    return names;
  }
};

// What a panel that listed "Before" makes of a misbehaving service.
struct Case {
  const char* misbehaviour;
  bool isAlert;
  const char* folders;  // afterwards; "kept" for those of before
};

void PrintTo(const Case& c, std::ostream* out) {
  *out << c.misbehaviour;
}

class FolderMisbehaviour : public testing::TestWithParam<Case> {
 protected:
  FolderMisbehaviour() {
    m_folder.write(u"before"_s, "Before\n");
    m_folder.write(u"now"_s, "# The printer's folders\n\nInvoices\nPlans & <Papers>\tlocked\n");
  }
  std::unique_ptr<RunningPrinter> serve(const QString& list, const QStringList& arguments = {}) const {
    return std::make_unique<RunningPrinter>(
        m_folder, QStringList{u"--folders-only"_s, u"--folders"_s, m_folder.path(list)} + arguments);
  }

  ScratchFolder m_folder;
};

TEST_P(FolderMisbehaviour, LeavesThePanelAlive) {
  const auto before = serve(u"before"_s);
  const auto now = serve(u"now"_s, {u"--misbehave"_s, QLatin1String(GetParam().misbehaviour)});
  PanelProcess panel(m_folder);
  ASSERT_FALSE(panel.fetch(before->place(u"folders"_s)));
  ASSERT_EQ(panel.folders(), QStringList{u"Before"_s});

  EXPECT_EQ(panel.fetch(now->place(u"folders"_s)), GetParam().isAlert);
  const QString expected = QString::fromLatin1(GetParam().folders);
  const QStringList folders = panel.folders();
  if (folders.size() > 10) {
    EXPECT_EQ(u"%1 %2"_s.arg(folders.size()).arg(folders.back()), expected);
  } else {
    EXPECT_EQ(folders.join(u'|'), expected == u"kept"_s ? u"Before"_s : expected);
  }
  EXPECT_FALSE(now->log().contains("elsewhere")) << "a redirect was followed";

  EXPECT_FALSE(panel.fetch(before->place(u"folders"_s))) << "the panel is not what it was";
  EXPECT_EQ(panel.folders(), QStringList{u"Before"_s});
  panel.closeWriteChannel();
  EXPECT_EQ(panel.code(), 0);
}

constexpr char listOfNow[] = "Invoices|Plans & <Papers>*";

// Not here are "never" and "trickle": each takes the panel its 20 seconds.
INSTANTIATE_TEST_SUITE_P(
    , FolderMisbehaviour,
    testing::Values(Case{"entity-bomb", false, "kept"},
                    Case{"external-entity", false, listOfNow},  // without the one named so
                    Case{"deep-nesting", false, "kept"}, Case{"many-attributes", false, "kept"},
                    Case{"many-references", false, "kept"},
                    Case{"many-folders", false, "100000 Folder 100000"}, Case{"endless", true, "kept"},
                    Case{"reset", true, "kept"}, Case{"redirect", false, "kept"},
                    Case{"invalid-utf8", false, "kept"}, Case{"nul-in-name", false, "kept"},
                    Case{"close", true, "kept"}, Case{"error-status", false, listOfNow},
                    Case{"failed-result", false, ""}, Case{"not-xml", false, "kept"},
                    Case{"empty", false, "kept"}),
    [](const auto& info) { return QString::fromLatin1(info.param.misbehaviour).remove(u'-').toStdString(); });

TEST(DemoFolders, AreGivenToTheirOwnRequestAlone) {
  const ScratchFolder folder;
  DemoProcess service(folder, builtProgram("kesto-demo-printer"),
                      {u"--folders-only"_s, u"--folder-port"_s, u"0"_s});
  const QString address = QString::fromLatin1(service.readOutLine().trimmed());
  const auto answerTo = [&](const QByteArray& request) {
    QTcpSocket socket;
    socket.connectToHost(address.section(u':', 0, 0), address.section(u':', 1).toUShort());
    socket.write(request);
    while (socket.waitForReadyRead()) {
    }
    return socket.readAll();
  };
  const auto post = [&](const QByteArray& body) {
    return answerTo("POST /kesto-mfp-srv HTTP/1.1\r\nContent-Length: " + QByteArray::number(body.size()) +
                    "\r\n\r\n" + body);
  };
  EXPECT_TRUE(answerTo("GET /kesto-mfp-srv HTTP/1.1\r\n\r\n").startsWith("HTTP/1.1 405 "));
  EXPECT_TRUE(answerTo("POST / HTTP/1.1\r\n\r\n").startsWith("HTTP/1.1 404 "));
  EXPECT_TRUE(answerTo(QByteArray(64 * 1024 + 1, 'x')).startsWith("HTTP/1.1 413 "));
  EXPECT_TRUE(post("<a><other/></a>").contains("unsupported-operation"));
  EXPECT_TRUE(post("<a><list-files/></a>").contains("<name>Invoices</name>"));
}

TEST(DemoFolders, AreReadFromAFile) {
  const ScratchFolder folder;
  const auto faultOf = [&](const QByteArray& bytes) {
    folder.write(u"list"_s, bytes);
    DemoFolders folders;
    QString reason = readFolders(folder.path(u"list"_s), &folders).reason();
    return reason.remove(folder.path(u"list"_s));
  };
  EXPECT_EQ(faultOf("Invoices\n\n# a remark\nPlans\tlocked\n"), QString());
  EXPECT_EQ(faultOf("Invoices\n\tlocked\n"), u": line 2: the folder has no name"_s);
  EXPECT_EQ(faultOf("Plans\topen\n"), u": line 1: after the tab only \"locked\" may follow"_s);
  EXPECT_EQ(faultOf("Pl\x1B[2Jans\n"), u": line 1: a control character in the folder's name"_s);
  EXPECT_EQ(faultOf("Pl\xFF"), u": is no text in UTF-8"_s);
}

}  // namespace
}  // namespace kesto::test
