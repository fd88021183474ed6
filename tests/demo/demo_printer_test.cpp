// The whole demo printer: the real scheduler, its queue, the printer that the queue sends to, and the folder
// service.
#include <cups/cups.h>

#include <QtNetwork/QLocalSocket>
#include <QtNetwork/QTcpSocket>

#include "demo/folder_list.h"
#include "demo/printer.h"
#include "demo/run_folder.h"
#include "tests/support/lp_program.h"

namespace kesto::test {
namespace {

// A job's pass code 2468 and its spool time, and the digest over "02468" and that time.
constexpr char spoolTime[] = "5361742C203031204D617220323032352031303A30303A3030202B30313030";
constexpr char digest[] = "d3ad484767c21bc2fb561b1ed44522e8";

class DemoPrinterTest : public testing::Test {
 protected:
  DemoPrinterTest() {
    m_folder.write(u"document"_s, m_document);
    m_folder.write(u"pin"_s, "2468\n");
  }

  // Sends a job of "anna" with the print system's own program. `settings`: "key=value ..." by
  // the last components of the keys.
  static void send(const RunningPrinter& printer, const QString& settings) {
    QString command = u"lp -U anna -t \"a title\" %1/document"_s;
    for (const QString& setting : settings.split(u' ', Qt::SkipEmptyParts))
      command += u" -o kesto.print.PrintSettings."_s + setting;
    printer.ofPrintSystem(command);
  }
  static void awaitState(const RunningPrinter& printer, int job, const QString& state) {
    waitFor([&] { return printer.attributesOfJob(job, "anna").value(u"job-state"_s) == state; });
  }
  // The command lines of the processes that speak of the run folder, our own and those of the test left out.
  QStringList strayProcesses() const {
    QStringList lines;
    for (const QString& process : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
      QFile line(u"/proc/%1/cmdline"_s.arg(process));
      if (!line.open(QIODevice::ReadOnly)) continue;
      const QByteArray bytes = line.readAll();
      if (bytes.contains(QFile::encodeName(m_folder.path(u"run"_s))))
        lines.append(QString::fromLocal8Bit(bytes));
    }
    return lines;
  }

  ScratchFolder m_folder;
  const QByteArray m_document = pdfDocument();
};

TEST_F(DemoPrinterTest, ReportsWhatItCannotDo) {
  m_folder.write(u"bad-pin"_s, "4711x\n");
  ASSERT_TRUE(QFile::link(u"/tmp"_s, m_folder.path(u"link"_s)));
  using Case = std::tuple<Text, int, Text>;  // "%1" stands for a folder, "%2" for a long name
  for (const auto& [line, code, message] :
       {Case{"--misbehave nonsense", 2, "unknown misbehaviour nonsense"}, Case{"--queues 0x1", 2, "--queues"},
        Case{"--folders-only=no", 2, "--folders-only takes no value"},
        Case{"--output %1/./run/paper --dir %1/./run", 1, "goes with the run folder"},
        Case{"--folders-only --folders /no/such", 1, "/no/such: No such file or directory"},
        Case{"--dir %1/%2", 1, "the path has more than 90 bytes"},
        Case{"--dir %1/a#b", 1, "or special characters"},
        Case{"--dir %1/link", 1, "the folder belongs to another user"},
        Case{"--dir /no/such/folder", 1, "No such file or directory"},
        Case{"--dir %1", 1, "holds other files"},
        Case{"--output %1/document/paper --dir %1/run", 1, "cannot create the folder"},
        Case{"release 1 --pin 12 --dir %1/none", 1, "no demo printer is running at "},
        Case{"release 1 --pin 4711x", 2, "must be 1 to 8 digits"},
        Case{"release 1 --pin-file %1/bad-pin", 1, "the first line must be 1 to 8 digits"},
        Case{"release 1 --pin-file /no/such", 1, "/no/such: No such file or directory"},
        Case{"release 31 4711x", 2, "unexpected argument"},
        Case{"fault fire", 2, "FAULT: must be jam, no-paper, paused or none"},
        Case{"release 4711x", 2, "JOB: the number must be"}, Case{"release", 2, "JOB"}}) {
    SCOPED_TRACE(line);
    DemoProcess program(m_folder,
                        u"kesto-demo-printer "_s + QString(line).replace(u"%2"_s, QString(90, u'x')));
    EXPECT_EQ(program.code(), code);
    EXPECT_TRUE(program.log().startsWith("kesto-demo-printer: ") && program.log().contains(message.toUtf8()))
        << program.log();
    EXPECT_FALSE(program.log().contains("4711x"));
    EXPECT_EQ(program.readAllStandardOutput(), "");
  }
  const QByteArray list = DemoProcess(m_folder, u"kesto-demo-printer --misbehave list"_s).output();
  EXPECT_TRUE(list.contains("\ntrickle           the answer comes at one byte a second\n"));
}

TEST_F(DemoPrinterTest, PrintsTextForPeopleAsWell) {
  DemoProcess printer(m_folder, u"kesto-demo-printer --dir %1/run --folder-port 0"_s);
  EXPECT_EQ(printer.readOutLine(), "server   " + m_folder.path(u"run/sockets/server\n"_s).toUtf8());
  EXPECT_EQ(printer.readOutLine(), "queue    Office_MFP\n");
  EXPECT_TRUE(printer.readOutLine().startsWith("folders  127.0.0.1:"));
  DemoProcess(m_folder, u"lp -h %1/run/sockets/server -U anna -t pl\u202ean %1/document"_s).output();
  printer.waitForLog("printed\n");
  EXPECT_EQ(DemoProcess(m_folder, u"kesto-demo-printer jobs --dir %1/run"_s).output(),
            "   1  printed  anna          pl\\u202ean\n");
}

TEST_F(DemoPrinterTest, HoldsAndPrintsByTheRetentionAndReleasesByThePassCode) {
  RunningPrinter printer(m_folder, {u"--output"_s, m_folder.path(u"paper"_s)});
  const QString withCode = u"jobSuspend=2 accountNumber=00042 jobName31=5A77C3B66C66 spoolTime="_s +
                           QLatin1String(spoolTime) + u" jobSuspendKey="_s + QLatin1String(digest);
  for (const QString& settings :
       {u""_s, u"jobSuspend=0"_s, u"jobSuspend=1"_s, u"jobSuspend=2"_s, u"jobSuspend=3"_s, withCode})
    send(printer, settings);
  printer.waitForLog("job 5 from anna: held\n");
  printer.waitForLog("job 6 from anna: held (pass code)\n");
  EXPECT_EQ(printer.release(u"6"_s), 3);
  EXPECT_EQ(printer.release(u"6 --pin 12468"_s), 3);
  EXPECT_EQ(printer.release(u"7 --pin 2468"_s), 1) << "there is no such job";
  EXPECT_EQ(printer.printouts(), QStringList({u"job-1-1"_s, u"job-2-1"_s, u"job-3-1"_s, u"job-5-1"_s}));
  EXPECT_EQ(printer.jobs().count(R"("state":"held")"), 4);
  EXPECT_TRUE(
      printer.jobs().contains(R"({"account":null,"job":4,"name":"a title","state":"held","user":"anna"})"));
  EXPECT_TRUE(
      printer.jobs().contains(R"({"account":"00042","job":6,"name":"Zwölf","state":"held","user":"anna"})"));
  EXPECT_EQ(printer.release(u"6 --pin-file %1/pin"_s), 0);
  EXPECT_TRUE(printer.jobs().contains(R"("name":"Zwölf","state":"printed")"));
  EXPECT_EQ(printer.release(u"6 --pin 2468"_s), 1) << "it is held no longer";
  EXPECT_EQ(printer.release(u"5"_s), 0) << "it has no pass code";
  EXPECT_FALSE(printer.log().contains("2468") || printer.log().contains(digest));
  printer.signal(SIGTERM);
  EXPECT_EQ(printer.code(), 0);
  for (const QString& printout : {u"paper/job-5-2"_s, u"paper/job-6-1"_s})
    EXPECT_EQ(bytesOf(m_folder.path(printout)), m_document) << "a folder of the caller's stays";
}

TEST_F(DemoPrinterTest, AFaultStopsJobsUntilItIsCleared) {
  RunningPrinter printer(m_folder, {u"--jam"_s});
  int job = 0;
  for (const auto& [fault, state] :
       {Pair{"jam", "processing"}, Pair{"no-paper", "processing"}, Pair{"paused", "pending"}}) {
    printer.setFault(fault);
    send(printer, {});
    awaitState(printer, ++job, state);
    printer.setFault(u"none"_s);
    awaitState(printer, job, u"completed"_s);
  }
  printer.setFault(u"jam"_s);
  send(printer, u"jobSuspend=2"_s);
  awaitState(printer, ++job, u"completed"_s);
  EXPECT_EQ(printer.printouts().size(), job - 1) << "a job that is only held needs no paper";
}

TEST_F(DemoPrinterTest, CountsNoJobAsPrintedThatItHasRefused) {
  RunningPrinter printer(m_folder);
  QLocalSocket other;
  other.connectToServer(m_folder.path(u"run/sockets/printer"_s));
  other.write("@KESTO job=1\n@KESTO user=mallory\n\n1\na0\n@END\n");
  ASSERT_TRUE(other.waitForBytesWritten() && other.waitForReadyRead());
  EXPECT_EQ(other.readAll(), "taken\n");
  send(printer, {});
  printer.waitForLog("thrown away: another job has the same number");
  awaitState(printer, 1, u"aborted"_s);
  send(printer, {});
  printer.waitForLog("job 2 from anna: printed");
  awaitState(printer, 2, u"completed"_s);
}

TEST_F(DemoPrinterTest, LeavesNothingBehindAndStartsAfterAKilledOne) {
  RunningPrinter first(m_folder);
  const QFile::Permissions mode = QFile::permissions(m_folder.path(u"run"_s));
  DemoProcess second(m_folder, u"kesto-demo-printer --dir %1/run"_s);
  EXPECT_EQ(second.code(), 1);
  EXPECT_TRUE(second.log().contains("a demo printer is already running there"));
  EXPECT_EQ(QFile::permissions(m_folder.path(u"run"_s)), mode) << "its jobs' account is kept out";
  EXPECT_GE(strayProcesses().size(), 2) << "the printer and its scheduler";

  first.signal(SIGKILL);
  EXPECT_EQ(first.code(), -1);
  waitFor([&] { return strayProcesses().isEmpty(); });
  RunningPrinter third(m_folder);
  EXPECT_EQ(third.jobs(), "[]");
  third.signal(SIGINT);
  EXPECT_EQ(third.code(), 0);
  EXPECT_EQ(strayProcesses(), QStringList());
  EXPECT_FALSE(QDir(m_folder.path(u"run"_s)).exists());
}

TEST(RunFolderTest, IsWhereThePathsOfItsSocketsFit) {
  const QByteArray before = qgetenv("TMPDIR");
  const QString name = u"/kesto-demo-%1"_s.arg(getuid());
  qunsetenv("XDG_RUNTIME_DIR");
  for (const auto& [temporary, folder] : Cases{{"/var/tmp", "/var/tmp"},
                                               {"", "/tmp"},
                                               {u"/var/tmp/"_s + QString(80, u'x'), "/tmp"},
                                               {"/var/a#b", "/tmp"}}) {
    qputenv("TMPDIR", temporary.toLatin1());
    EXPECT_EQ(RunFolder::standardPath(), folder + name) << temporary;
  }
  qputenv("TMPDIR", before);
}

TEST_F(DemoPrinterTest, WorksForAnOrdinaryUser) {
  if (getuid() != 0) GTEST_SKIP() << "every other test shows it";
  const QString run = m_folder.path(u"nobody/run"_s);
  DemoProcess printer(
      m_folder, u"sh"_s,
      {u"-c"_s,
       u"as='setpriv --reuid=nobody --regid=nogroup --clear-groups' && $as \"$0\" --help >\"$2\" && "
       "install -d -o nobody \"${1%/run}\" && exec $as \"$0\" --dir \"$1\" --folder-port 0 --json"_s,
       builtProgram(u"kesto-demo-printer"_s), run, m_folder.path(u"help"_s)});
  const QJsonObject places = QJsonDocument::fromJson(printer.readOutLine()).object();
  if (places.isEmpty() && bytesOf(m_folder.path(u"help"_s)).isEmpty())
    GTEST_SKIP() << "the program cannot be reached by other users";
  DemoProcess(m_folder, u"lp %1/document -h "_s + places[u"server"].toString()).output();
  printer.waitForLog("printed\n");
  EXPECT_EQ(bytesOf(places[u"output"].toString() + u"/job-1-1"_s), m_document);
  printer.signal(SIGINT);
  EXPECT_EQ(printer.code(), 0);
  EXPECT_FALSE(QDir(run).exists());
}

// A printer without a scheduler, and what it says of the bytes that are sent to it.
struct LonePrinter {
  LonePrinter() {
    EXPECT_TRUE(QDir().mkdir(folder.path(u"output"_s)) && printer.listen(folder.path(u"printer"_s)));
  }
  QByteArray answerTo(const QByteArray& bytes) {
    QLocalSocket socket;
    socket.connectToServer(folder.path(u"printer"_s));
    socket.write(bytes);
    socket.flush();
    waitFor([&] { return socket.state() != QLocalSocket::ConnectedState; });
    return socket.readAll();
  }

  ScratchFolder folder;
  JobStore store{folder.path(u""_s), folder.path(u"output"_s)};
  RawPrinter printer{store};
};

TEST(PrinterTest, AcceptsOnlyCompleteJobs) {
  const QByteArray ticket = "@KESTO job=7\n@KESTO user=anna\n\n";
  const QByteArray whole = ticket + "3\nabc0\n";
  const QByteArray noFormat = "refused: not the filter's format\n";
  using Case = std::tuple<QByteArray, QByteArray, qsizetype>;  // bytes, answer, jobs
  for (const auto& [bytes, answer, jobs] :
       {Case{whole + "@END\n", "taken\n", 1}, Case{whole + ticket + "1\nd0\n@END\n", "taken\n", 1},
        Case{whole + "@KESTO job=7\n@END\n", noFormat, 1}, Case{ticket + "@END\n", noFormat, 0},
        Case{ticket + "3\nabc@END\n", noFormat, 0}, Case{ticket + "-3\nabc0\n", noFormat, 0},
        Case{ticket + "x\n", noFormat, 0}, Case{ticket + "9223372036854775807\nabc", noFormat, 0},
        Case{ticket + "65537\nabc", noFormat, 0}, Case{"@END\n", noFormat, 0}, Case{"abc\n", noFormat, 0},
        Case{"@KESTO job\n", noFormat, 0}, Case{"@KESTO user=anna\n\n0\n", noFormat, 0},
        Case{QByteArray(100'000, 'a'), noFormat, 0},
        Case{QByteArray("@KESTO a=b\n").repeated(1000) + whole, noFormat, 0}}) {
    LonePrinter printer;
    EXPECT_EQ(printer.answerTo(bytes), answer) << bytes.left(100);
    EXPECT_EQ(printer.store.list().size(), jobs) << bytes.left(100);
  }
  LonePrinter withoutPaper;
  ASSERT_TRUE(QDir(withoutPaper.folder.path(u"output"_s)).removeRecursively());
  EXPECT_EQ(withoutPaper.answerTo(whole + "@END\n"), "refused: cannot print it\n");
}

TEST(JobTicketTest, OpensWithItsPassCodeAndTakesTheNameFromThePanelFirst) {
  const auto ticketOf = [](const QByteArrayList& settings) {
    JobTicket ticket;
    for (const QByteArray& setting : settings)
      EXPECT_TRUE(ticket.addLine("kesto.print.PrintSettings." + setting));
    ticket.addLine("title=from%20the%20host");
    return ticket;
  };
  const JobTicket ticket =
      ticketOf({QByteArray("jobSuspendKey=") + digest, QByteArray("spoolTime=") + spoolTime});
  EXPECT_TRUE(ticket.opensWith(u"2468"_s) && ticket.opensWith(u"02468"_s));
  EXPECT_FALSE(ticket.opensWith(u"002468"_s) || ticket.opensWith(u""_s));
  EXPECT_EQ(ticket.name(), u"from the host"_s);
  EXPECT_EQ(ticketOf({"jobName2=80756E64"}).name(), u"€und"_s);
  EXPECT_EQ(ticketOf({"jobName2=41", "jobName31=E2", "jobName32=82AC42"}).name(), u"€B"_s);
}

class DemoFoldersTest : public LpTest {};

// What kesto-lp does with each answer. "never" and "trickle" are left out, because it waits 20 seconds for
// them.
TEST_F(DemoFoldersTest, MisbehaveAsConfigured) {
  m_folder.write(u"list"_s, "# The printer's folders\n\nInvoices\nPlans & <Papers>\tlocked\n");
  const Text list = "Invoices\nPlans & <Papers>\tlocked\n";
  const Text broken = ": the connection was closed\n";
  const Text unread = "kesto-lp: the printer's answer is not a list of folders\n";
  for (const auto& [misbehaviour, shown] :
       {Pair{"entity-bomb", unread}, Pair{"external-entity", list}, Pair{"deep-nesting", unread},
        Pair{"many-attributes", unread}, Pair{"many-references", unread},
        Pair{"endless", ": the answer cannot be read\n"}, Pair{"reset", broken}, Pair{"redirect", unread},
        Pair{"invalid-utf8", unread}, Pair{"nul-in-name", unread}, Pair{"close", broken},
        Pair{"error-status", list}, Pair{"failed-result", unread}, Pair{"not-xml", unread},
        Pair{"empty", unread},
        // Last, because the list is kept and takes long to load.
        Pair{"many-folders", "Folder 100000\n"}}) {
    RunningPrinter printer(m_folder, {u"--folders-only"_s, u"--folders"_s, m_folder.path(u"list"_s),
                                      u"--misbehave"_s, misbehaviour});
    const LpRun lp = run(u"--folders --device-uri lpd://x --ppd %1 --address %2"_s.arg(
        m_ppd.path(), printer.place(u"folders"_s)));
    EXPECT_TRUE((lp.out + lp.err).endsWith(shown)) << misbehaviour << '\n' << lp.out.right(100) << lp.err;
    EXPECT_FALSE(printer.log().contains("elsewhere")) << "a redirect was followed";
  }
}

TEST(DemoFolders, AreGivenOnlyToTheRequestForThem) {
  const ScratchFolder folder;
  DemoProcess service(folder, u"kesto-demo-printer --folders-only --folder-port 0"_s);
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
  EXPECT_EQ(faultOf("Invoices\n\tlocked\n"), u": line 2: the folder has no name"_s);
  EXPECT_EQ(faultOf("Plans\topen\n"), u": line 1: only \"locked\" may follow the tab"_s);
  EXPECT_EQ(faultOf("Pl\x1B[2Jans\n"), u": line 1: the folder's name has a control character"_s);
  EXPECT_EQ(faultOf("Pl\xFF"), u": not a text file in UTF-8"_s);
}

}  // namespace
}  // namespace kesto::test
