// A job's whole way: kesto-lp, the real scheduler, the queue's filter, and the printer behind it.
#include <QtCore/QCryptographicHash>
#include <QtCore/QDateTime>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QElapsedTimer>
#include <QtNetwork/QTcpServer>

#include "demo_process.h"
#include "hosts/cups/print_job.h"
#include "lp_program.h"

namespace kesto::test {
namespace {

const QString prefix = u"kesto.print.PrintSettings."_s;
const QString oddTitle = u" Größe \"A4\" & 'B5' \\ 100 % = Ωμ"_s;

// One argument of a command line, whatever is in it.
QString quoted(QString argument) {
  return u'"' + argument.replace(u'"', uR"(""")"_s) + u'"';
}

QByteArray digest(const QByteArray& text) {
  return QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex();
}

class PrintTest : public LpTest {
 protected:
  PrintTest() {
    m_folder.write(u"document"_s, m_document);
    m_folder.write(u"second"_s, "another\n");
    m_folder.write(u"folders"_s, "Invoices\nPlans & <Papers>\tlocked\n");
    changeConfiguration("/AuthType/d; /Require user @SYSTEM$/d");
    startPrinter();
  }
  // Puts a scheduler before the system's that edits its configuration first: by default so that it asks
  // nobody who they are, since an ordinary user's has no administrator.
  void changeConfiguration(const QByteArray& edits) const {
    QDir().mkdir(m_folder.path(u"bin"_s));
    QFile::remove(m_folder.path(u"bin/cupsd"_s));
    m_folder.write(u"bin/cupsd"_s, "#!/bin/sh\nsed -i '" + edits +
                                       "' \"$3\"\n"
                                       "cp /usr/sbin/cupsd \"$0-copy\" && exec \"$0-copy\" \"$@\"\n");
    QFile::setPermissions(m_folder.path(u"bin/cupsd"_s), QFile::ReadOwner | QFile::ExeOwner);
    qputenv("PATH", QFile::encodeName(m_folder.path(u"bin:"_s)) + qgetenv("PATH"));
  }
  void startPrinter() {
    m_printer.reset();
    m_printer.emplace(m_folder, QStringList{u"--folders"_s, m_folder.path(u"folders"_s)});
  }

  // kesto-lp for the demo printer's server; "DOCUMENT" and "SECOND" stand for files.
  QString command(QString arguments) const {
    for (const QString& file : {u"DOCUMENT"_s, u"SECOND"_s})
      arguments.replace(file, m_folder.path(file.toLower()));
    return u"-h %1 -U anna "_s.arg(m_printer->place(u"server"_s)) + arguments;
  }
  LpRun lp(const QString& arguments, const QByteArray& input = {}) const {
    return run(command(arguments), input);
  }
  void expectPrinted(const QString& arguments, const QByteArray& input = {}) const {
    const LpRun printed = lp(arguments, input);
    EXPECT_EQ(printed.code, 0) << arguments << '\n' << printed.err;
  }
  void expectRefused(const QString& arguments, int code, const QString& message) const {
    const LpRun refused = lp(arguments);
    EXPECT_EQ(refused.code, code) << arguments;
    EXPECT_EQ(refused.err.trimmed().section(u'\n', -1), u"kesto-lp: "_s + message) << arguments;
    EXPECT_EQ(refused.out, QString()) << arguments;
  }

  // A program of the print system, at this scheduler.
  QString ofPrintSystem(const QString& command) const {
    QStringList arguments = QProcess::splitCommand(command);
    const QString name = arguments.takeFirst();
    DemoProcess program(m_folder, name, QStringList{u"-h"_s, m_printer->place(u"server"_s)} + arguments);
    EXPECT_EQ(program.code(), 0) << command << program.log();
    return QString::fromUtf8(program.readAllStandardOutput());
  }
  QString schedulersJobs() const { return ofPrintSystem(u"lpstat -W all -o"_s); }
  // Adds a queue with the demo queue's PPD, one text in it replaced; without a PPD when that is empty.
  void addQueue(const QString& name, const QByteArray& before, const QByteArray& after) const {
    const QString ppd = before.isEmpty() ? QString() : u" -P "_s + m_folder.path(u"ppd"_s);
    m_folder.write(u"ppd"_s, bytesOf(builtProgram("../share/kesto/kesto-vq250n.ppd")).replace(before, after));
    ofPrintSystem(u"/usr/sbin/lpadmin -p %1 -E -v socket://127.0.0.1:9"_s.arg(name) + ppd);
  }

  // What the scheduler answers about its first job; it believes everybody's name.
  Ipp attributesOfFirstJob(const char* user) const {
    std::unique_ptr<PrintServer> server;
    EXPECT_TRUE(PrintServer::connect(m_printer->place(u"server"_s), std::chrono::seconds(5), &server));
    const Ipp request(ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, "ipp://localhost/jobs/1");
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, user);
    Ipp reply;
    EXPECT_TRUE(server->request(request.get(), &reply));
    return reply;
  }

  // Has the queue's filter write its arguments down before it does its work.
  void recordFilter() const {
    const QString filter = m_folder.path(u"run/cups/bin/filter/kesto-demo-filter"_s);
    ASSERT_TRUE(QFile::rename(filter, m_folder.path(u"run/cups/bin/filter/recorded"_s)));
    m_folder.write(u"run/cups/bin/filter/kesto-demo-filter"_s,
                   "#!/bin/sh\nprintf '%s\\0' \"$@\" > \"$TMPDIR/arguments-$1\"\n"
                   "exec \"$CUPS_SERVERBIN/filter/recorded\" \"$@\"\n");
    const QFile::Permissions program = QFile::permissions(m_folder.path(u"run/cups/bin/filter/recorded"_s));
    ASSERT_TRUE(QFile::setPermissions(filter, program));
  }
  // The filter's arguments: job, user, title, copies, options.
  QStringList filterArguments(int job) const {
    const QByteArray bytes = bytesOf(m_folder.path(u"run/cups/spool/tmp/arguments-%1"_s.arg(job)));
    return QString::fromUtf8(bytes).split(u'\0');
  }
  QJsonObject arrivedSettings(int job) const {
    QJsonObject settings;
    const QMap<QString, QString> options = parseJobOptions(filterArguments(job).value(4));
    for (auto it = options.begin(); it != options.end(); ++it) {
      if (it.key().startsWith(prefix)) settings.insert(it.key(), it.value());
    }
    return settings;
  }
  void waitForJob(int job, int documents = 1) {
    for (int i = 0; i < documents; ++i)
      m_printer->waitForLog("job %1 from anna: "_ba.replace("%1", QByteArray::number(job)));
  }

  ScratchFolder m_folder;
  const QByteArray m_document = pdfDocument();
  std::optional<RunningPrinter> m_printer;
};

TEST_F(PrintTest, EverySettingArrivesAsTheDryRunShowsIt) {
  recordFilter();
  const QString cases[] = {
      u""_s,
      u"--hold only"_s,
      u"--hold only --pin 2468"_s,
      u"--hold after --folder quick"_s,
      u"--hold sample --folder main --pin 2468 --remember pin,job-name"_s,
      u"--hold only --folder \"Büro 1\" --folder-pin 13"_s,
      u"--hold only --folder X --folder-pin 13 --pin 2468 --remember pin,folder,folder-pin"_s,
      u"--user-number 42 --account-number 77 --remember user-number"_s,
      u"--login ann --remember login"_s,
      u"--user-name \"Jörg Ωμ\" --job-name "_s + quoted(u"Angebot \"7\", 100 % = ü"_s),
      u"-t "_s + quoted(oddTitle),
      u"-t "_s + QString(300, u'a'),
      u"-t "_s + QString(300, u'ä'),
  };
  int job = 0;
  for (QString entries : cases) {
    if (!entries.contains(u"-t "_s)) entries += u" -t letter"_s;
    forgetAll();
    auto expected = QJsonDocument::fromJson(lp(u"--dry-run --json "_s + entries).out.toUtf8()).object();
    EXPECT_GE(expected.size(), 5) << entries;
    forgetAll();
    const QDateTime start = QDateTime::currentDateTime().addMSecs(-1000);
    expectPrinted(u"DOCUMENT "_s + entries);
    waitForJob(++job);
    QJsonObject arrived = arrivedSettings(job);
    const auto taken = [&](const char* name) {
      const QString key = prefix + QLatin1String(name);
      EXPECT_EQ(arrived.contains(key), expected.contains(key)) << entries << key;
      expected.remove(key);
      return arrived.take(key).toString().toLatin1();
    };
    // What is of the moment: the time, and what is made from it.
    const QByteArray time = QByteArray::fromHex(taken("spoolTime"));
    const auto moment = QDateTime::fromString(QString::fromLatin1(time), Qt::RFC2822Date);
    EXPECT_TRUE(time.size() == 31 && start <= moment && moment <= QDateTime::currentDateTime()) << time;
    EXPECT_EQ(taken("jobSuspendKey"), entries.contains(u"2468"_s) ? digest("02468" + time) : "") << entries;
    EXPECT_EQ(taken("folderPassword"), entries.contains(u"13"_s) ? digest(time + "00013") : "") << entries;
    EXPECT_EQ(arrived, expected) << entries;
  }
  const auto pieces = [&](int number) {
    QList<qsizetype> sizes;
    for (int piece = 1; piece <= 5; ++piece)
      sizes += arrivedSettings(number)[prefix + u"jobName3%1"_s.arg(piece)].toString().size();
    return sizes;
  };
  EXPECT_EQ(pieces(job - 1), (QList<qsizetype>{254, 254, 92, 0, 0}));
  EXPECT_EQ(pieces(job), (QList<qsizetype>{254, 254, 254, 198, 0}));
}

TEST_F(PrintTest, DocumentsAndOptionsOfTheJobArrive) {
  recordFilter();
  const struct {
    Text arguments, title, options;
    const char* documents = "";  // D for the large one, S for the second, I for standard input
    const char* copies = "1";
  } cases[] = {
      {"DOCUMENT", "document", "number-up=1", "D"},
      {"DOCUMENT SECOND DOCUMENT", "document", "", "DSD"},
      {"", "(stdin)", "", "I"},
      {"- SECOND -t both", "both", "", "IS"},
      {"-n 3 SECOND", "second", "", "S", "3"},
      {"-P 2-4 -o sides=one-sided -oInputSlot=Tray2 SECOND", "second",
       "page-ranges=2-4 sides=one-sided InputSlot=Tray2", "S"},
      {R"("-o custom="""a b""" flag noflags" SECOND)", "second", R"(custom=a\ b flag=true flags=false)", "S"},
      {u"SECOND -t "_s + quoted(oddTitle), oddTitle, "", "S"},
      {"SECOND -t \"two\nlines\"", "two lines", "", "S"},
      {u"SECOND -t "_s + QString(300, u'a'), QString(255, u'a'), "", "S"},
      {u"SECOND -t "_s + QString(300, u'ä'), QString(127, u'ä'), "", "S"},
  };
  int job = 0;
  const QByteArray input = "typed\n";
  for (const auto& [arguments, title, options, documents, copies] : cases) {
    expectPrinted(arguments, input);
    const QByteArrayView expectedDocuments(documents);
    waitForJob(++job, static_cast<int>(expectedDocuments.size()));
    const QStringList filter = filterArguments(job);
    EXPECT_EQ(filter.mid(0, 4), QStringList({QString::number(job), u"anna"_s, title, QLatin1String(copies)}))
        << arguments;
    const QMap<QString, QString> expected = parseJobOptions(options);
    const QMap<QString, QString> arrived = parseJobOptions(filter.value(4));
    for (auto it = expected.begin(); it != expected.end(); ++it)
      EXPECT_EQ(arrived.value(it.key()), it.value()) << arguments << it.key();
    for (int i = 0; i < expectedDocuments.size(); ++i) {
      const char which = expectedDocuments[i];
      const QString printout = m_printer->place(u"output"_s) + u"/job-%1-%2"_s.arg(job).arg(i + 1);
      EXPECT_EQ(bytesOf(printout), which == 'D'   ? m_document
                                   : which == 'S' ? "another\n"_ba
                                                  : input)
          << arguments;
    }
  }
}

TEST_F(PrintTest, AJobIsHeldUntilItsPassCode) {
  m_folder.write(u"pin"_s, "2468\n");
  EXPECT_EQ(lp(u"--hold only --pin-file - --account-number 7 --job-name \"Zwölf 12\" DOCUMENT -"_s,
               "2468\nfrom standard input")
                .out,
            u"request id is Office_MFP-1 (2 file(s))\n"_s);
  waitForJob(1, 2);
  EXPECT_EQ(m_printer->jobs(),
            R"([{"account":"00007","job":1,"name":"Zwölf 12","state":"held","user":"anna"}])");
  for (const auto& wrong : {u"2469"_s, u"246"_s, u"24680"_s})
    EXPECT_EQ(m_printer->release({u"1"_s, u"--pin"_s, wrong}), 3) << wrong;
  EXPECT_EQ(m_printer->printouts(), QStringList());
  EXPECT_EQ(m_printer->release({u"1"_s, u"--pin-file"_s, m_folder.path(u"pin"_s)}), 0);
  EXPECT_EQ(m_printer->printouts(), QStringList({u"job-1-1"_s, u"job-1-2"_s}));
  EXPECT_EQ(bytesOf(m_printer->place(u"output"_s) + u"/job-1-1"_s), m_document);
  EXPECT_EQ(bytesOf(m_printer->place(u"output"_s) + u"/job-1-2"_s), "from standard input");
}

TEST_F(PrintTest, WhatIsRefusedNeverReachesTheScheduler) {
  addQueue(u"Print_System"_s, "*ARKestoPrintSystem: \"False\"", "*ARKestoPrintSystem: \"True\"");
  addQueue(u"Plain"_s, "*APDialogExtension", "*% none");
  addQueue(u"Raw"_s, {}, {});
  ofPrintSystem(u"/usr/sbin/cupsreject Raw"_s);
  const QString missing = u"The printer or class does not exist."_s;
  const std::tuple<QString, int, QString> cases[] = {
      {u"-d Print_System"_s, 3, u"Job Handling: the login name is missing; give --login"_s},
      {u"-d Print_System --user-number {}"_s, 3,
       u"Job Handling: the user number is missing; give --user-number"_s},
      {u"--pin 1"_s, 3, u"--pin needs --hold"_s},
      {u"--hold only --pin 123456789"_s, 3, u"--pin takes at most 8 digits"_s},
      {u"--hold only --folder-pin 1"_s, 3,
       u"--folder-pin needs --folder NAME of a folder with a pass code, or a custom folder"_s},
      {u"--preset none"_s, 1, u"there is no preset \"none\"; this queue has none"_s},
      {u"/no/file"_s, 1, u"/no/file: No such file or directory"_s},
      {u"/dev"_s, 1, u"/dev: is a folder"_s},
      {u"-d Nowhere"_s, 1, u"the queue Nowhere cannot be had: "_s + missing},
      {u"-d \"No where\" --hold only"_s, 1, u"the queue No where cannot be had: "_s + missing},
      {u"-d Plain --hold only"_s, 1, u"the queue Plain does not offer Job Handling"_s},
      {u"-d Raw --pin-file -"_s, 1, u"the queue Raw does not offer Job Handling"_s},
  };
  for (const auto& [arguments, code, message] : cases) {
    const QString memory = u" DOCUMENT --job-name x --remember job-name --save-preset p"_s;
    expectRefused(arguments + memory, code, message);
  }
  expectRefused(u"-d Raw DOCUMENT"_s, 1,
                u"the job is not taken: Destination \"Raw\" is not accepting jobs."_s);
  EXPECT_EQ(schedulersJobs(), QString());
  for (const auto& queue : {u"-d Office_MFP "_s, u"-d Print_System --login x "_s}) {
    EXPECT_EQ(lp(queue + u"--dry-run"_s).values(u"holdButton=0"_s), u"holdButton=0"_s);
    EXPECT_EQ(lp(queue.section(u"--"_s, 0, 0) + u"--list-presets"_s).out, QString());
  }

  EXPECT_EQ(lp(u"-d Plain -t letter DOCUMENT"_s).out, u"request id is Plain-1 (1 file(s))\n"_s);
  ofPrintSystem(u"/usr/sbin/lpadmin -x Office_MFP"_s);
  expectRefused(u"DOCUMENT"_s, 1, u"there is no default queue; choose one with -d"_s);
}

TEST_F(PrintTest, AStoppedQueueTakesJobsAndLetsThemWait) {
  ofPrintSystem(u"/usr/sbin/cupsdisable Office_MFP"_s);
  EXPECT_EQ(lp(u"--json -q 71 DOCUMENT"_s).out, u"{\"job\":1}\n"_s);
  const Ipp job = attributesOfFirstJob("anna");
  EXPECT_EQ(ippGetInteger(ippFindAttribute(job.get(), "job-priority", IPP_TAG_INTEGER), 0), 71);
  EXPECT_EQ(lp(u"-s DOCUMENT"_s).out, QString());
  EXPECT_TRUE(lp(u"--list"_s).out.startsWith(u"Office_MFP\tstopped\tsocket://127.0.0.1:"_s));
  EXPECT_EQ(schedulersJobs().count(u"anna"_s), 2);
  EXPECT_EQ(m_printer->jobs(), "[]");
  ofPrintSystem(u"/usr/sbin/cupsenable Office_MFP"_s);
  waitForJob(2);
  EXPECT_EQ(m_printer->printouts(), QStringList({u"job-1-1"_s, u"job-2-1"_s}));
}

TEST_F(PrintTest, EntriesAreKeptWhenTheJobIsOut) {
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
    const QDeadlineTimer deadline(std::chrono::seconds(20));
    while (!schedulersJobs().contains(isSilent ? u"Office_MFP-1"_s : u"Office_MFP-2"_s))
      ASSERT_FALSE(deadline.hasExpired()) << "there is no job";
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
    EXPECT_TRUE(broken.err.startsWith(u"kesto-lp: (stdin) is not taken: "_s)) << broken.err;
    EXPECT_EQ(broken.out, QString()) << isSilent;
    if (isSilent) ::kill(scheduler, SIGCONT);
  }

  const QString server = m_printer->place(u"server"_s);
  expectRefused(job, 1, u"the print server %1 does not answer: Host is down"_s.arg(server));
  startPrinter();
  EXPECT_EQ(kept(), nothing);
  expectPrinted(job);
  EXPECT_EQ(kept(), u"holdButton=1 jobSuspend2Key=3F3FA6A226B041DE0CA8F37F0E03543E p"_s);
}

TEST_F(PrintTest, WhatAnotherUserSeesOfAJob) {
  const auto seenBy = [this](const char* user) {
    const Ipp reply = attributesOfFirstJob(user);
    QStringList settings;
    for (auto* each = ippFirstAttribute(reply.get()); each != nullptr; each = ippNextAttribute(reply.get()))
      settings += QString::fromUtf8(ippGetName(each));
    return settings.filter(prefix).size();
  };
  const QString sees = u"Office_MFP: other users see of a job the digest of the pass code, the pass code, "_s;
  for (const bool isPrivate : {true, false}) {
    if (!isPrivate) changeConfiguration("/AuthType/d; /Require user @SYSTEM$/d; /JobPrivate/d");
    if (!isPrivate) startPrinter();
    ofPrintSystem(u"/usr/sbin/cupsdisable Office_MFP"_s);
    expectPrinted(u"--hold only --pin 1234 --user-number 42 DOCUMENT"_s);
    EXPECT_GT(seenBy("anna"), 5);
    EXPECT_EQ(seenBy("berta") > 0, !isPrivate);
    const LpRun check = lp(u"--check Office_MFP"_s);
    EXPECT_EQ(check.code, isPrivate ? 0 : 1) << check.err;
    EXPECT_TRUE(
        check.out.startsWith(isPrivate ? u"Office_MFP: other users see none of a job's options.\n"_s : sees))
        << check.out;
    EXPECT_EQ(check.out.contains(
                  u"in <Policy demo>:\n  JobPrivateAccess @OWNER @SYSTEM\n  JobPrivateValues all\n"_s),
              !isPrivate)
        << check.out;
    const QJsonObject json =
        QJsonDocument::fromJson(lp(u"--check Office_MFP --json"_s).out.toUtf8()).object();
    EXPECT_EQ(json[u"shown"].toArray().isEmpty(), isPrivate);
    EXPECT_EQ(json[u"policy"], u"demo"_s);
    EXPECT_EQ(json[u"closedBy"].toArray().size(), 2);
    EXPECT_EQ(schedulersJobs().count(u"Office_MFP-"_s), 1) << "the job of the check stays";
  }
  expectRefused(u"--check Nowhere"_s, 1,
                u"the queue Nowhere takes no job: The printer or class does not exist."_s);
}

TEST_F(PrintTest, ListsQueuesAndFolders) {
  addQueue(u"Plain"_s, "*APDialogExtension", "*% none");
  addQueue(u"A_Raw"_s, {}, {});
  ofPrintSystem(u"/usr/sbin/cupsreject Plain"_s);
  const QString address = ofPrintSystem(u"lpstat -v Office_MFP"_s).trimmed().section(u' ', -1);
  const QString office = u"Office_MFP\tidle\t%1\n"_s.arg(address);
  EXPECT_EQ(lp(u"--list"_s).out, u"A_Raw\tidle\tsocket://127.0.0.1:9\n"_s + office +
                                     u"Plain\tidle, takes no jobs\tsocket://127.0.0.1:9\n"_s);
  EXPECT_EQ(lp(u"--list --job-handling"_s).out, office);
  const auto json = [this](const QString& arguments) {
    return QJsonDocument::fromJson(lp(arguments).out.toUtf8()).array();
  };
  EXPECT_EQ(json(u"--list --json"_s).size(), 3);
  EXPECT_EQ(json(u"--list --json"_s)[2][u"accepting"], false);
  const char described[] = R"~([{"accepting":true,"address":"%1","info":"Kesto VQ-250n (demo)",)~"
                           R"("queue":"Office_MFP","state":"idle"}])";
  EXPECT_EQ(QJsonDocument(json(u"--list --json --job-handling"_s)).toJson(QJsonDocument::Compact),
            QString::fromLatin1(described).arg(address).toUtf8());

  const auto folderOf = [this](const QString& name) {
    return lp(u"--dry-run --summary --hold only --folder "_s + name).out.section(u'\n', 0, 0);
  };
  EXPECT_EQ(folderOf(u"invoices"_s), u"Folder: Main Folder"_s) << "it is not known yet";
  const QString folders = u"--folders --address "_s + m_printer->place(u"folders"_s);
  EXPECT_EQ(lp(folders).out, u"Invoices\nPlans & <Papers>\tlocked\n"_s);
  EXPECT_EQ(folderOf(u"invoices"_s), u"Folder: Invoices"_s);
  EXPECT_EQ(json(folders + u" --json"_s)[1][u"name"], u"Plans & <Papers>"_s);
  EXPECT_EQ(json(folders + u" --json"_s)[1][u"password"], true);
  expectRefused(u"--folders -d Plain"_s, 1, u"the queue Plain does not offer Job Handling"_s);
}

// A server that takes connections and never answers, then an address where there is none.
TEST_F(LpTest, GivesUpOnASilentServer) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
  const QString address = u"127.0.0.1:%1"_s.arg(server.serverPort());
  for (const QString& reason : {u" does not answer: Connection timed out\n"_s,
                                u" %1 does not answer: Host is down\n"_s.arg(address)}) {
    for (const auto& arguments :
         {u"--list"_s, u"-d q -"_s, u"-"_s, u"-d q --dry-run"_s, u"-d q --folders"_s}) {
      QElapsedTimer clock;
      clock.start();
      const LpRun ended = run(u"--timeout 0.3 -h %1 "_s.arg(address) + arguments);
      EXPECT_LT(clock.elapsed(), 10'000) << arguments;
      EXPECT_EQ(ended.code, 1) << arguments;
      EXPECT_EQ(ended.err, u"kesto-lp: the print server"_s + reason) << arguments;
      EXPECT_EQ(ended.out, QString()) << arguments;
    }
    server.close();
  }
}

}  // namespace
}  // namespace kesto::test
