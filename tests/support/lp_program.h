// The real kesto-lp, with a private queue and user.
#pragma once

#include "platform/json_user_defaults.h"
#include "tests/support/demo_process.h"
#include "tests/support/test_host.h"

namespace kesto::test {

/// The exit status and the output of a run.
struct LpRun {
  int code = -1;
  QString out;
  QString err;

  /// The printed values of some keys as "key=value", or the key alone when it is absent. The keys are given
  /// by their last components, with or without a value.
  QString values(const QString& pattern) const {
    QStringList values = pattern.split(u' ');
    for (QString& value : values) {
      value = value.section(u'=', 0, 0);
      const QString start = u"\nkesto.print.PrintSettings.%1="_s.arg(value);
      const qsizetype found = (u'\n' + out).indexOf(start);
      if (found >= 0) value += u'=' + out.sliced(found + start.size() - 1).section(u'\n', 0, 0);
    }
    return values.join(u' ');
  }
};

/// The lines of a PPD whose queue offers Job Handling.
inline const QByteArray ppdOfJobHandling = ppdOfModel + "*APDialogExtension: \"/Library/JobHandling.pde\"\n";

/// The warning of kesto-lp about --folder.
inline const QString unfiled =
    u"kesto-lp: warning: --folder has no effect: this printer files no documents\n"_s;

class LpTest : public testing::Test {
 protected:
  explicit LpTest(const QByteArray& ppdLines = ppdOfJobHandling) : m_ppd(ppdLines) {}

  /// A process that is ready to start. `arguments` are split as by a shell; "{}" is an empty one.
  std::unique_ptr<QProcess> process(const QString& arguments) const {
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(m_environment);
    process->setProgram(builtProgram(u"kesto-lp"_s));
    process->setArguments(QProcess::splitCommand(arguments).replaceInStrings(u"{}"_s, u""_s));
    return process;
  }
  static LpRun finish(QProcess& process) {
    constexpr int longest = 120'000;  // milliseconds; for builds with sanitizers
    EXPECT_TRUE(process.waitForFinished(longest)) << process.errorString().toStdString();
    const auto text = [](const QByteArray& bytes) { return QString::fromUtf8(bytes); };
    return {process.exitCode(), text(process.readAllStandardOutput()), text(process.readAllStandardError())};
  }
  LpRun run(const QString& arguments, const QByteArray& input = {}) const {
    const auto lp = process(arguments);
    lp->start();
    lp->write(input);
    lp->closeWriteChannel();
    return finish(*lp);
  }
  /// A command line for a dry run on the queue "office".
  QString dry(const QString& arguments) const {
    return u"--dry-run -d office --device-uri lpd://x --ppd %1 "_s.arg(m_ppd.path()) + arguments;
  }
  LpRun dryRun(const QString& arguments, const QByteArray& input = {}) const {
    return run(dry(arguments), input);
  }
  /// Expects a dry run to fail, with the same message in JSON.
  void expectFailure(const QString& arguments, int code, const QString& message) const {
    const QByteArray secret = "471147114711\n";
    const LpRun run = dryRun(arguments, secret);
    EXPECT_EQ(run.err.section(u'\n', 0, 0), u"kesto-lp: "_s + message) << arguments;
    const LpRun json = dryRun(u"--json "_s + arguments, secret);
    EXPECT_EQ(json.err.section(u'\n', -2).trimmed(), jsonLine({{u"error"_s, message}})) << arguments;
    for (const LpRun& each : {run, json}) {
      EXPECT_EQ(each.code, code) << arguments;
      EXPECT_EQ(each.out, u""_s) << arguments;
      EXPECT_FALSE(each.err.contains(u"4711"_s)) << each.err;
    }
  }
  /// Sets the locale of the programs that are started from here on.
  void speak(const QByteArray& locale) {
    m_environment.insert(u"LC_ALL"_s, QString::fromLatin1(locale));
    m_environment.remove(u"LANGUAGE"_s);
  }
  static QString jsonLine(const QJsonObject& object) {
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
  }
  JsonUserDefaults preferences() const { return JsonUserDefaults(m_folder.path(u"kesto"_s)); }
  /// The folder in a queue's preset "p".
  QByteArray presetFolder(const QString& queue) const {
    const QJsonValue presets =
        preferences().persistentDomainForName(u"kesto.presets."_s + queue).values->value(u"Presets"_s);
    const QJsonValue settings = presets[u"p"_s][u"settings"_s];
    return QByteArray::fromHex(settings[u"kesto.print.PrintSettings.folderPath"_s].toString().toLatin1());
  }
  void forgetAll() const { QDir(m_folder.path(u"kesto"_s)).removeRecursively(); }

  PpdFixture m_ppd;
  ScratchFolder m_folder;
  QProcessEnvironment m_environment = environmentIn(m_folder);
};

}  // namespace kesto::test
