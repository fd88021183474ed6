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
    ask(R"({"do": "show"})");
    ask(R"({"do": "restore"})");
  }

  QJsonObject ask(const QByteArray& command) {
    write(command + '\n');
    return QJsonDocument::fromJson(readOutLine()).object();
  }
  // Fetches the folders from an address. Returns whether there was an alert.
  bool fetch(const QString& address) {
    ask(R"({"do": "caret", "control": "printersAddressEditText", "location": 0, "length": 1000})");
    ask(R"({"do": "paste", "control": "printersAddressEditText", "text": ")" + address.toLatin1() + "\"}");
    const QJsonObject answer = ask(R"({"do": "click", "control": "getFolderNameButton"})");
    EXPECT_FALSE(answer.contains(u"error"_s)) << address;
    return answer.contains(u"alerts"_s);
  }
  // The names of the folders, a locked one with "*"; of a long list, the number of names and the last one.
  QString folders() {
    QStringList names;
    for (const QJsonValue folder : ask(R"({"do": "facts"})")[u"folderList"].toArray())
      names.append(folder[u"name"].toString() + (folder[u"password"].toBool() ? u"*"_s : QString()));
    return names.size() < 10 ? names.join(u'|') : u"%1 %2"_s.arg(names.size()).arg(names.last());
  }
};

// What a panel that listed "Before" does with each answer, and that it lists "Before" again. "never" and
// "trickle" are left out, because the panel waits 20 seconds for them.
TEST(DemoFolders, MisbehaveAsTheyAreTold) {
  const ScratchFolder folder;
  folder.write(u"before"_s, "Before\n");
  folder.write(u"now"_s, "# The printer's folders\n\nInvoices\nPlans & <Papers>\tlocked\n");
  const auto serve = [&](const QString& list, const QStringList& arguments) {
    return QStringList{u"--folders-only"_s, u"--folders"_s, folder.path(list)} + arguments;
  };
  RunningPrinter before(folder, serve(u"before"_s, {}));
  PanelProcess panel(folder);
  using Case = std::tuple<Text, bool, Text>;
  const Text listOfNow = "Invoices|Plans & <Papers>*";
  for (const auto& [misbehaviour, isAlert, folders] :
       {Case{"entity-bomb", false, "Before"}, Case{"external-entity", false, listOfNow},
        Case{"deep-nesting", false, "Before"}, Case{"many-attributes", false, "Before"},
        Case{"many-references", false, "Before"}, Case{"many-folders", false, "100000 Folder 100000"},
        Case{"endless", true, "Before"}, Case{"reset", true, "Before"}, Case{"redirect", false, "Before"},
        Case{"invalid-utf8", false, "Before"}, Case{"nul-in-name", false, "Before"},
        Case{"close", true, "Before"}, Case{"error-status", false, listOfNow},
        Case{"failed-result", false, ""}, Case{"not-xml", false, "Before"}, Case{"empty", false, "Before"}}) {
    SCOPED_TRACE(misbehaviour);
    ASSERT_FALSE(panel.fetch(before.place(u"folders"_s)));
    ASSERT_EQ(panel.folders(), u"Before"_s);
    RunningPrinter now(folder, serve(u"now"_s, {u"--misbehave"_s, misbehaviour}));
    EXPECT_EQ(panel.fetch(now.place(u"folders"_s)), isAlert);
    EXPECT_EQ(panel.folders(), folders);
    EXPECT_FALSE(now.log().contains("elsewhere")) << "a redirect was followed";
  }
  panel.closeWriteChannel();
  EXPECT_EQ(panel.code(), 0);
}

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
  EXPECT_EQ(faultOf("Plans\topen\n"), u": line 1: only \"locked\" may follow the tab"_s);
  EXPECT_EQ(faultOf("Pl\x1B[2Jans\n"), u": line 1: the folder's name has a control character"_s);
  EXPECT_EQ(faultOf("Pl\xFF"), u": not a text file in UTF-8"_s);
}

}  // namespace
}  // namespace kesto::test
