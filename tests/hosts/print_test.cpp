// A job's whole way: kesto-lp, the real scheduler, the queue's filter, and the printer behind it.
#include <QtCore/QCryptographicHash>
#include <QtCore/QDateTime>

#include "tests/support/print_program.h"

namespace kesto::test {
namespace {

const QString prefix = QLatin1String(printSettingsPrefix);
const QString oddTitle = u" Größe \"A4\" & 'B5' \\ 100 % = Ωμ"_s;

// Quotes any text as one argument of a command line.
QString quoted(QString argument) {
  return u'"' + argument.replace(u'"', uR"(""")"_s) + u'"';
}

QByteArray digest(const QByteArray& text) {
  return QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex();
}

TEST_F(PrintTest, EveryEntryMakesItsKeysAndEverySettingArrivesAsTheDryRunShowsIt) {
  recordFilter();
  const Cases cases{
      // the entries, and the keys that they make; without a value for none
      {"", "jobSuspend=0 filing=0 Authentication=1 holdButton=0 jobSuspendKey= jobName=6C6574746572"},
      {"--hold only --pin 2468 --folder main",
       "jobSuspend=2 jobSuspend2Key=911ED802F46F9D5E4D26EA8C8BFE070B folderPassword2="},
      {"--hold after --folder quick", "jobSuspend=1 folderPath="},
      {"--hold sample --pin 2468 --remember pin,job-name", "jobSuspend=3 holdButton=17"},
      {"--hold only --folder \"Büro 1\" --folder-pin 1234",
       "folderPassword2=3F3FA6A226B041DE0CA8F37F0E03543E"},
      {"--hold only --folder X --remember pin,folder,folder-pin,login,password", "holdButton=295"},
      {"--no-hold --user-number 42 --account-number 77777 --remember user-number --remember account-number",
       "jobSuspend=0 Authentication=0 userNumber=00042 accountNumber=77777 holdButton=192"},
      {"--login ann --remember login", "Authentication=1 loginName11= userNumber= holdButton=2"},
      {"--user-name Jörg --job-name Offer -t letter.txt --remember user-name",
       "userName=4A9A7267 userName2=4AF67267 userName31=4AC3B67267 jobName=4F66666572 holdButton=8"},
      {"--job-name {}", "jobName="},
      {u"--job-name "_s + quoted(u"Angebot \"7\", 100 % = Ωü"_s) + u" -t "_s + quoted(oddTitle), ""},
      {u"-t "_s + QString(300, u'a'), "jobName34="},
      {u"-t "_s + QString(300, u'ä'), "jobName35="},
  };
  int job = 0;
  for (const auto& [given, keys] : cases) {
    const QString entries = given + (given.contains(u"-t "_s) ? u""_s : u" -t letter"_s);
    forgetAll();
    auto expected = QJsonDocument::fromJson(lp(u"--dry-run --json "_s + entries).out.toUtf8()).object();
    EXPECT_GE(expected.size(), 4) << entries;
    forEachValue(keys, [&](const QString& key, const QString& value) {
      EXPECT_EQ(expected.value(prefix + key).toString(), value) << entries << key;
    });
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
    // These differ in each run: the time, and what is made from it.
    const QByteArray time = QByteArray::fromHex(taken("spoolTime"));
    const auto moment = QDateTime::fromString(QString::fromLatin1(time), Qt::RFC2822Date);
    EXPECT_TRUE(time.size() == 31 && start <= moment && moment <= QDateTime::currentDateTime()) << time;
    EXPECT_EQ(taken("jobSuspendKey"), entries.contains(u"2468"_s) ? digest("02468" + time) : "") << entries;
    EXPECT_EQ(taken("folderPassword"), entries.contains(u"1234"_s) ? digest(time + "01234") : "") << entries;
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
    Text arguments, title, options, documents;  // D for the large one, S for the second, I for standard input
  } cases[] = {
      {"DOCUMENT SECOND DOCUMENT", "document", "", "DSD"},
      {"", "(stdin)", "", "I"},
      {"- SECOND -t both", "both", "", "IS"},
      {"-o media=A5 -o sides=two-sided-long-edge -o x=y --save-preset p SECOND", "second", "media=A5 x=y",
       "S"},
      {"--preset p -o media=A3 SECOND", "second", "media=A3 Duplex=DuplexNoTumble", "S"},
      {u"SECOND -t "_s + quoted(oddTitle), oddTitle, "", "S"},
      {"SECOND -t \"two\nlines\"", "two lines", "", "S"},
      {u"SECOND -t "_s + QString(300, u'a'), QString(255, u'a'), "", "S"},
      {u"SECOND -t "_s + QString(300, u'ä'), QString(127, u'ä'), "", "S"},
  };
  int job = 0;
  const QMap<char, QByteArray> contents{{'D', m_document}, {'S', "another\n"}, {'I', "typed\n"}};
  for (const auto& [arguments, title, options, documents] : cases) {
    SCOPED_TRACE(arguments);
    expectPrinted(arguments, contents['I']);
    waitForJob(++job, static_cast<int>(documents.size()));
    const QStringList filter = filterArguments(job);
    EXPECT_EQ(filter.mid(0, 4), QStringList({QString::number(job), u"anna"_s, title, u"1"_s}));
    const QMap<QString, QString> arrived = parseJobOptions(filter.value(4));
    forEachValue(options, [&](const QString& name, const QString& value) {
      EXPECT_EQ(arrived.value(name), value) << name;
    });
    for (int i = 0; i < documents.size(); ++i) {
      const QString printout = m_printer->place(u"output"_s) + u"/job-%1-%2"_s.arg(job).arg(i + 1);
      EXPECT_EQ(bytesOf(printout), contents[documents[i].toLatin1()]);
    }
  }
  // A file name that is not valid text. Qt can neither create nor remove such a file.
  m_folder.write(u"job"_s, "odd\n");
  DemoProcess odd(
      m_folder, u"sh"_s,
      {u"-c"_s,
       u"cd \"$2\" && mv job \"$(printf 'gr\\366n\\033')\" && \"$0\" -h \"$1\" -U anna gr* && rm gr*"_s,
       builtProgram(u"kesto-lp"_s), m_printer->place(u"server"_s), m_folder.path(u""_s)});
  EXPECT_EQ(odd.code(), 0) << odd.log();
  waitForJob(++job);
  EXPECT_EQ(filterArguments(job).value(2), u"gr\\xf6n\\x1b"_s);
  EXPECT_EQ(lp(u"--json SECOND"_s).out, u"{\"job\":%1}\n"_s.arg(job + 1));
}

TEST_F(PrintTest, WhatCannotBePrintedOrReadIsAFault) {
  const QString server = u" -h "_s + m_printer->place(u"server"_s);
  for (const auto& [program, arguments] : Cases{
           {"kesto-lp", "--help"},
           {"kesto-lp", u"--list"_s + server},
           {"kesto-lp", u"--dry-run"_s + server},
           {"kesto-lp", m_folder.path(u"second"_s) + server},
           {"kesto-print", "--help"},
           {"kesto-print", "--version"},
           {"kesto-panel", "--help"},
           {"kesto-panel", ""},
           {"kesto-demo-printer", "--help"},
           {"kesto-demo-printer", "--misbehave list"},
           {"kesto-demo-printer", u"jobs --dir "_s + m_folder.path(u"run"_s)},
           {"kesto-demo-printer", u"--folders-only --folder-port 0 --dir "_s + m_folder.path(u"other"_s)}}) {
    // A stream that is closed at the start is not the one that the program opens first, its server's perhaps.
    for (const auto& output : {u">/dev/full"_s, u">&-"_s, u">&- <&-"_s}) {
      const QString command = builtProgram(program) + u' ' + arguments + u' ' + output;
      DemoProcess shell(m_folder, u"sh"_s,
                        {u"-c"_s, u"echo '{\"do\":\"facts\"}' | ( "_s + command + u" )"_s});
      const bool reads = arguments.isEmpty() && output.endsWith(u"<&-"_s);
      EXPECT_EQ(shell.code(), reads ? 0 : 1) << command;
      const QString fault = program + u": cannot write standard output\n"_s;
      EXPECT_EQ(QString::fromUtf8(shell.log()), reads ? QString() : fault) << command;
    }
  }
  const QString unread = u"exec %1%2 - <&-"_s.arg(builtProgram(u"kesto-lp"_s), server);
  DemoProcess shell(m_folder, u"sh"_s, {u"-c"_s, unread});
  EXPECT_EQ(shell.code(), 1);
}

}  // namespace
}  // namespace kesto::test
