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
    // These differ in each run: the time, and what is made from it.
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
      {"-o media=A5 -o sides=two-sided-long-edge -o x=y --save-preset p SECOND", "second", "media=A5 x=y",
       "S"},
      {"--preset p -o media=A3 SECOND", "second", "media=A3 Duplex=DuplexNoTumble", "S"},
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
  // A file name that is not valid text. Qt can neither create nor remove such a file.
  m_folder.write(u"job"_s, "odd\n");
  DemoProcess odd(
      m_folder, u"sh"_s,
      {u"-c"_s,
       u"cd \"$2\" && mv job \"$(printf 'gr\\366n\\033')\" && \"$0\" -h \"$1\" -U anna gr* && rm gr*"_s,
       builtProgram("kesto-lp"), m_printer->place(u"server"_s), m_folder.path(u""_s)});
  EXPECT_EQ(odd.code(), 0) << odd.log();
  waitForJob(++job);
  EXPECT_EQ(filterArguments(job).value(2), u"gr\\xf6n\\x1b"_s);
  EXPECT_EQ(lp(u"--json SECOND"_s).out, u"{\"job\":%1}\n"_s.arg(job + 1));
}

TEST_F(PrintTest, WhatCannotBePrintedOrReadIsAFault) {
  const QString server = u" -h "_s + m_printer->place(u"server"_s);
  const QPair<QString, QString> cases[] = {
      {u"kesto-lp"_s, u"--help"_s},
      {u"kesto-lp"_s, u"--list"_s + server},
      {u"kesto-lp"_s, u"--dry-run"_s + server},
      {u"kesto-lp"_s, m_folder.path(u"second"_s) + server},
      {u"kesto-print"_s, u"--help"_s},
      {u"kesto-panel"_s, u"--help"_s},
      {u"kesto-panel"_s, u""_s},
      {u"kesto-demo-printer"_s, u"--help"_s},
      {u"kesto-demo-printer"_s, u"--misbehave list"_s},
      {u"kesto-demo-printer"_s, u"--folders-only --folder-port 0 --dir "_s + m_folder.path(u"other"_s)},
  };
  for (const auto& [program, arguments] : cases) {
    // If a standard stream is closed at the start, the first file that the program opens must not take its
    // place.
    for (const auto& output : {u">/dev/full"_s, u">&-"_s, u">&- <&-"_s}) {
      const QString command = builtProgram(program.toLatin1()) + u' ' + arguments + u' ' + output;
      DemoProcess shell(m_folder, u"sh"_s,
                        {u"-c"_s, u"echo '{\"do\":\"facts\"}' | ( "_s + command + u" )"_s});
      const bool reads = arguments.isEmpty() && output.endsWith(u"<&-"_s);
      EXPECT_EQ(shell.code(), reads ? 0 : 1) << command;
      const QString fault = program + u": cannot write standard output\n"_s;
      EXPECT_EQ(QString::fromUtf8(shell.log()), reads ? QString() : fault) << command;
    }
  }
  const QString unread = u"exec %1%2 - <&-"_s.arg(builtProgram("kesto-lp"), server);
  DemoProcess shell(m_folder, u"sh"_s, {u"-c"_s, unread});
  EXPECT_EQ(shell.code(), 1);
}

}  // namespace
}  // namespace kesto::test
