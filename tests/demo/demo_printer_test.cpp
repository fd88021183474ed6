// The whole demo printer: the real scheduler, its queue, and the printer behind it.
#include <cups/cups.h>

#include <QtNetwork/QLocalSocket>

#include "demo/printer.h"
#include "demo/run_folder.h"
#include "tests/support/demo_process.h"

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

  // A printed or held job of "anna", sent by the print system's own program. `settings`: "key=value ..." by
  // the last components of the keys.
  void send(const RunningPrinter& printer, const QString& settings) const {
    QStringList arguments{u"-h"_s, printer.place(u"server"_s),
                          u"-d"_s, printer.place(u"queue"_s),
                          u"-U"_s, u"anna"_s,
                          u"-t"_s, u"a title"_s};
    for (const QString& setting : settings.split(u' ', Qt::SkipEmptyParts)) {
      arguments << u"-o"_s << u"kesto.print.PrintSettings."_s + setting;
    }
    DemoProcess lp(m_folder, u"lp"_s, arguments << m_folder.path(u"document"_s));
    EXPECT_EQ(lp.code(), 0) << lp.log().toStdString();
  }
  static void expectEnd(const RunningPrinter& printer, int job, const QString& wanted) {
    QString state;
    waitFor([&] {
      state = printer.attributesOfJob(job, "anna").value(u"job-state"_s);
      return state == u"completed" || state == u"aborted";
    });
    EXPECT_EQ(state, wanted);
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
  struct Case {
    QString arguments;
    int code;
    QByteArray message;
  };
  const QString noPrinter = u" --dir "_s + m_folder.path(u"none"_s);
  for (const Case& row :
       {Case{u"--misbehave nonsense"_s, 2, "unknown misbehaviour nonsense"},
        Case{u"--queues 0x1"_s, 2, "--queues"},
        Case{u"--folders-only=no"_s, 2, "--folders-only takes no value"},
        Case{u"--output %1/run/paper --dir %1/run"_s.arg(m_folder.path(u"."_s)), 1,
             "goes with the run folder"},
        Case{u"--folders-only --folders /no/such"_s, 1, "/no/such: No such file or directory"},
        Case{u"--dir "_s + m_folder.path(QString(90, u'x')), 1, "the path has more than 90 bytes"},
        Case{u"--dir "_s + m_folder.path(u"a#b"_s), 1, "or special characters"},
        Case{u"--dir "_s + m_folder.path(u"link"_s), 1, "the folder belongs to another user"},
        Case{u"--dir /no/such/folder"_s, 1, "No such file or directory"},
        Case{u"--dir "_s + m_folder.path(u""_s), 1, "holds other files"},
        Case{u"--output %1/paper --dir "_s.arg(m_folder.path(u"document"_s)) + m_folder.path(u"run"_s), 1,
             "cannot create the folder"},
        Case{u"release 1 --pin 12"_s + noPrinter, 1, "no demo printer is running at "},
        Case{u"release 1 --pin 4711x"_s, 2, "must be 1 to 8 digits"},
        Case{u"release 1 --pin-file "_s + m_folder.path(u"bad-pin"_s), 1,
             "the first line must be 1 to 8 digits"},
        Case{u"release 1 --pin-file /no/such"_s, 1, "/no/such: No such file or directory"},
        Case{u"release 31 4711x"_s, 2, "unexpected argument"},
        Case{u"release 4711x"_s, 2, "JOB: the number must be"}, Case{u"release"_s, 2, "JOB"}}) {
    DemoProcess program(m_folder, builtProgram("kesto-demo-printer"), row.arguments.split(u' '));
    EXPECT_EQ(program.code(), row.code) << row.arguments;
    EXPECT_TRUE(program.log().startsWith("kesto-demo-printer: ") && program.log().contains(row.message))
        << row.arguments << '\n'
        << program.log();
    EXPECT_FALSE(program.log().contains("4711x"));
    EXPECT_EQ(program.readAllStandardOutput(), "") << row.arguments;
  }
  DemoProcess list(m_folder, builtProgram("kesto-demo-printer"), {u"--misbehave"_s, u"list"_s});
  EXPECT_EQ(list.code(), 0);
  EXPECT_TRUE(
      list.readAllStandardOutput().contains("\ntrickle           the answer comes at one byte a second\n"));
}

TEST_F(DemoPrinterTest, PrintsTextForPeopleAsWell) {
  DemoProcess printer(m_folder, builtProgram("kesto-demo-printer"),
                      {u"--dir"_s, m_folder.path(u"run"_s), u"--folder-port"_s, u"0"_s});
  const QByteArray server = printer.readOutLine();
  EXPECT_EQ(server, "server   " + m_folder.path(u"run/sockets/server\n"_s).toUtf8());
  EXPECT_EQ(printer.readOutLine(), "queue    Office_MFP\n");
  EXPECT_TRUE(printer.readOutLine().startsWith("folders  127.0.0.1:"));
  DemoProcess lp(m_folder, u"lp"_s,
                 {u"-h"_s, QString::fromLatin1(server.mid(9).trimmed()), u"-d"_s, u"Office_MFP"_s, u"-U"_s,
                  u"anna"_s, u"-t"_s, u"pl\u202ean"_s, m_folder.path(u"document"_s)});
  EXPECT_EQ(lp.code(), 0) << lp.log();
  printer.waitForLog("printed\n");
  DemoProcess jobs(m_folder, builtProgram("kesto-demo-printer"),
                   {u"jobs"_s, u"--dir"_s, m_folder.path(u"run"_s)});
  EXPECT_EQ(jobs.code(), 0);
  EXPECT_EQ(jobs.readAllStandardOutput(), "   1  printed  anna          pl\\u202ean\n");
  DemoProcess unread(m_folder, u"sh"_s,
                     {u"-c"_s, u"\"$0\" jobs --dir \"$1\" >/dev/full"_s, builtProgram("kesto-demo-printer"),
                      m_folder.path(u"run"_s)});
  EXPECT_EQ(unread.code(), 1);
}

TEST_F(DemoPrinterTest, HoldsAJobUntilItsPassCodeComes) {
  RunningPrinter printer(m_folder);
  send(printer,
       u"jobSuspend=2 jobSuspendKey=%1 spoolTime=%2 accountNumber=00042 jobName31=5A77C3B66C66"_s.arg(
           QLatin1String(digest), QLatin1String(spoolTime)));
  printer.waitForLog("job 1 from anna: held (pass code)\n");
  EXPECT_EQ(printer.jobs(), R"([{"account":"00042","job":1,"name":"Zwölf","state":"held","user":"anna"}])");
  EXPECT_EQ(printer.release({u"1"_s}), 3);
  EXPECT_EQ(printer.release({u"1"_s, u"--pin"_s, u"12468"_s}), 3);
  EXPECT_EQ(printer.release({u"2"_s, u"--pin"_s, u"2468"_s}), 1) << "there is no such job";
  EXPECT_EQ(printer.printouts(), QStringList());

  EXPECT_EQ(printer.release({u"1"_s, u"--pin-file"_s, m_folder.path(u"pin"_s)}), 0);
  ASSERT_EQ(printer.printouts(), QStringList{u"job-1-1"_s});
  EXPECT_EQ(bytesOf(printer.place(u"output"_s) + u"/job-1-1"_s), m_document);
  EXPECT_TRUE(printer.jobs().contains(R"("state":"printed")"));
  EXPECT_EQ(printer.release({u"1"_s, u"--pin"_s, u"2468"_s}), 1) << "it is held no longer";
  EXPECT_FALSE(printer.log().contains("2468") || printer.log().contains(digest));
}

TEST_F(DemoPrinterTest, PrintsAndHoldsByTheRetention) {
  RunningPrinter printer(m_folder, {u"--output"_s, m_folder.path(u"paper"_s)});
  for (const char* settings : {"", "jobSuspend=0", "jobSuspend=1", "jobSuspend=2", "jobSuspend=3"}) {
    send(printer, QLatin1String(settings));
  }
  printer.waitForLog("job 5 from anna: held\n");
  EXPECT_EQ(printer.printouts(), QStringList({u"job-1-1"_s, u"job-2-1"_s, u"job-3-1"_s, u"job-5-1"_s}));
  EXPECT_EQ(printer.jobs().count(R"("state":"held")"), 3);
  EXPECT_EQ(printer.jobs().count(R"({"account":null,"job":4,"name":"a title","state":"held","user":"anna"})"),
            1);
  EXPECT_EQ(printer.release({u"5"_s}), 0) << "it has no pass code";
  printer.signal(SIGTERM);
  EXPECT_EQ(printer.code(), 0);
  EXPECT_EQ(bytesOf(m_folder.path(u"paper/job-5-2"_s)), m_document) << "a folder of the caller's stays";
}

TEST_F(DemoPrinterTest, ShowsAJobsOptionsToItsOwnerAlone) {
  RunningPrinter printer(m_folder);
  send(printer, u"jobSuspend=2 jobSuspendKey=0123"_s);
  printer.waitForLog("held");
  const auto seenBy = [&](const char* user) {
    return QStringList(printer.attributesOfJob(1, user).keys()).join(u' ');
  };
  EXPECT_TRUE(seenBy("anna").contains(u"kesto.print.PrintSettings.jobSuspendKey "_s));
  EXPECT_FALSE(seenBy("bert").contains(u"kesto"_s) || seenBy("bert").contains(u"job-name"_s));
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
  expectEnd(printer, 1, u"aborted"_s);
  send(printer, {});
  printer.waitForLog("job 2 from anna: printed");
  expectEnd(printer, 2, u"completed"_s);
}

TEST_F(DemoPrinterTest, LeavesNothingBehindAndStartsWhereAnotherWasKilled) {
  RunningPrinter first(m_folder);
  const QFile::Permissions mode = QFile::permissions(m_folder.path(u"run"_s));
  DemoProcess second(m_folder, builtProgram("kesto-demo-printer"), {u"--dir"_s, m_folder.path(u"run"_s)});
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
  for (const auto& [temporary, expected] :
       {std::pair(QByteArray("/var/tmp"), u"/var/tmp"_s + name), std::pair(QByteArray(), u"/tmp"_s + name),
        std::pair(QByteArray("/var/tmp/").append(80, 'x'), u"/tmp"_s + name),
        std::pair(QByteArray("/var/a#b"), u"/tmp"_s + name)}) {
    qputenv("TMPDIR", temporary);
    EXPECT_EQ(RunFolder::standardPath(), expected) << temporary;
  }
  qputenv("TMPDIR", before);
}

TEST_F(DemoPrinterTest, WorksForAnOrdinaryUser) {
  if (getuid() != 0) GTEST_SKIP() << "every other test shows it";
  const QStringList asNobody{u"--reuid=nobody"_s, u"--regid=nogroup"_s, u"--clear-groups"_s,
                             builtProgram("kesto-demo-printer")};
  DemoProcess probe(m_folder, u"setpriv"_s, asNobody + QStringList{u"--help"_s});
  if (probe.code() != 0) GTEST_SKIP() << "the program cannot be reached by other users";
  DemoProcess place(m_folder, u"install"_s, {u"-d"_s, u"-o"_s, u"nobody"_s, m_folder.path(u"nobody"_s)});
  ASSERT_EQ(place.code(), 0);
  DemoProcess printer(m_folder, u"setpriv"_s,
                      asNobody + QStringList{u"--dir"_s, m_folder.path(u"nobody/run"_s), u"--folder-port"_s,
                                             u"0"_s, u"--json"_s});
  const QJsonObject places = QJsonDocument::fromJson(printer.readOutLine()).object();
  DemoProcess lp(
      m_folder, u"lp"_s,
      {u"-h"_s, places[u"server"].toString(), u"-d"_s, u"Office_MFP"_s, m_folder.path(u"document"_s)});
  EXPECT_EQ(lp.code(), 0) << lp.log();
  printer.waitForLog("printed\n");
  EXPECT_EQ(bytesOf(places[u"output"].toString() + u"/job-1-1"_s), m_document);
  printer.signal(SIGINT);
  EXPECT_EQ(printer.code(), 0);
  EXPECT_FALSE(QDir(m_folder.path(u"nobody/run"_s)).exists());
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
  struct Case {
    QByteArray bytes;
    QByteArray answer;
    qsizetype jobs;
  };
  for (const Case& row :
       {Case{whole + "@END\n", "taken\n", 1}, Case{whole + ticket + "1\nd0\n@END\n", "taken\n", 1},
        Case{whole + "@KESTO job=7\n@END\n", noFormat, 1}, Case{ticket + "@END\n", noFormat, 0},
        Case{ticket + "3\nabc@END\n", noFormat, 0}, Case{ticket + "-3\nabc0\n", noFormat, 0},
        Case{ticket + "x\n", noFormat, 0}, Case{ticket + "9223372036854775807\nabc", noFormat, 0},
        Case{ticket + "65537\nabc", noFormat, 0}, Case{"@END\n", noFormat, 0}, Case{"abc\n", noFormat, 0},
        Case{"@KESTO job\n", noFormat, 0}, Case{"@KESTO user=anna\n\n0\n", noFormat, 0},
        Case{QByteArray(100'000, 'a'), noFormat, 0},
        Case{QByteArray("@KESTO a=b\n").repeated(1000) + whole, noFormat, 0}}) {
    LonePrinter printer;
    EXPECT_EQ(printer.answerTo(row.bytes), row.answer) << row.bytes.left(100);
    EXPECT_EQ(printer.store.list().size(), row.jobs) << row.bytes.left(100);
  }
}

TEST(PrinterTest, ReportsAJobThatItRefuses) {
  LonePrinter printer;
  const auto job = [](const QByteArray& user) {
    return "@KESTO job=7\n@KESTO user=" + user + "\n\n3\nabc0\n@END\n";
  };
  EXPECT_EQ(printer.answerTo(job("anna")), "taken\n");
  EXPECT_EQ(printer.answerTo(job("bert")), "refused: another job has the same number\n");
  ASSERT_TRUE(QDir(printer.folder.path(u"output"_s)).removeRecursively());
  EXPECT_EQ(printer.answerTo(job("anna")), "refused: cannot print it\n");
}

JobTicket ticketOf(const QByteArrayList& settings) {
  JobTicket ticket;
  for (const QByteArray& setting : settings)
    EXPECT_TRUE(ticket.addLine("kesto.print.PrintSettings." + setting));
  ticket.addLine("title=from%20the%20host");
  return ticket;
}

TEST(JobTicketTest, OpensWithItsPassCodeAndTakesTheNameFromThePanelFirst) {
  const JobTicket ticket =
      ticketOf({QByteArray("jobSuspendKey=") + digest, QByteArray("spoolTime=") + spoolTime});
  EXPECT_TRUE(ticket.opensWith(u"2468"_s) && ticket.opensWith(u"02468"_s));
  EXPECT_FALSE(ticket.opensWith(u"002468"_s) || ticket.opensWith(u""_s));
  EXPECT_EQ(ticket.name(), u"from the host"_s);
  EXPECT_EQ(ticketOf({"jobName2=80756E64"}).name(), u"€und"_s);
  EXPECT_EQ(ticketOf({"jobName2=41", "jobName31=E2", "jobName32=82AC42"}).name(), u"€B"_s);
}

}  // namespace
}  // namespace kesto::test
