// kesto-lp compared with the print system's own command: the same command lines on the same scheduler.
#include <QtCore/QRegularExpression>

#include "tests/support/print_program.h"

namespace kesto::test {
namespace {

// The result of a command line.
struct Result {
  int code = -1;
  QString out;
  int job = 0;
  QMap<QString, QString> attributes{};
  QList<QByteArray> arrived{};  // the backend's arguments, and the bytes that it received
};

class BesideTheUsualCommand : public PrintTest {
 protected:
  BesideTheUsualCommand() {
    changeScheduler(m_folder,
                    "/AuthType/d; /Require user @SYSTEM$/d; s/PreserveJobFiles No/PreserveJobFiles Yes/");
    startPrinter();
    m_folder.writeProgram(
        u"run/cups/bin/backend/record"_s,
        "[ $# = 0 ] && exit\nprintf '%s\\0' \"$2\" \"$3\" \"$4\" \"$5\" > \"$TMPDIR/arguments-$1\"\n"
        "cat ${6:+\"$6\"} > \"$TMPDIR/part-$1\" && mv \"$TMPDIR/part-$1\" \"$TMPDIR/bytes-$1\"\n");
    QFile::setPermissions(m_folder.path(u"run/cups/bin/backend/record"_s),
                          QFile::permissions(m_folder.path(u"run/cups/bin/backend/socket"_s)));
    for (const auto& queue : {u"one"_s, u"two"_s}) {
      addQueue(queue, "*APDialogExtension: \"JobHandling.pde\"\n", "");
      ofPrintSystem(u"/usr/sbin/lpadmin -p %1 -v record:/x"_s.arg(queue));
    }
    // As root, the print system's own command would write to the system's file.
    QDir(m_folder.path({})).mkdir(u".cups"_s);
    m_folder.write(u".cups/lpoptions"_s,
                   "Dest one/own media=A5 sides=two-sided-short-edge\n"
                   "Dest two/own media=A5 sides=two-sided-short-edge\n");
  }

  // A waiting or finished job.
  int sentBefore(const QString& queue, bool isDone) const {
    const QString out =
        ofPrintSystem(u"lp -U anna -d %1 -H hold %2"_s.arg(queue, m_folder.path(u"second"_s)));
    const QString job = out.section(u' ', 3, 3).section(u'-', -1);
    if (isDone) ofPrintSystem(u"cancel -U anna "_s + job);
    return job.toInt();
  }
  QMap<QString, QString> attributesOf(int job) const {
    static const QRegularExpression varying(
        u"^(|job-(id|uri|uuid|printer-up-time|k-octets.*|more-info|state-.*|p(?!riority$).*)|printer-uri|"
        ".*-at-.*|attributes-.*|document-metadata)$"_s);
    QMap<QString, QString> attributes = m_printer->attributesOfJob(job, "anna");
    for (const QString& name : attributes.keys()) {
      if (varying.match(name).hasMatch()) attributes.remove(name);
    }
    QString& state = attributes[u"job-state"_s];
    if (state != u"pending-held" && state != u"canceled") state = u"goes to the backend"_s;
    return attributes;
  }
  Result run(const QString& program, const QString& queue, QString line) const {
    Result result;
    if (line.contains(u"JOB"_s)) result.job = sentBefore(queue, line.contains(u"DONE"_s));
    line.replace(u"QJOB"_s, queue + u"-JOB"_s)
        .remove(u"DONE"_s)
        .replace(u"JOB"_s, QString::number(result.job));
    if (result.job == 0 && !QRegularExpression(u"(^| )-[di]"_s).match(line).hasMatch())
      line.prepend(u"-d QUEUE "_s);
    line.replace(u"QUEUE"_s, queue).replace(u"FILE"_s, m_folder.path(u"second"_s));
    DemoProcess process(m_folder, program,
                        QStringList{u"-h"_s, m_printer->place(u"server"_s), u"-U"_s, u"anna"_s} +
                            QProcess::splitCommand(line));
    process.write("typed\n");
    process.closeWriteChannel();
    result.code = process.code();
    result.out = QString::fromUtf8(process.readAllStandardOutput());
    const QRegularExpression request(u"^request id is %1-(\\d+) "_s.arg(queue));
    if (const auto match = request.match(result.out); match.hasMatch()) {
      result.job = match.captured(1).toInt();
      result.out.replace(match.captured(), u"request id is QUEUE-JOB "_s);
    }
    if (result.job > 0) result.attributes = attributesOf(result.job);
    return result;
  }
  // Waits until the backend has handled the job, and reads what it received.
  void readArrived(Result* result) const {
    if (!result->attributes[u"job-state"_s].startsWith(u"goes"_s)) return;
    const QString bytes = m_folder.path(u"run/cups/spool/tmp/bytes-%1"_s.arg(result->job));
    waitFor([&] { return QFile::exists(bytes); });
    static const QRegularExpression varying(u" (job-uuid|(date-)?time-at-\\w+)=\\S*"_s);
    result->arrived = {
        QString::fromUtf8(bytesOf(m_folder.path(u"run/cups/spool/tmp/arguments-%1"_s.arg(result->job))))
            .remove(varying)
            .toUtf8(),
        bytesOf(bytes).replace("@KESTO job=" + QByteArray::number(result->job), "@KESTO job=N")};
  }
};

// Command lines by what they are about. The two with cupsPrintQuality have another option as well, because
// libcups loses an array whose only option it replaces.
constexpr char sameLines[] = R"(
FILE; -- FILE FILE; -; no-such-file; FILE no-such-file
-n3 -p 20 -m -w -E -c -f form -y mode -S utf-8 -T text/plain FILE; -n 2 -n 5 FILE -q 30 -q71
-U nobody -Uanna -t a -t "-x y" -P 1 -P 2-4,7 FILE; -P x FILE; -sHhold -n 4 FILE
-H hold FILE; -H immediate -q 5 FILE; -q 5 -H immediate FILE; -H resume FILE; -H indefinite FILE
-H evening -H no-hold FILE; -H weekend FILE; -H 13:45 FILE; -H 23:59:59 FILE
-o raw; -o raw FILE; -o noraw FILE; -o RAW=false FILE; -o document-format=application/vnd.cups-raw FILE
-o document-format=text/plain FILE; -o document-format=no/such FILE; -o number-up=none FILE
-o landscape -o fit-to-page -o nofoo -o sides=two-sided-short-edge -o Sides=one-sided FILE
-o job-hold-until=hold FILE; -o job-hold-until=indefinite -n 2 -o copies=4 FILE
-o media=Custom.100x200mm -o number-up=2 -o orientation-requested=5 FILE
-o "a=b c=d  nocollate" -o "e='f g' h=i\ j k=l,m" FILE; -o "{media=A4}" -o "" -o x= FILE
-o "media-col={media-size={x-dimension=21000 y-dimension=29700} media-type=stationery}" FILE
-o media=A4 -o print-quality=5 -o cupsPrintQuality=Draft FILE
-o media=A4 -o cupsPrintQuality=Draft -o print-quality=5 FILE
-o job-sheets=none,none -o page-ranges=1-2 -o job-priority=33 -o finishings=4 FILE
-dQUEUE/own FILE; -d QUEUE/own -o sides=one-sided FILE; -d QUEUE/none FILE; -d one -d QUEUE FILE
-d none FILE; -d none/own FILE; -o MEDIA=A4,Tray1 -o PageSize=A5 FILE; -o job-name=other -t mine FILE
-i JOB -n 2 -H hold; -iQJOB -q 80; -i JOB -H resume; -i QJOB -H immediate; -i JOB -o job-name=new -s; -i JOB
-i JOB -P 1-2 -o media=A4 -o nonsense=7; -i JOB -H restart; -i DONEJOB -H restart -n 2; -i DONEJOB -H resume
-i 99999 -n 2
)";

TEST_F(BesideTheUsualCommand, TheSameCommandLinesGiveTheSameJobs) {
  static const QRegularExpression between(u"; |\n"_s);
  const QStringList lines = QString::fromLatin1(sameLines).trimmed().split(between);
  std::vector<std::pair<Result, Result>> results;
  for (const QString& line : lines)
    results.emplace_back(run(u"lp"_s, u"one"_s, line), run(u"kesto-lp"_s, u"two"_s, line));
  for (qsizetype i = 0; auto& [usual, ours] : results) {
    SCOPED_TRACE(lines[i++]);
    usual.out.replace(u"(0 "_s, u"(1 "_s);  // kesto-lp counts standard input as a file
    readArrived(&usual);
    readArrived(&ours);
    EXPECT_EQ(ours.code, usual.code);
    EXPECT_EQ(ours.out, usual.out);
    EXPECT_EQ(ours.attributes, usual.attributes);
    EXPECT_EQ(ours.arrived, usual.arrived);
  }
}

// What the usual command takes in another way, or does not refuse.
TEST_F(BesideTheUsualCommand, OtherCommandLinesDoWhatTheyAsk) {
  for (const auto& [line, own] : Cases{{"-P \"5, -3\" FILE", "page-ranges=1-3,5-5"},
                                       {"-i JOB -t new", "job-name=new"},
                                       {"-i QJOB -H night -n 2", "job-hold-until=night"},
                                       {"- FILE", "number-of-documents=2"},
                                       {"FILE -", "number-of-documents=2"}}) {
    SCOPED_TRACE(line);
    const Result ours = run(u"kesto-lp"_s, u"two"_s, line);
    EXPECT_EQ(ours.code, 0);
    EXPECT_EQ(ours.attributes.value(own.section(u'=', 0, 0)), own.section(u'=', 1));
  }
  EXPECT_EQ(run(u"kesto-lp"_s, u"two"_s, u"-i none-JOB -n 2"_s).code, 1);
  for (const char* line :
       {"-n 0 FILE", "-n 3x FILE", "-q 101 FILE", "-n", "-H restart FILE", "-H nonsense FILE",
        "-H 25:00 FILE", "-i JOB FILE", "-i JOB -d QUEUE -n 2", "-i 0", "-i none", "-r FILE", "-u x FILE"}) {
    const Result ours = run(u"kesto-lp"_s, u"two"_s, Text(line));
    EXPECT_EQ(ours.code, 2) << line;
    EXPECT_EQ(ours.out, QString()) << line;
  }
}

}  // namespace
}  // namespace kesto::test
