// The entries of kesto-lp: the keys that they make, what is wrong usage, and what the panel refuses.
#include <QtCore/QJsonArray>

#include "tests/support/lp_program.h"

namespace kesto::test {
namespace {

class LpEntries : public LpTest {};

TEST_F(LpEntries, EveryEntryMakesItsKeys) {
  const QPair<QString, QString> cases[] = {
      {u""_s, u"jobSuspend=0 filing=0 Authentication=1 holdButton=0 jobSuspendKey userNumber jobName"_s},
      {u"--hold only"_s, u"jobSuspend=2 jobSuspend2Key"_s},
      {u"--hold after"_s, u"jobSuspend=1"_s},
      {u"--hold sample"_s, u"jobSuspend=3"_s},
      {u"--no-hold"_s, u"jobSuspend=0"_s},
      {u"--hold only --pin 1234"_s, u"jobSuspend=2 jobSuspend2Key=3F3FA6A226B041DE0CA8F37F0E03543E"_s},
      {u"--folder quick --hold after"_s, u"jobSuspend=1 folderPath"_s},
      {u"--hold only --folder main"_s, u"jobSuspend=2 folderPassword2"_s},
      {u"--hold only --folder X --folder-pin 1234"_s, u"folderPassword2=3F3FA6A226B041DE0CA8F37F0E03543E"_s},
      {u"--user-number 42"_s, u"Authentication=0 userNumber=00042"_s},
      {u"--login ann"_s, u"Authentication=1 loginName11 userNumber"_s},
      {u"--account-number 77777"_s, u"accountNumber=77777"_s},
      {u"--user-name Jörg"_s, u"userName=4A9A7267 userName2=4AF67267 userName31=4AC3B67267"_s},
      {u"--job-name Offer -t letter.txt"_s, u"jobName=4F66666572"_s},
      {u"-t letter --job-name {}"_s, u"jobName"_s},
      {u"-t letter"_s, u"jobName=6C6574746572"_s},
      {u"to/letter"_s, u"jobName=6C6574746572"_s},
      {u"-- --pin"_s, u"jobName=2D2D70696E"_s},
      {u"--remember job-name,user-name --remember account-number"_s, u"holdButton=152"_s},
      {u"--hold only --folder X --remember pin,folder,folder-pin,login,password"_s, u"holdButton=295"_s},
      {u"--user-number 7 --remember user-number"_s, u"holdButton=64"_s},
  };
  for (const auto& [arguments, values] : cases) {
    forgetAll();
    const LpRun run = dryRun(arguments);
    EXPECT_EQ(run.values(values), values) << arguments.toStdString();
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.err, arguments.contains(u"--folder "_s) ? unfiled : u""_s);
  }
}

TEST_F(LpEntries, AcceptsTheLimitButNotOneMore) {
  const std::tuple<QString, int, QString> cases[] = {
      {u"pin"_s, 8, u"digits"_s},           {u"folder-pin"_s, 8, u"digits"_s},
      {u"user-number"_s, 5, u"digits"_s},   {u"account-number"_s, 5, u"digits"_s},
      {u"folder"_s, 255, u"characters"_s},  {u"user-name"_s, 32, u"characters"_s},
      {u"job-name"_s, 80, u"characters"_s},
  };
  for (const auto& [option, limit, unit] : cases) {
    const QString folder = option == u"folder"_s ? QString() : u"--folder X"_s;
    const QString entry = u"--hold only %1 --%2 "_s.arg(folder, option);
    EXPECT_EQ(dryRun(entry + QString(limit, u'7')).err, unfiled);
    const QString message = u"--%1 must be at most %2 %3"_s.arg(option).arg(limit).arg(unit);
    expectFailure(entry + QString(limit + 1, u'7'), 3, message);
    if (unit == u"digits"_s) expectFailure(entry + u"7x"_s, 3, message);
  }
}

TEST_F(LpEntries, RefusalsGiveAReasonAndNoSecrets) {
  const QString needsFolder = u" requires --folder NAME of a folder with a pass code or of a custom folder"_s;
  const std::tuple<QString, int, QString> cases[] = {
      {u"--pin 1"_s, 3, u"--pin requires --hold"_s},
      {u"--pin-file -"_s, 3, u"--pin requires --hold"_s},
      {u"--hold only --pin-file -"_s, 3, u"--pin must be at most 8 digits"_s},
      {u"--hold only --pin 471147114711"_s, 3, u"--pin must be at most 8 digits"_s},
      {u"--no-hold --folder X"_s, 3, u"--folder requires --hold"_s},
      {u"--hold after --folder quick --pin 1"_s, 3, u"--pin cannot be used with --folder quick"_s},
      {u"--hold only --folder quick"_s, 3, u"--folder quick requires --hold after"_s},
      {u"--hold only --folder-pin 1"_s, 3, u"--folder-pin"_s + needsFolder},
      {u"--hold only --folder main --remember folder-pin"_s, 3, u"--remember folder-pin"_s + needsFolder},
      {u"--hold only --remember folder"_s, 3, u"--remember folder requires --folder NAME"_s},
      {u"--remember login --user-number 1"_s, 3, u"--remember login cannot be used with a user number"_s},
      {u"--preset x"_s, 1, u"there is no preset \"x\"; this printer has no presets"_s},
      {u"--no-such"_s, 2, u"unknown option --no-such"_s},
      {u"--user-number 1 --login x"_s, 2, u"--login cannot be used with --user-number"_s},
      {u"--pin 4711 --ask-pin"_s, 2, u"--pin cannot be used with --ask-pin"_s},
      {u"--pin {}"_s, 2, u"--pin: must not be empty"_s},
      {u"--ask-pin=4711"_s, 2, u"--ask-pin takes no value"_s},
      {u"--password 4711"_s, 2, u"unknown option --password"_s},
      {u"--pin-file - --password-file -"_s, 2, u"only one entry can be read from standard input"_s},
      {u"--remember pin --forget login,pin"_s, 2, u"--remember and --forget cannot both name pin"_s},
      {u"--with-codes"_s, 2, u"--with-codes requires --save-preset"_s},
      {u"--job-handling"_s, 2, u"--job-handling requires --list"_s},
      {u"--address x"_s, 2, u"--address requires --folders"_s},
      {u"-n 0"_s, 2, u"-n: copies must be between 1 and 9999"_s},
      {u"-n 0x10"_s, 2, u"-n: copies must be between 1 and 9999"_s},
      {u"-q 101"_s, 2, u"-q: priority must be between 1 and 100"_s},
      {u"--timeout nan"_s, 2, u"--timeout: must be between 0.1 and 3600 seconds"_s},
      {u"--json=no"_s, 2, u"--json takes no value"_s},
      {u"--list-presets"_s, 2,
       u"use only one of -i, --dry-run, --list, --folders, --check, --list-presets and --delete-preset"_s},
  };
  for (const auto& [arguments, code, message] : cases)
    expectFailure(arguments, code, message);
  const QString folders = u"--folders --device-uri usb://x --ppd "_s + m_ppd.path();
  const std::tuple<QString, int, QString> others[] = {
      {u"--list-presets"_s, 2, u"no printer is given; set it with -d or --ppd"_s},
      {u"-d q --list-presets --hold only"_s, 2, u"a list cannot be combined with a job's options"_s},
      {u"--ppd x.ppd --dry-run"_s, 2, u"--ppd requires --device-uri"_s},
      {u"--ppd x.ppd --device-uri lpd://x"_s, 2, u"--ppd requires --dry-run or --folders"_s},
      {u"--ppd x.ppd --device-uri lpd://x --dry-run"_s, 1, u"x.ppd: No such file or directory"_s},
      {folders, 1, u"the printer's address is unknown; set it with --address"_s},
  };
  for (const auto& [arguments, code, message] : others) {
    const LpRun ended = run(arguments);
    EXPECT_EQ(ended.code, code) << arguments;
    EXPECT_EQ(ended.err.section(u'\n', 0, 0), u"kesto-lp: "_s + message) << arguments;
  }
  for (const auto& address :
       {u"a b:c"_s, u"http://a"_s, u"ä.local"_s, u"a/["_s, u"u@a"_s, u"a:66000"_s, u"[a]"_s})
    EXPECT_EQ(run(folders + u" --address \"%1\""_s.arg(address)).err,
              u"kesto-lp: \"%1\" is not an address\n"_s.arg(address));
}

TEST_F(LpEntries, TheHelpFitsAScreen) {
  const LpRun help = run(u"--help --no-such-option"_s);
  EXPECT_EQ(help.code, 0);
  EXPECT_TRUE(
      help.out.contains(u"--pin N                   pass code of the held job, at most 8 digits\n"_s));
  for (const QChar option : u"dhUnPotqHimsEpwcfyST"_s)
    EXPECT_TRUE(help.out.contains(u" -%1 "_s.arg(option))) << option.toLatin1();
  EXPECT_LE(help.out.count(u'\n'), 45);
  for (const QString& line : help.out.split(u'\n'))
    EXPECT_LE(line.size(), 80) << line.toStdString();
}

TEST_F(LpEntries, SettingsOrSummaryAsLinesOrJson) {
  const QString arguments = u"--user-name ann --job-name offer --hold sample --pin 4711 "_s;
  const QStringList lines = dryRun(arguments).out.split(u'\n', Qt::SkipEmptyParts);
  const auto key = [](const QString& line) { return line.section(u'=', 0, 0); };
  EXPECT_TRUE(std::ranges::is_sorted(lines, {}, key));
  const auto json = QJsonDocument::fromJson(dryRun(arguments + u"--json"_s).out.toUtf8()).object();
  EXPECT_EQ(json.size(), lines.size());
  EXPECT_EQ(json[u"kesto.print.PrintSettings.jobSuspend"_s], u"3"_s);
  EXPECT_EQ(dryRun(arguments + u"--summary"_s).out,
            u"Hold mode: Sample print\nJob name: offer\nRetention: On\nUser name: ann\n"_s);
}

TEST_F(LpEntries, AFolderOfThePrinterIsFoundByItsName) {
  const QJsonArray folders{QJsonObject{{u"name"_s, u"Sales"_s}}, QJsonObject{{u"name"_s, u"SALES"_s}}};
  const QJsonObject record{
      {u"Model Name"_s, u"KESTO VQ-250n"_s}, {u"Release Number"_s, u"2.00"_s}, {u"files"_s, folders}};
  ASSERT_TRUE(store(preferences(), {{u"Job Handling"_s, record}}, u"kesto.mfp.office"_s));
  const QPair<QString, QString> cases[] = {
      {u"Sales"_s, u"Sales"_s}, {u"SALES"_s, u"SALES"_s}, {u"sales"_s, u"Sales"_s}, {u"Else"_s, u"Else"_s}};
  for (const auto& [name, chosen] : cases) {
    EXPECT_EQ(dryRun(u"--hold only --folder-pin 1 --save-preset p --folder "_s + name).code, 0);
    EXPECT_EQ(presetFolder(u"office"_s), chosen.toUtf8());
  }
}

TEST_F(LpEntries, AFolderThatIsNotUsedIsNotShownAsIfItWere) {
  const QString arguments = u"--hold after --folder X --job-name offer --summary"_s;
  const LpRun lines = dryRun(arguments);
  EXPECT_EQ(lines.err, unfiled);
  EXPECT_FALSE(lines.out.contains(u"Folder"_s)) << lines.out;
  const LpRun json = dryRun(arguments + u" --json"_s);
  EXPECT_EQ(QJsonDocument::fromJson(json.out.toUtf8())[u"filed"_s], QJsonValue(false)) << json.out;
  EXPECT_EQ(json.err, jsonLine({{u"warning"_s, unfiled.trimmed().section(u": "_s, 2)}}) + u'\n');
  EXPECT_FALSE(dryRun(u"--summary --json"_s).out.contains(u"filed"_s));
}

}  // namespace
}  // namespace kesto::test
