// kesto-lp and its print server: refused jobs, broken connections, lists and checks.
#include <QtNetwork/QTcpServer>

#include "hosts/cups/job_follower.h"
#include "hosts/cups/server_address.h"
#include "tests/support/print_program.h"

namespace kesto::test {
namespace {

using namespace std::chrono_literals;

TEST_F(PrintTest, ARefusedJobNeverReachesTheScheduler) {
  addQueue(u"Print_System"_s, "*ARKestoPrintSystem: \"False\"", "*ARKestoPrintSystem: \"True\"");
  addQueue(u"Plain"_s, "*APDialogExtension", "*% none");
  addQueue(u"Raw"_s, {}, {});
  ofPrintSystem(u"/usr/sbin/cupsreject Raw"_s);
  using Case = std::tuple<Text, int, Text>;
  const Text noPanel = "the printer \"%1\" does not offer Job Handling";
  for (const auto& [arguments, code, message] :
       {Case{"-d Print_System", 3, "Job Handling: the login name is missing; set it with --login"},
        Case{"-d Print_System --user-number {}", 3,
             "Job Handling: the user number is missing; set it with --user-number"},
        Case{"--pin 1", 3, "--pin requires --hold"},
        Case{"--preset none", 1, "there is no preset \"none\"; this printer has no presets"},
        Case{"/no/\u001b[2J\u202e", 1, "/no/\\x1b[2J\\u202e: No such file or directory"},
        Case{"/dev", 1, "/dev: is a folder"}, Case{"-d Nowhere", 1, "there is no printer named \"Nowhere\""},
        Case{"-d \"No where\" --hold only", 1, "there is no printer named \"No where\""},
        Case{"-d Plain --hold only", 1, noPanel.arg(u"Plain")},
        Case{"-d Plain --forget pin", 1, noPanel.arg(u"Plain")},
        Case{"-d Raw --pin-file -", 1, noPanel.arg(u"Raw")}})
    expectRefused(arguments + u" DOCUMENT --job-name x --remember job-name --save-preset p"_s, code, message);
  const QString alert = u"Please confirm the following setting items.\nLogin Name\nUser Number\n"_s;
  EXPECT_TRUE(lp(u"-d Print_System"_s).err.startsWith(alert));
  expectRefused(u"-d Raw DOCUMENT"_s, 1, u"\"Raw\" is not accepting jobs: Rejecting Jobs"_s);
  EXPECT_EQ(schedulersJobs(), QString());
  for (const auto& queue : {u"-d Office_MFP "_s, u"-d Print_System --login x "_s}) {
    EXPECT_EQ(lp(queue + u"--dry-run"_s).values(u"holdButton=0"_s), u"holdButton=0"_s);
    EXPECT_EQ(lp(queue.section(u"--"_s, 0, 0) + u"--list-presets"_s).out, QString());
  }

  EXPECT_EQ(lp(u"-d Plain -t letter DOCUMENT"_s).out, u"request id is Plain-1 (1 file(s))\n"_s);
  ofPrintSystem(u"/usr/sbin/lpadmin -x Office_MFP"_s);
  expectRefused(u"DOCUMENT"_s, 1, u"no default printer is set; choose one with -d"_s);
}

TEST_F(PrintTest, APresetServesAQueueWithoutThePanelToo) {
  addQueue(u"Plain"_s, "*APDialogExtension", "*% none");
  const QString printer = ofPrintSystem(u"lpstat -v Office_MFP"_s).trimmed().section(u' ', -1);
  ofPrintSystem(u"/usr/sbin/lpadmin -p Plain -v "_s + printer);
  recordFilter();
  expectPrinted(u"-d Plain --save-preset folded -o sides=two-sided-short-edge DOCUMENT"_s);
  expectPrinted(u"-d Plain --preset folded DOCUMENT"_s);
  waitForJob(2);
  EXPECT_TRUE(filterArguments(2).value(4).contains(u"Duplex=DuplexTumble"_s)) << filterArguments(2).value(4);
  expectRefused(u"-d Plain --preset folded -o raw DOCUMENT"_s, 2,
                u"a raw job bypasses the driver, and Job Handling with it"_s);
}

TEST_F(PrintTest, EntriesAreKeptOnceTheJobIsSent) {
  const QString job = u"--hold only --pin 1234 --remember pin --save-preset p DOCUMENT -"_s;
  const auto kept = [this] {
    return lp(u"--dry-run --hold only"_s).values(u"holdButton jobSuspend2Key"_s) + u' ' +
           lp(u"-d Office_MFP --list-presets"_s).out.trimmed();
  };
  const QString nothing = u"holdButton=0 jobSuspend2Key "_s;
  const int scheduler = bytesOf(m_folder.path(u"run/cups/state/cupsd.pid"_s)).trimmed().toInt();
  for (const bool isSilent : {true, false}) {  // or it is gone
    const auto unfinished = process(command(u"--timeout 0.5 "_s + job));
    unfinished->start();
    waitUntilListed(isSilent ? 1 : 2);
    EXPECT_EQ(kept(), nothing);
    if (isSilent) {
      ::kill(scheduler, SIGSTOP);
    } else {
      m_printer->signal(SIGTERM);
      EXPECT_EQ(m_printer->code(), 0);
    }
    unfinished->write("too late");
    unfinished->closeWriteChannel();
    const LpRun broken = finish(*unfinished);
    EXPECT_EQ(broken.code, 1) << isSilent;
    EXPECT_TRUE(broken.err.startsWith(u"kesto-lp: could not print (stdin): "_s)) << broken.err;
    EXPECT_EQ(broken.err.contains(u"did not answer within 0.5 s"_s), isSilent) << broken.err;
    EXPECT_EQ(broken.out, QString()) << isSilent;
    if (isSilent) ::kill(scheduler, SIGCONT);
  }

  const QString server = m_printer->place(u"server"_s);
  expectRefused(job, 1, u"cannot connect to the print server %1. Is it running?"_s.arg(server));
  startPrinter();
  EXPECT_EQ(kept(), nothing);
  expectPrinted(job);
  EXPECT_EQ(kept(), u"holdButton=1 jobSuspend2Key=3F3FA6A226B041DE0CA8F37F0E03543E p"_s);
}

TEST_F(PrintTest, ReportsEntriesThatCannotBeKept) {
  ASSERT_TRUE(store(preferences(), {{u"Presets"_s, u"x"_s}}, u"kesto.presets.Office_MFP"_s));
  expectRefused(u"DOCUMENT --save-preset p"_s, 1,
                u"this printer's presets are damaged and were left unchanged"_s);
  EXPECT_EQ(schedulersJobs(), QString());
  forgetAll();
  ASSERT_TRUE(QFile::link(u"/dev/null"_s, m_folder.path(u"kesto"_s)));
  const QString why = u"cannot make the folder %1/kesto private\n"_s.arg(m_folder.path(u""_s));
  for (const auto& [arguments, code, message] :
       {std::tuple("", 0, u"warning: cannot remember the entries: "_s),
        {"--wait --remember job-name", 1, u"the job was sent, but: cannot remember the entries: "_s}}) {
    const LpRun sent = lp(u"DOCUMENT "_s + QLatin1String(arguments));
    EXPECT_EQ(sent.code, code) << arguments;
    EXPECT_EQ(sent.err, u"kesto-lp: "_s + message + why);
    EXPECT_TRUE(sent.out.startsWith(u"request id is "_s)) << sent.out;
    EXPECT_EQ(sent.out.endsWith(u": Printed\n"_s), code == 1) << "waits all the same";
  }
}

TEST_F(PrintTest, ASignalCancelsAJobThatIsNotWhole) {
  int job = 0;
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    const bool isIgnored = signal == SIGHUP;
    const auto unfinished = process(command(u"DOCUMENT -"_s));
    unfinished->setChildProcessModifier([=] { ::signal(signal, isIgnored ? SIG_IGN : SIG_DFL); });
    unfinished->start();
    waitUntilListed(++job);
    const auto program = static_cast<pid_t>(unfinished->processId());
    ASSERT_GT(program, 0);
    ::kill(program, signal);
    unfinished->write("the end");
    if (isIgnored) unfinished->closeWriteChannel();
    ASSERT_TRUE(unfinished->waitForFinished());
    EXPECT_EQ(unfinished->exitStatus(), isIgnored ? QProcess::NormalExit : QProcess::CrashExit) << signal;
    EXPECT_TRUE(isIgnored || ofPrintSystem(u"lpstat -o"_s).isEmpty()) << signal;
  }
  waitForJob(job, 2);
  EXPECT_EQ(m_printer->printouts(), QStringList({u"job-3-1"_s, u"job-3-2"_s}));
}

TEST_F(PrintTest, WhatAnotherUserSeesOfAJob) {
  const auto seenBy = [this](const char* user) {
    const QStringList names = m_printer->attributesOfJob(1, user).keys();
    return names.filter(QLatin1String(printSettingsPrefix)).size() + names.count(u"job-name"_s);
  };
  const QString none = u": other users see none of a job's options.\n"_s;
  const QString some = u": other users see of a job "_s;
  for (const bool isPrivate : {true, false}) {
    if (!isPrivate) changeScheduler(m_folder, "/JobPrivate/d");
    if (!isPrivate) startPrinter();
    ofPrintSystem(u"/usr/sbin/cupsdisable Office_MFP"_s);
    expectPrinted(u"--hold only --pin 1234 --user-number 42 DOCUMENT"_s);
    EXPECT_GT(seenBy("anna"), 6);
    EXPECT_EQ(seenBy("berta") > 0, !isPrivate);
    const LpRun check = lp(u"--check Office_MFP"_s);
    EXPECT_EQ(check.code, isPrivate ? 0 : 1) << check.err;
    const QString panel = some + u"the digest of the pass code, the pass code, "_s;
    EXPECT_TRUE(check.out.startsWith(u"Office_MFP"_s + (isPrivate ? none : panel))) << check.out;
    const QString lines = u"in <Policy demo>:\n  JobPrivateAccess @OWNER @SYSTEM\n  JobPrivateValues all\n"_s;
    EXPECT_EQ(check.out.contains(lines), !isPrivate) << check.out;
    const QJsonValue json = jsonOf(u"--check Office_MFP --json"_s);
    EXPECT_EQ(json[u"shown"].toArray().isEmpty(), isPrivate);
    EXPECT_EQ(json[u"policy"], u"demo"_s);
    EXPECT_EQ(json[u"closedBy"].toArray().size(), 2);
    EXPECT_EQ(schedulersJobs().count(u"Office_MFP-"_s), 1) << "the job of the check stays";
    addQueue(u"Plain"_s, "*APDialogExtension", "*% none");
    EXPECT_TRUE(lp(u"--check Plain"_s)
                    .out.startsWith(u"Plain"_s + (isPrivate ? none : some + u"the job's options.\n"_s)));
  }
  expectRefused(u"--check Nowhere"_s, 1,
                u"cannot create a job on \"Nowhere\": The printer or class does not exist."_s);
}

TEST_F(PrintTest, APrintersPasswordGoesToItsBackendAlone) {
  const QString backend = m_folder.path(u"run/cups/bin/backend/recording"_s);
  m_folder.write(u"run/cups/bin/backend/recording"_s,
                 "#!/bin/sh\n[ $# -gt 0 ] && env >\"$TMPDIR/environment-$1\"\nexit 0\n");
  ASSERT_TRUE(QFile::setPermissions(backend, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
  const QString queue = u"/usr/sbin/lpadmin -p Shared -E -v recording://x -o auth-info-required="_s;
  m_folder.write(u"password"_s, "open sesame\n");
  int job = 0;
  for (const auto& [wanted, user, arrives] :
       {std::tuple("username,password", "anna", "AUTH_USERNAME=anna"),
        {"domain,username,password", "OFFICE\\\\anna", "AUTH_DOMAIN=OFFICE"},
        {"none", "anna", "USER=anna"}}) {
    ofPrintSystem(queue + QLatin1String(wanted));
    const QString arguments = u"-U %1 -d Shared -o raw --server-password-file %2 DOCUMENT"_s;
    expectPrinted(arguments.arg(QLatin1String(user), m_folder.path(u"password"_s)));
    const QString environment = m_folder.path(u"run/cups/spool/tmp/environment-%1"_s.arg(++job));
    waitFor([&] { return QFile::exists(environment) && ofPrintSystem(u"lpstat -o"_s).isEmpty(); });
    const QByteArray text = bytesOf(environment);
    EXPECT_EQ(text.contains(arrives), QByteArray(wanted) != "none") << text;
    EXPECT_EQ(text.contains("AUTH_PASSWORD=open sesame\n"), QByteArray(wanted) != "none") << text;
    EXPECT_FALSE(m_printer->attributesOfJob(job, "anna").keys().contains(u"auth-info"_s));
  }
}

TEST_F(PrintTest, AJobThatIsHeldForItsPasswordIsGivenAnother) {
  m_folder.write(u"password"_s, "open 100 % sesame\n");
  startPrinter({u"--password-file"_s, m_folder.path(u"password"_s)});
  std::atomic<int> questions = 0;
  ServerAddress address{.address = m_printer->place(u"server"_s), .user = u"anna"_s};
  address.passwords =
      std::make_shared<PasswordKeeper>([&](const PasswordQuestion& question, Credentials* answer) {
        EXPECT_EQ(question.wasWrong, questions++ > 0);
        *answer = {.user = question.proposed.user,
                   .password = question.wasWrong ? u"open 100 % sesame"_s : u"0815"_s};
        return Outcome::done();
      });
  std::unique_ptr<PrintServer> server;
  ASSERT_TRUE(address.connect(&server));
  SentJob job{.queue = u"Office_MFP"_s};
  const PrintJob document{
      .title = u"t"_s, .files = {{.path = m_folder.path(u"document"_s).toUtf8()}}, .options = {}};
  ASSERT_TRUE(sendJob(
      *server, job.queue, document, [](int, qint64, qint64) { return true; }, &job.number));
  JobFollower follower(address, job);
  std::optional<JobReport> last;
  QObject::connect(&follower, &JobFollower::reported, [&](const JobReport& report) { last = report; });
  waitFor([&] { return last && last->isFinished(); });
  EXPECT_EQ(last->state, IPP_JSTATE_COMPLETED) << last->reasons.join(u' ');
  EXPECT_EQ(questions, 2);
}

TEST_F(PrintTest, ListsQueues) {
  addQueue(u"Plain"_s, "*APDialogExtension", "*% none");
  addQueue(u"A_Raw"_s, {}, {});
  ofPrintSystem(u"/usr/sbin/cupsreject Plain"_s);
  ofPrintSystem(u"/usr/sbin/cupsdisable A_Raw"_s);
  ofPrintSystem(u"/usr/sbin/lpadmin -p A_Raw -L Attic"_s);
  ofPrintSystem(u"/usr/sbin/lpadmin -p Plain -o printer-state-reasons=media-empty-error"_s);
  const QString address = ofPrintSystem(u"lpstat -v Office_MFP"_s).trimmed().section(u' ', -1);
  const QString office = u"Office_MFP\tidle\t%1\tKESTO VQ-250n PS\t\n"_s.arg(address);
  const QString rest = u"\tsocket://127.0.0.1:9\t%1\t%2\n"_s;
  EXPECT_EQ(lp(u"--list"_s).out, u"A_Raw\tstopped, paused"_s + rest.arg(u"Local Raw Printer"_s, u"Attic"_s) +
                                     office + u"Plain\tidle, not accepting jobs, out of paper"_s +
                                     rest.arg(u"KESTO VQ-250n PS"_s, QString()));
  EXPECT_EQ(lp(u"--list --job-handling"_s).out, office);
  EXPECT_EQ(jsonOf(u"--list --json"_s)[2][u"accepting"], false);
  EXPECT_EQ(jsonOf(u"--list --json --job-handling"_s).toArray(),
            (QJsonArray{QJsonObject{{u"accepting"_s, true},
                                    {u"address"_s, address},
                                    {u"info"_s, u"Kesto VQ-250n (demo)"_s},
                                    {u"jobs"_s, 0},
                                    {u"location"_s, u""_s},
                                    {u"message"_s, u""_s},
                                    {u"model"_s, u"KESTO VQ-250n PS"_s},
                                    {u"network"_s, false},
                                    {u"reasons"_s, QJsonArray()},
                                    {u"queue"_s, u"Office_MFP"_s},
                                    {u"state"_s, u"idle"_s}}}));
  // The scheduler encrypts once it has a place for its certificate.
  const QString encrypted = u"-E -h %1 --list --job-handling"_s.arg(m_printer->place(u"port"_s));
  EXPECT_TRUE(run(encrypted).err.contains(u" with encryption\n"_s));
  ASSERT_TRUE(QDir().mkdir(m_folder.path(u"run/cups/ssl"_s)));
  EXPECT_EQ(run(encrypted).out, office);
  speak("de_DE.UTF-8");
  EXPECT_TRUE(lp(u"--list"_s)
                  .out.endsWith(u"\nPlain\tbereit, nimmt keine Aufträge an, Kein Papier"_s +
                                rest.arg(u"KESTO VQ-250n PS"_s, QString())));
}

TEST_F(PrintTest, APrinterWithoutAPpdPrintsDirectlyAndBehindTheScheduler) {
  // The print system's sample printer looks for a system bus, and announces itself on none.
  DemoProcess bus(m_folder, u"dbus-daemon --session --nofork --nopidfile --address=unix:path=%1/bus"_s);
  waitFor([&] { return QFile::exists(m_folder.path(u"bus"_s)); });
  QTcpServer port;
  ASSERT_TRUE(port.listen(QHostAddress::LocalHost) && QDir(m_folder.path({})).mkdir(u"printed"_s));
  const QString address = u"127.0.0.1:%1"_s.arg(port.serverPort());
  port.close();
  DemoProcess printer(m_folder,
                      u"env DBUS_SYSTEM_BUS_ADDRESS=unix:path=%1/bus ippeveprinter -k -r off -d "
                      "%1/printed -f application/pdf -p "_s +
                          address.section(u':', 1) + u" Sample"_s);
  waitFor([&] { return !run(u"-h %1 --list"_s.arg(address)).err.contains(u"cannot connect"_s); });
  const QString uri = u"ipp://%1/ipp/print"_s.arg(address);
  const auto printed = [this] { return QDir(m_folder.path(u"printed"_s)).entryList({u"*.pdf"_s}).size(); };
  const LpRun direct =
      lp(u"--wait -d %1 -o media=A4,labels -o document-format=application/pdf DOCUMENT"_s.arg(uri));
  EXPECT_TRUE(direct.out.startsWith(u"request id is %1-1 (1 file(s))\n"_s.arg(uri))) << direct.err;
  EXPECT_TRUE(direct.out.endsWith(u"-1: Printed\n"_s)) << direct.out << direct.err;
  waitFor([&] { return printed() == 1; });
  const QString backend = m_folder.path(u"run/cups/bin/backend/ipp"_s);
  ASSERT_TRUE(QFile::copy(u"/usr/lib/cups/backend/ipp"_s, backend));
  QFile::setPermissions(backend, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  ofPrintSystem(u"/usr/sbin/lpadmin -p Sample -E -v "_s + uri);
  expectPrinted(u"-d Sample -o document-format=application/pdf DOCUMENT"_s);
  waitFor([&] { return printed() == 2; });
}

TEST_F(PrintTest, ListsFoldersAndKeepsOnlyItsOwn) {
  const QString saved = u"--dry-run --hold only --save-preset p --folder invoices"_s;
  EXPECT_EQ(lp(saved).code, 0);
  EXPECT_EQ(presetFolder(u"Office_MFP"_s), "invoices") << "it is not known yet";
  const QString folders = u"--folders --address "_s + m_printer->place(u"folders"_s);
  EXPECT_EQ(lp(folders).out, u"Invoices\nPlans & <Papers>\tlocked\n"_s);
  EXPECT_EQ(lp(saved).code, 0);
  EXPECT_EQ(presetFolder(u"Office_MFP"_s), "Invoices");
  const QJsonValue second = jsonOf(folders + u" --json"_s)[1];
  EXPECT_EQ(second[u"name"], u"Plans & <Papers>"_s);
  EXPECT_EQ(second[u"password"], true);

  // An answer file in a shared folder may be that of another printer or another user.
  QFile(m_folder.path(u"vwxyz.xml"_s)).remove();
  m_folder.write(u"vwxyz.xml"_s, "<e><b><r><files><f><name>Foreign</name></f></files></r></b></e>");
  const LpRun unreached = lp(u"--folders --address 127.0.0.1:1"_s);
  EXPECT_EQ(unreached.code, 1);
  EXPECT_EQ(
      unreached.err,
      u"Could not retrieve Folder Names.\nkesto-lp: no folder list from 127.0.0.1:1: connection refused\n"_s);
  EXPECT_EQ(unreached.out, QString()) << "the earlier list";
  const Domain kept = preferences().persistentDomainForName(u"kesto.mfp.Office_MFP"_s);
  EXPECT_EQ(kept.values.value()[u"Job Handling"_s][u"files"_s][0][u"name"_s], u"Invoices"_s)
      << "the queue has another's folders";
  m_environment.insert(u"TMPDIR"_s, u"/nonexistent"_s);
  EXPECT_EQ(lp(folders).err,
            u"kesto-lp: cannot write the printer's answer to the temporary folder. Is the disk full?\n"_s);
  addQueue(u"Plain"_s, "*APDialogExtension", "*% none");
  expectRefused(u"--folders -d Plain"_s, 1, u"the printer \"Plain\" does not offer Job Handling"_s);
}

}  // namespace
}  // namespace kesto::test
