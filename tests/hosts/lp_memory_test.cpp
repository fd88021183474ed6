// What kesto-lp keeps between jobs: remembered entries and presets.
#include <QtCore/QJsonArray>

#include "tests/support/lp_program.h"

namespace kesto::test {
namespace {

const QString prefix = u"kesto.print.PrintSettings."_s;
const QString presets = u"kesto.presets.office"_s;

class LpMemory : public LpTest {
 protected:
  QString listed() const { return run(u"-d office --list-presets"_s).out; }
  QJsonObject kept(const QString& domain) const {
    return preferences().persistentDomainForName(domain).values.value_or(QJsonObject());
  }
  QJsonObject settingsOf(const QString& preset) const {
    return kept(presets)[u"Presets"_s][preset][u"settings"_s].toObject();
  }
};

TEST_F(LpMemory, RememberedOnceOfferedUntilForgotten) {
  const std::tuple<QString, QString, QString> cases[] = {
      {u"pin"_s, u"--hold only"_s, u"jobSuspend2Key"_s},
      {u"folder-pin"_s, u"--hold only --folder X"_s, u"folderPassword2"_s},
      {u"user-number"_s, {}, u"userNumber"_s},
      {u"job-name"_s, {}, u"jobName"_s},
  };
  for (const auto& [field, base, key] : cases) {
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

TEST_F(LpMemory, ADryRunKeepsWhatItIsAskedForAndNothingElse) {
  const QString domain = u"kesto.mfp.office"_s;
  dryRun(u"--hold only --pin 1234 letter"_s);
  EXPECT_FALSE(QFile::exists(m_folder.path(u"kesto"_s)));
  const QJsonObject record{{u"Model Name"_s, u"KESTO VQ-900"_s}, {u"folder name"_s, u"x"_s}};
  const QJsonObject another{{u"Job Handling"_s, record}, {u"note"_s, 1}};
  ASSERT_TRUE(store(preferences(), another, domain));
  dryRun(u"--hold only --pin 1234 --save-preset p"_s);
  EXPECT_EQ(kept(domain), another) << "of a queue that had another model";
  EXPECT_EQ(listed(), u"p\n"_s);
  dryRun(u"--user-number 7 --remember user-number"_s);
  EXPECT_EQ(kept(domain)[u"note"_s], 1);
  const QJsonObject replaced = kept(domain)[u"Job Handling"_s].toObject();
  EXPECT_EQ(replaced[u"Model Name"_s], u"KESTO VQ-250n"_s);
  EXPECT_EQ(replaced[u"folder name"_s], u""_s);
}

TEST_F(LpMemory, TheLoginIsKeptAndReplaced) {
  const auto record = [this] { return kept(u"kesto.mfp.office"_s)[u"Job Handling"_s].toObject(); };
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

TEST_F(LpMemory, SavesOfManyProcessesAllCount) {
  std::vector<std::unique_ptr<QProcess>> programs;
  QString names;
  for (char16_t letter = u'a'; letter < u'k'; ++letter) {
    programs.push_back(
        process(dry(u"--job-name %1 --remember job-name --save-preset %1"_s.arg(QChar(letter)))));
    programs.back()->start();
    names += QChar(letter) + u"\n"_s;
  }
  for (const auto& program : programs) {
    const LpRun run = finish(*program);
    EXPECT_EQ(run.code, 0) << run.err;
  }
  EXPECT_EQ(listed(), names);
  EXPECT_EQ(kept(u"kesto.mfp.office"_s)[u"Job Handling"_s].toObject()[u"hold button"_s], 16);
}

TEST_F(LpMemory, ALongNameOfAQueueIsRememberedToo) {
  const QString job = dry({}).replace(u"office"_s, QString(26, u'印'));
  EXPECT_EQ(run(job + u"--job-name x --remember job-name"_s).err, u""_s);
  EXPECT_EQ(run(job).values(u"jobName"_s), u"jobName=78"_s);
}

TEST_F(LpMemory, APresetThatDoesNotFitIsLeftAsItIs) {
  const auto preset = [](const QString& model, const QString& key, const QJsonValue& value) {
    return QJsonObject{{u"model"_s, model}, {u"settings"_s, QJsonObject{{key, value}}}};
  };
  const QJsonObject stored{{u"strange"_s, preset(u"KESTO VQ-250n"_s, u"jobSuspend"_s, u"1"_s)},
                           {u"number"_s, preset(u"KESTO VQ-250n"_s, prefix + u"jobSuspend"_s, 1)},
                           {u"other"_s, preset(u"KESTO VQ-900"_s, prefix + u"jobSuspend"_s, u"1"_s)}};
  const QJsonObject values{{u"note"_s, 1}, {u"Presets"_s, stored}};
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
