// What becomes of a job after it is sent: in words, and on the real scheduler with kesto-lp --wait.
#include "hosts/session/job_watch.h"
#include "tests/support/hostile_server.h"
#include "tests/support/print_program.h"

namespace kesto::test {
namespace {

TEST(JobFateTest, IsSaidInTheUsersTerms) {
  constexpr int pending = IPP_JSTATE_PENDING, held = IPP_JSTATE_HELD, printing = IPP_JSTATE_PROCESSING;
  constexpr int done = IPP_JSTATE_COMPLETED, canceled = IPP_JSTATE_CANCELED;
  const QStringList jam{u"com.example-x-report"_s, u"media-jam"_s};
  const QString connecting = u"connecting-to-device"_s;
  const QStringList held1{u"cups-held-for-authentication"_s};
  using Case = std::tuple<JobReport, Text, Text>;  // and the settings that were sent; "!" begins a failure
  for (const auto& [report, settings, line] :
       {Case{{.state = pending}, "", "Waiting for the printer"},
        Case{{.state = pending, .jobsAhead = 2, .printerReasons = jam}, "", "Waiting for 2 other jobs"},
        Case{{.state = held, .reasons = held1}, "", "Held: the printer asks for a password"},
        Case{{.state = held, .holdUntil = u"18:30"_s}, "", "Held until its time to print"},
        Case{{.state = printing, .printerReasons = {u"toner-low-warning"_s}}, "", "Printing"},
        Case{{.state = printing, .printerReasons = {connecting}}, "", "Connecting to the printer"},
        Case{{.state = printing, .printerReasons = {u"x\033[1m-error"_s}}, "", "Stopped: X\\x1b[1m"},
        Case{{.state = printing, .page = 2, .pages = 3}, "", "Printing page 2 of 3"},
        Case{{.state = done, .printerReasons = jam}, "jobSuspend=0", "Printed"},
        Case{{.state = done}, "jobSuspend=2", "Waits at q until you release it there"},
        Case{{.state = done}, "jobSuspend=3 jobSuspendKey=x", "One copy is printed, the others wait at q"},
        Case{{.state = canceled, .driverMessage = u"No A5"_s}, "jobSuspend=2", "!Canceled (No A5)"},
        Case{{.state = canceled, .message = u"By \"anna\"."_s, .driverMessage = u"x"_s},
             "",
             "!Canceled by anna"},
        Case{{.state = IPP_JSTATE_STOPPED, .message = u"a"_s, .driverMessage = u" b\n"_s},
             "",
             "!Stopped by the print server (a  b)"}}) {
    QMap<QString, QString> sent;
    forEachValue(settings, [&](const QString& name, const QString& value) {
      sent.insert(u"kesto.print.PrintSettings."_s + name, value);
    });
    const JobFate fate = fateOf(report, u"q"_s, PrinterHold::of(sent));
    EXPECT_EQ((fate.isEnd && !fate.isSuccess() ? u"!"_s : u""_s) + fate.line(), line);
  }
}

TEST_F(LpTest, AWaitEndsWhateverTheServerDoes) {
  const auto answered = [](const QByteArray& bytes) {
    return "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(bytes.size()) + "\r\n\r\n" + bytes;
  };
  const std::pair<Misbehaviour, Text> misbehaviours[] = {
      {{}, "did not answer within 1 s"},
      {{.closes = true}, "closed the connection"},
      {{answered("x"), {}, 20ms, true}, "cannot read the print server's answer"},
      {{answered("\2\0\4\6\0\0\0\1\3"_ba), {}, 20ms, true}, ""},  // not found
  };
  for (const int operation : {IPP_OP_CREATE_PRINTER_SUBSCRIPTIONS, IPP_OP_GET_NOTIFICATIONS,
                              IPP_OP_GET_JOB_ATTRIBUTES, IPP_OP_GET_JOBS}) {
    for (const auto& [misbehaviour, fault] : misbehaviours) {
      const HostileServer server(operation, misbehaviour);
      const LpRun lp = run(u"-h %1 --timeout 1 --wait=2 -d q %2"_s.arg(server.address(), m_ppd.path()));
      // Without events the job itself is asked for, and a printer may have no other jobs.
      const bool isHarmless = operation == IPP_OP_CREATE_PRINTER_SUBSCRIPTIONS ||
                              (operation == IPP_OP_GET_JOBS && fault.isEmpty());
      EXPECT_TRUE(server.hasMisbehaved());
      EXPECT_EQ(lp.code, isHarmless ? 4 : 1) << operation << lp.err;
      EXPECT_TRUE(lp.err.contains(isHarmless ? u": Waiting for the printer"_s
                                             : u": It is not known whether the job is printed ("_s) &&
                  (isHarmless || lp.err.contains(fault)))
          << operation << lp.err;
    }
  }
}

class JobWait : public PrintTest {
 protected:
  JobWait() { m_folder.write(u"pin"_s, "2468\n"); }
  std::unique_ptr<QProcess> startWaiting(const QString& arguments) const {
    auto lp = process(command(u"--wait "_s + arguments));
    lp->start();
    return lp;
  }
  // Reads lines until one contains the text.
  static void awaitLine(QProcess& lp, const QString& text) {
    QString lines;
    do
      lines += QString::fromUtf8(lp.readLine());
    while (!lines.contains(text) && (lp.canReadLine() || lp.waitForReadyRead()));
    EXPECT_TRUE(lines.contains(text)) << lines;
  }
};

TEST_F(JobWait, GoesOnWhileTheJobCan) {
  m_printer->setFault(u"jam"_s);
  const auto first = startWaiting(u"--json DOCUMENT"_s);
  awaitLine(*first, u"\"message\":\"Remove the paper from tray 1\",\"reason\":\"media-jam-error\""_s);
  const auto second = startWaiting(u"DOCUMENT"_s);
  awaitLine(*second, u"Office_MFP-2: Waiting for 1 other job\n"_s);
  m_printer->setFault(u"no-paper"_s);
  awaitLine(*first, u"Stopped: Out of paper"_s);
  m_printer->setFault(u"none"_s);
  awaitLine(*first, u"{\"end\":true,\"job\":1,\"state\":\"printed\",\"text\":\"Printed\"}\n"_s);
  EXPECT_TRUE(finish(*second).out.endsWith(u"Office_MFP-2: Printed\n"_s));
  EXPECT_EQ(second->exitCode() + finish(*first).code, 0);
}

TEST_F(JobWait, EndsWithTheJob) {
  const LpRun held = lp(u"--wait --hold only --pin-file %1 DOCUMENT"_s.arg(m_folder.path(u"pin"_s)));
  EXPECT_TRUE(held.out.endsWith(u": Waits at Office_MFP until you enter your pass code there\n"_s))
      << held.out;
  EXPECT_EQ(held.code, 0);
  EXPECT_TRUE(QDir(m_printer->place(u"output"_s)).removeRecursively());
  const LpRun refused = lp(u"--wait DOCUMENT"_s);
  EXPECT_TRUE(refused.err.contains(u": Not printed ("_s) && refused.err.contains(u"cannot print it"_s))
      << refused.err;
  EXPECT_EQ(refused.code, 1);
  EXPECT_EQ(lp(u"--wait=0 DOCUMENT"_s).code + lp(u"--wait --list"_s).code, 4) << "wrong usage";
  for (const char* edits : {"", "$a PreserveJobHistory No"}) {
    if (*edits != 0) {
      changeScheduler(m_folder, edits);
      startPrinter();
    }
    m_printer->setFault(u"paused"_s);
    const auto canceled = startWaiting(u"DOCUMENT"_s);
    awaitLine(*canceled, u": Stopped: the printer is paused (Paused for maintenance)\n"_s);
    ofPrintSystem(u"cancel -U anna Office_MFP"_s);
    EXPECT_TRUE(finish(*canceled).err.endsWith(u": Canceled by anna\n"_s)) << edits;
    EXPECT_EQ(canceled->exitCode(), 1);
  }
  m_printer->setFault(u"none"_s);
  EXPECT_TRUE(lp(u"--wait DOCUMENT"_s).out.endsWith(u": Printed\n"_s)) << "without a history";
  const LpRun late = lp(u"--wait=1 -s -H hold DOCUMENT"_s);
  EXPECT_EQ(late.err, u"kesto-lp: not waiting any longer: Office_MFP-3: Held until it is released\n"_s);
  EXPECT_EQ(late.code, 4);
  speak("de_DE.UTF-8");
  const LpRun german = lp(u"--wait DOCUMENT"_s);
  EXPECT_TRUE(german.out.startsWith(u"request id is Office_MFP-4 (1 file(s))\n"_s)) << german.out;
  EXPECT_TRUE(german.out.endsWith(u"Office_MFP-4: Gedruckt\n"_s)) << german.out;
  EXPECT_TRUE(lp(u"--wait --json DOCUMENT"_s).out.endsWith(u"\"text\":\"Printed\"}\n"_s));
}

}  // namespace
}  // namespace kesto::test
