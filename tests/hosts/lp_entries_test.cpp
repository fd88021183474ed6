// The entries of kesto-lp: what is wrong usage, what the panel refuses, and what is kept between jobs.
#include <QtCore/QJsonArray>

#include "tests/support/lp_program.h"

namespace kesto::test {
namespace {

class LpEntries : public LpTest {};

TEST_F(LpEntries, AcceptsTheLimitButNotOneMore) {
  EXPECT_EQ(dryRun(u"--login "_s + QString(301, u'7')).err, QString()) << "which has no limit";
  forEachValue(u"pin=8 folder-pin=8 user-number=5 account-number=5 folder=255 user-name=32 job-name=80"_s,
               [this](const QString& option, const QString& value) {
                 const int limit = value.toInt();
                 const QString unit = limit <= 8 ? u"digits"_s : u"characters"_s;
                 const QString folder = option == u"folder"_s ? QString() : u"--folder X"_s;
                 const QString entry = u"--hold only %1 --%2 "_s.arg(folder, option);
                 EXPECT_EQ(dryRun(entry + QString(limit, u'7')).err, unfiled);
                 const QString message = u"--%1 must be at most %2 %3"_s.arg(option, value, unit);
                 expectFailure(entry + QString(limit + 1, u'7'), 3, message);
                 if (limit <= 8) expectFailure(entry + u"7x"_s, 3, message);
               });
}

TEST_F(LpEntries, RefusalsGiveAReasonAndNoSecrets) {
  using Case = std::tuple<Text, int, Text>;
  const QString needsFolder = u" requires --folder NAME of a folder with a pass code or of a custom folder"_s;
  for (const auto& [arguments, code, message] :
       {Case{"--pin 1", 3, "--pin requires --hold"},
        Case{"--pin-file -", 3, "--pin requires --hold"},
        Case{"--hold only --pin-file -", 3, "--pin must be at most 8 digits"},
        Case{"--hold only --pin 471147114711", 3, "--pin must be at most 8 digits"},
        Case{"--no-hold --folder X", 3, "--folder requires --hold"},
        Case{"--hold after --folder quick --pin 1", 3, "--pin cannot be used with --folder quick"},
        Case{"--hold only --folder quick", 3, "--folder quick requires --hold after"},
        Case{"--hold only --folder-pin 1", 3, u"--folder-pin"_s + needsFolder},
        Case{"--hold only --folder main --remember folder-pin", 3, u"--remember folder-pin"_s + needsFolder},
        Case{"--hold only --remember folder", 3, "--remember folder requires --folder NAME"},
        Case{"--remember login --user-number 1", 3, "--remember login cannot be used with a user number"},
        Case{"--preset x", 1, "there is no preset \"x\"; this printer has no presets"},
        Case{"--no-such", 2, "unknown option --no-such"},
        Case{"--user-number 1 --login x", 2, "--login cannot be used with --user-number"},
        Case{"--pin 4711 --ask-pin", 2, "--pin cannot be used with --ask-pin"},
        Case{"--pin {}", 2, "--pin: must not be empty"},
        Case{"--ask-pin=4711", 2, "--ask-pin takes no value"},
        Case{"--password 4711", 2, "unknown option --password"},
        Case{"--pin-file - --password-file -", 2, "only one entry can be read from standard input"},
        Case{"--remember pin --forget login,pin", 2, "--remember and --forget cannot both name pin"},
        Case{"--with-codes", 2, "--with-codes requires --save-preset"},
        Case{"--job-handling", 2, "--job-handling requires --list"},
        Case{"--address x", 2, "--address requires --folders"},
        Case{"-n 0x10", 2, "-n: copies must be between 1 and 9999"},
        Case{"-q 101", 2, "-q: priority must be between 1 and 100"},
        Case{"--timeout nan", 2, "--timeout: must be between 0.1 and 3600 seconds"},
        Case{"--json=no", 2, "--json takes no value"},
        Case{"--hold only --hold after", 2, "--hold is given twice"},
        Case{"--hold", 2, "--hold requires a value"},
        Case{"--list-presets", 2,
             "use only one of -i, --dry-run, --list, --folders, --check, --list-presets and "
             "--delete-preset"}})
    expectFailure(arguments, code, message);
  const QString folders = u"--folders --device-uri usb://x --ppd "_s + m_ppd.path();
  for (const auto& [arguments, code, message] :
       {Case{"--list-presets", 2, "no printer is given; set it with -d or --ppd"},
        Case{"-d q --list-presets --hold only", 2, "a list cannot be combined with a job's options"},
        Case{"--ppd x.ppd --dry-run", 2, "--ppd requires --device-uri"},
        Case{"--ppd x.ppd --device-uri lpd://x", 2, "--ppd requires --dry-run or --folders"},
        Case{"--ppd x.ppd --device-uri lpd://x --dry-run", 1, "x.ppd: No such file or directory"},
        Case{folders, 1, "the printer's address is unknown; set it with --address"}}) {
    const LpRun ended = run(arguments);
    EXPECT_EQ(ended.code, code) << arguments;
    EXPECT_EQ(ended.err.section(u'\n', 0, 0), u"kesto-lp: "_s + message) << arguments;
  }
  for (const char* address : {"a b:c", "http://a", "ä.local", "a/[", "u@a", "a:66000", "[a]"})
    EXPECT_EQ(run(folders + u" --address \"%1\""_s.arg(Text(address))).err,
              u"kesto-lp: \"%1\" is not an address\n"_s.arg(Text(address)));
}

TEST_F(LpEntries, TheHelpFitsAScreen) {
  const LpRun help = run(u"--help --no-such-option"_s);
  EXPECT_EQ(help.code, 0);
  EXPECT_TRUE(
      help.out.contains(u"--pin N                   pass code of the held job, at most 8 digits\n"_s));
  for (const QChar option : u"dhUnPotqHimsEpwcfyST"_s)
    EXPECT_TRUE(help.out.contains(u" -%1 "_s.arg(option))) << option.toLatin1();
  EXPECT_LE(help.out.count(u'\n'), 48);
  for (const QString& line : help.out.split(u'\n'))
    EXPECT_LE(line.size(), 80) << line.toStdString();
}

TEST_F(LpEntries, SpeaksTheLanguageOfItsUser) {
  using Case = std::tuple<const char*, Text, Text>;
  const QString letters(81, u'x');
  const QString english = u"unknown option --no-such"_s;
  for (const auto& [locale, arguments, message] :
       {Case{"C", "--no-such", english}, Case{"de_DE.UTF-8", "--no-such", "unbekannte Option --no-such"},
        Case{"ja_JP.UTF-8", "--no-such", "--no-such は不明なオプションです"},
        Case{"pl_PL.UTF-8", u"--user-name "_s + letters, "--user-name może mieć co najwyżej 32 znaki"},
        Case{"pl_PL.UTF-8", u"--job-name "_s + letters, "--job-name może mieć co najwyżej 80 znaków"},
        Case{"de_DE.UTF-8", "--preset x",
             "es gibt keine Voreinstellung „x“; dieser Drucker hat keine Voreinstellungen"},
        Case{"de_DE.UTF-8", "--folder X --dry-run=no", "--dry-run erlaubt keinen Wert"}}) {
    speak(locale);
    EXPECT_EQ(dryRun(arguments).err.section(u'\n', 0, 0), u"kesto-lp: "_s + message) << locale;
    EXPECT_EQ(dryRun(u"--json --no-such"_s).err, jsonLine({{u"error"_s, english}}) + u'\n') << locale;
  }
  speak("");
  m_environment.insert(u"LC_CTYPE"_s, u"C"_s);
  m_environment.insert(u"LC_MESSAGES"_s, u"de_DE.UTF-8"_s);
  EXPECT_EQ(dryRun(u"--folder X --summary --hold only"_s).err, unfiled) << "for a terminal without UTF-8";
  forEachValue(
      u"cs=1 de=1 el=1 es=1 fr=1 hu=1 it=1 ja=2 ko=2 nl=1 pl=1 pt_BR=1 ru=1 sv=1 tr=1 zh_CN=2 zh_TW=2"_s,
      [this](const QString& locale, const QString& columns) {
        speak((locale + u".UTF-8"_s).toUtf8());
        const auto dialog = process(u"--help"_s);
        dialog->start(builtProgram(u"kesto-print"_s), dialog->arguments());
        const QString help = run(u"--help"_s).out + finish(*dialog).out;
        EXPECT_FALSE(help.contains(u"Usage: "_s)) << locale;
        EXPECT_EQ(help.count(u" --timeout "_s), 2) << locale;
        for (const QString& line : help.split(u'\n')) {
          EXPECT_FALSE(line.endsWith(u' ')) << line;
          const auto wide = std::ranges::count_if(line, [](QChar c) { return c >= QChar(0x2E80); });
          EXPECT_LE(line.size() + (columns.toInt() - 1) * wide, 80) << line;
        }
      });
}

TEST_F(LpEntries, SettingsOrSummaryAsLinesOrJson) {
  const QString arguments = u"--user-name ann --job-name offer --hold sample --pin 4711 "_s;
  const QStringList lines = dryRun(arguments).out.split(u'\n', Qt::SkipEmptyParts);
  const auto key = [](const QString& line) { return line.section(u'=', 0, 0); };
  EXPECT_TRUE(std::ranges::is_sorted(lines, {}, key));
  const auto json = QJsonDocument::fromJson(dryRun(arguments + u"--json"_s).out.toUtf8()).object();
  EXPECT_EQ(json.size(), lines.size());
  EXPECT_EQ(json[u"kesto.print.PrintSettings.jobSuspend"_s], u"3"_s);
  for (const auto& [file, value] :
       Cases{{"to/letter", "jobName=6C6574746572"}, {"-- --pin", "jobName=2D2D70696E"}})
    EXPECT_EQ(dryRun(file).values(value), value);
  EXPECT_EQ(dryRun(arguments + u"--summary"_s).out,
            u"Hold mode: Sample print\nJob name: offer\nRetention: On\nUser name: ann\n"_s);
  const QString controls = dryRun(u"--preset x\u009b31m\u202e --json"_s).err;
  EXPECT_TRUE(controls.contains(u"x\\u009b31m\\u202e"_s)) << controls;
}

TEST_F(LpEntries, AFolderOfThePrinterIsFoundByItsName) {
  const QJsonObject values = json(R"({"Job Handling":{"Model Name":"KESTO VQ-250n", "Release Number":"2.00",
      "files":[{"name":"Sales"}, {"name":"SALES"}]}})");
  ASSERT_TRUE(store(preferences(), values, u"kesto.mfp.office"_s));
  for (const auto& [name, chosen] :
       Cases{{"Sales", "Sales"}, {"SALES", "SALES"}, {"sales", "Sales"}, {"Else", "Else"}}) {
    EXPECT_EQ(dryRun(u"--hold only --folder-pin 1 --save-preset p --folder "_s + name).code, 0);
    EXPECT_EQ(presetFolder(u"office"_s), chosen.toUtf8());
  }
}

TEST_F(LpEntries, AnUnusedFolderIsNotShown) {
  const QString arguments = u"--hold after --folder X --job-name offer --summary"_s;
  const LpRun lines = dryRun(arguments);
  EXPECT_EQ(lines.err, unfiled);
  EXPECT_FALSE(lines.out.contains(u"Folder"_s)) << lines.out;
  const LpRun json = dryRun(arguments + u" --json"_s);
  EXPECT_EQ(QJsonDocument::fromJson(json.out.toUtf8())[u"filed"_s], QJsonValue(false)) << json.out;
  EXPECT_EQ(json.err, jsonLine({{u"warning"_s, unfiled.trimmed().section(u": "_s, 2)}}) + u'\n');
  EXPECT_FALSE(dryRun(u"--summary --json"_s).out.contains(u"filed"_s));
}

const QString prefix = u"kesto.print.PrintSettings."_s;
const QString presets = u"kesto.presets.office"_s;

class LpMemory : public LpTest {
 protected:
  QString listed() const { return run(u"-d office --list-presets"_s).out; }
  QJsonObject kept(const QString& domain) const {
    return preferences().persistentDomainForName(domain).values.value_or(QJsonObject());
  }
  QJsonObject record() const { return kept(u"kesto.mfp.office"_s)[u"Job Handling"_s].toObject(); }
  QJsonObject settingsOf(const QString& preset) const {
    return kept(presets)[u"Presets"_s][preset][u"settings"_s].toObject();
  }
};

TEST_F(LpMemory, EntriesAreRememberedUntilTheyAreForgotten) {
  for (const auto& [field, base, key] : {std::tuple(Text("pin"), Text("--hold only"), Text("jobSuspend2Key")),
                                         {"folder-pin", "--hold only --folder X", "folderPassword2"},
                                         {"user-number", "", "userNumber"},
                                         {"job-name", "", "jobName"}}) {
    const auto values = [&, base = base, key = key](const QString& more) {
      return dryRun(base + u' ' + more).values(key);
    };
    const QString option = u"--%1 "_s.arg(field);
    const QString first = values(option + u"1234"_s);
    const QString second = values(option + u"5"_s);
    EXPECT_NE(first, second);
    EXPECT_EQ(values({}), key) << field.toStdString() << " was not to be remembered";
    const QString remember = u" --remember "_s + field;
    EXPECT_EQ(values(option + u"1234"_s + remember), first);
    EXPECT_EQ(values({}), first) << field.toStdString();
    EXPECT_EQ(values(option + u"5"_s), second) << "a held field takes a new value";
    EXPECT_NE(dryRun(base + u' ' + option + u"5"_s).values(u"holdButton"_s), u"holdButton=0"_s) << "held on";
    EXPECT_EQ(values({}), first) << "which a dry run does not keep";
    EXPECT_EQ(values(option + u"5"_s + remember), second);
    EXPECT_EQ(values({}), second) << "unless asked to";
    EXPECT_EQ(values(u"--forget "_s + field), second) << "this job still has it";
    EXPECT_EQ(values({}), key) << field.toStdString();
  }
}

TEST_F(LpMemory, ADryRunKeepsOnlyWhatItIsAskedToKeep) {
  dryRun(u"--hold only --pin 1234 letter"_s);
  EXPECT_FALSE(QFile::exists(m_folder.path(u"kesto"_s)));
  const QJsonObject another =
      json(R"({"Job Handling":{"Model Name":"KESTO VQ-900", "folder name":"x"}, "note":1})");
  ASSERT_TRUE(store(preferences(), another, u"kesto.mfp.office"_s));
  dryRun(u"--hold only --pin 1234 --save-preset p"_s);
  EXPECT_EQ(kept(u"kesto.mfp.office"_s), another) << "of a queue that had another model";
  EXPECT_EQ(listed(), u"p\n"_s);
  dryRun(u"--user-number 7 --remember user-number"_s);
  EXPECT_EQ(kept(u"kesto.mfp.office"_s)[u"note"_s], 1);
  EXPECT_EQ(record()[u"Model Name"_s], u"KESTO VQ-250n"_s);
  EXPECT_EQ(record()[u"folder name"_s], u""_s);
}

TEST_F(LpMemory, TheLoginIsKeptAndReplaced) {
  dryRun(u"--login ann --password-file - --remember login,password"_s, "4711\n");
  const QJsonObject first = record();
  EXPECT_EQ(first[u"hold button"_s], 6);
  EXPECT_EQ(first[u"user password"_s].toString().size(), 64);
  dryRun(u"--login bob --remember login"_s);
  EXPECT_EQ(record()[u"hold button"_s], 6);
  EXPECT_NE(record()[u"user login name"_s], first[u"user login name"_s]);
  EXPECT_EQ(record()[u"user password"_s], first[u"user password"_s]);
  // The name that is not to be remembered is still the one of its own job.
  dryRun(u"--login ann --forget login"_s);
  EXPECT_EQ(record()[u"hold button"_s], 4);
  EXPECT_EQ(record()[u"user login name"_s], first[u"user login name"_s]);
}

TEST_F(LpMemory, APresetBringsItsSettingsBack) {
  const QString entries = u"--hold sample --folder \"Büro 1\" --user-number 42 --user-name ann -t own "_s;
  const QString codes = u"--pin 1234 --folder-pin 1234 --save-preset "_s;
  dryRun(entries + codes + u"plain"_s);
  EXPECT_EQ(
      settingsOf(u"plain"_s).keys().join(u' ').remove(prefix),
      u"Authentication filing folderPath holdButton jobSuspend userName userName2 userName31 userNumber2"_s);
  EXPECT_EQ(settingsOf(u"plain"_s)[prefix + u"folderPath"_s], u"429F726F2031"_s);
  dryRun(entries + codes + u"coded --with-codes"_s);
  EXPECT_EQ(settingsOf(u"coded"_s).size(), settingsOf(u"plain"_s).size() + 2);

  const QString plain =
      u"jobSuspend=3 userNumber=00042 userName31=616E6E jobName=6F74686572 folderPath jobSuspend2Key"_s;
  EXPECT_EQ(dryRun(u"-t other --preset plain"_s).values(plain), plain);
  const QString coded = u"jobSuspend2Key=%1 folderPassword2=%1"_s.arg(u"3F3FA6A226B041DE0CA8F37F0E03543E"_s);
  EXPECT_EQ(dryRun(u"--preset coded"_s).values(coded), coded);
  EXPECT_EQ(dryRun(u"--preset plain --folder-pin 5"_s).code, 0) << "the folder did not come back";
  EXPECT_EQ(dryRun(u"--preset coded --no-hold"_s).values(u"jobSuspend2Key"_s), u"jobSuspend2Key"_s);
}

TEST_F(LpMemory, PresetsAreListedReplacedAndDeleted) {
  for (const auto& name : {u"b"_s, u"a"_s, u"b"_s})
    dryRun(u"--hold after --save-preset "_s + name);
  EXPECT_EQ(listed(), u"a\nb\n"_s);
  EXPECT_EQ(run(u"-d office/instance --list-presets"_s).out, u"a\nb\n"_s);
  const auto json = QJsonDocument::fromJson(run(u"-d office --list-presets --json"_s).out.toUtf8());
  EXPECT_EQ(json.array(), (QJsonArray{u"a"_s, u"b"_s}));
  EXPECT_EQ(run(u"-d elsewhere --list-presets"_s).out, u""_s);
  expectFailure(u"--preset c"_s, 1, u"there is no preset \"c\"; this printer has: a, b"_s);
  EXPECT_EQ(run(u"-d office --delete-preset a"_s).code, 0);
  EXPECT_EQ(run(u"-d office --delete-preset a"_s).code, 1);
  EXPECT_EQ(listed(), u"b\n"_s);
}

TEST_F(LpMemory, TheSavesOfManyProcessesAreAllKept) {
  std::vector<std::unique_ptr<QProcess>> programs;
  const QString names = u"abcdefghij"_s;
  for (const QChar name : names) {
    programs.push_back(process(dry(u"--job-name %1 --remember job-name --save-preset %1"_s.arg(name))));
    programs.back()->start();
  }
  for (const auto& program : programs) {
    const LpRun run = finish(*program);
    EXPECT_EQ(run.code, 0) << run.err;
  }
  EXPECT_EQ(listed().remove(u'\n'), names);
  EXPECT_EQ(record()[u"hold button"_s], 16);
}

TEST_F(LpMemory, APresetThatDoesNotFitIsLeftUnchanged) {
  const QJsonObject values = json(R"({"note":1, "Presets":{
      "strange":{"model":"KESTO VQ-250n", "settings":{"jobSuspend":"1"}},
      "number":{"model":"KESTO VQ-250n", "settings":{"kesto.print.PrintSettings.jobSuspend":1}},
      "other":{"model":"KESTO VQ-900", "settings":{"kesto.print.PrintSettings.jobSuspend":"1"}}}})");
  ASSERT_TRUE(store(preferences(), values, presets));
  for (const auto& option : {u"--preset "_s, u"--save-preset "_s}) {
    for (const auto& name : {u"strange"_s, u"number"_s})
      expectFailure(option + name, 1, u"the preset \"%1\" is damaged and was left unchanged"_s.arg(name));
  }
  expectFailure(u"--save-preset "_s + QString(256, u'n'), 1,
                u"a preset's name must have at most 255 characters; choose a shorter one"_s);
  expectFailure(u"--preset other"_s, 1, u"the preset \"other\" is for another printer model, KESTO VQ-900"_s);
  EXPECT_EQ(kept(presets), values);
  EXPECT_EQ(dryRun(u"--save-preset new"_s).code, 0);
  EXPECT_EQ(kept(presets)[u"note"_s], 1);
  EXPECT_EQ(listed(), u"new\nnumber\nother\nstrange\n"_s);
}

}  // namespace
}  // namespace kesto::test
