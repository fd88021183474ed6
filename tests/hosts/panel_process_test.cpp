// The scripted panel as a process of its own: its options, its memory shared with others, its sudden death.
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QProcess>
#include <random>

#include "tests/support/test_host.h"

namespace kesto {
namespace {

using namespace test;

// A home without preferences, and a PPD.
class PanelProcess : public testing::Test {
 protected:
  std::unique_ptr<QProcess> start(const QStringList& arguments) const {
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& variable : {u"HOME"_s, u"XDG_CONFIG_HOME"_s, u"XDG_RUNTIME_DIR"_s, u"TMPDIR"_s}) {
      environment.insert(variable, m_home.path());
    }
    environment.insert(u"LC_ALL"_s, u"C"_s);
    process->setProcessEnvironment(environment);
    process->start(QCoreApplication::applicationDirPath() + u"/kesto-panel"_s, arguments);
    EXPECT_TRUE(process->waitForStarted());
    return process;
  }
  std::unique_ptr<QProcess> startPanel(const QStringList& more = {}) const {
    return start(QStringList{u"--queue"_s, u"Office"_s, u"--ppd"_s, ppd.path(), u"--device-uri"_s,
                             u"ipp://printer.example"_s} +
                 more);
  }
  QString write(const QString& name, const QByteArray& bytes) const {
    QFile file(m_home.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return file.fileName();
  }
  static QJsonObject readAnswer(QProcess& process) {
    while (!process.canReadLine()) {
      if (!process.waitForReadyRead()) {
        ADD_FAILURE() << "no answer: " << process.readAllStandardError();
        return {};
      }
    }
    return QJsonDocument::fromJson(process.readLine()).object();
  }
  static QJsonObject ask(QProcess& process, const QByteArray& command) {
    process.write(command + '\n');
    return readAnswer(process);
  }
  static int exitCodeOf(QProcess& process) {
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return process.exitCode();
  }
  QString preferenceFile() const { return m_home.filePath(u"kesto/kesto.mfp.Office.json"_s); }
  QJsonObject record() const {
    QFile file(preferenceFile());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QJsonDocument::fromJson(file.readAll()).object().value(u"Job Handling"_s).toObject();
  }

  QTemporaryDir m_home;
  PpdFixture ppd;
};

TEST_F(PanelProcess, BadOptionsAndBadFilesEndIt) {
  const QString damaged = write(
      u"damaged.ppd"_s, "*PPD-Adobe: \"4.3\"\n*OpenUI *PageSize: PickOne\nno keyword\n*ModelName \"x\n");
  const QString numbers = write(u"numbers.json"_s, R"({"a":"1","b":2})");
  struct Case {
    QStringList arguments;
    int exitCode;
    QString message;
  };
  for (const Case& row :
       {Case{{u"--no-such"_s}, 2, u"--no-such"_s}, Case{{u"--ppd"_s}, 2, u"--ppd"_s},
        Case{{u"stray"_s}, 2, u"stray"_s}, Case{{u"--ppd"_s, damaged}, 1, damaged + u": line 3: "_s},
        Case{{u"--ppd"_s, m_home.path()}, 1, m_home.path() + u": is a folder"_s},
        Case{{u"--ppd"_s, u"/no/such.ppd"_s}, 1, u"/no/such.ppd: "_s},
        Case{{u"--settings"_s, damaged}, 1, damaged + u": not a JSON object"_s},
        Case{{u"--settings"_s, numbers}, 1, numbers + u": the value of b is no text"_s},
        Case{{u"--settings"_s, u"/no/such"_s}, 1, u"/no/such: "_s}}) {
    SCOPED_TRACE(row.arguments.join(u' ').toStdString());
    const auto process = start(row.arguments);
    process->closeWriteChannel();
    EXPECT_EQ(exitCodeOf(*process), row.exitCode);
    const QString message = QString::fromUtf8(process->readAllStandardError());
    EXPECT_TRUE(message.contains(row.message)) << message;
  }
}

TEST_F(PanelProcess, BadLinesAreAnsweredAndTheNextIsHeard) {
  const auto process = startPanel();
  EXPECT_EQ(ask(*process, R"({"do":"controls"})"),
            (QJsonObject{{u"controls"_s, QJsonObject()}, {u"firstResponder"_s, QJsonValue::Null}}));
  EXPECT_EQ(ask(*process, R"({"do":"show"})"), (QJsonObject{{u"view"_s, true}}));
  for (const char* line :
       {"", "{", "[]", "7", R"({"do":7})", R"({"do":"nothing"})", R"({"do":"click"})",
        R"({"do":"click","control":"noSuch"})", R"({"do":"click","control":"suspendMatrix"})",
        R"({"do":"type","control":"userNameEditText"})",
        R"({"do":"type","control":"userNameStaticText","text":"x"})",
        R"({"do":"select","control":"suspendMatrix"})",
        R"({"do":"select","control":"suspendMatrix","row":3})",
        R"({"do":"select","control":"suspendMatrix","row":0.5})",
        R"({"do":"select","control":"folderSelectionPopup","index":2})",
        R"({"do":"caret","control":"userNameEditText","location":"1","length":0})",
        R"({"do":"set","key":"k","value":1})"}) {
    EXPECT_TRUE(ask(*process, line).contains(u"error")) << line;
  }
  EXPECT_EQ(
      ask(*process, R"({"do":"panels","type":"BDB091F4-E57F-11D3-B5CC-0050E4603277"})").value(u"panels"_s),
      1);
  EXPECT_EQ(ask(*process, R"({"do":"quit"})"), QJsonObject());
  EXPECT_EQ(exitCodeOf(*process), 0);
}

TEST_F(PanelProcess, AnswersTheMembersOfItsProtocolAlone) {
  const auto process = startPanel();
  ask(*process, R"({"do":"show"})");
  EXPECT_EQ(
      ask(*process, R"({"do":"facts"})").keys().join(u' '),
      u"active_directory addressStringRef folderList hasInited kesto_print_system mfpURL modelStringRef "
      "panelKind panelName ppdEncoding prefHoldButtonFlag preferenceName presetHoldButtonFlag shouldHide "
      "shouldShowHelp supportedPPDOptionKeys systemEncoding useConstraintHandling"_s);
  QJsonObject members;
  const QJsonObject controls = ask(*process, R"({"do":"controls"})").value(u"controls"_s).toObject();
  for (const QJsonValue control : controls) {
    const QStringList names = control.toObject().keys();
    for (const QString& name : names)
      members.insert(name, true);
  }
  EXPECT_EQ(members.keys().join(u' '),
            u"alternateImage editable enabled hidden image items kind selectable selectedIndex selectedRow "
            "selectedTab selection state stringValue tabs tag textColor title"_s);
  process->closeWriteChannel();
  EXPECT_EQ(exitCodeOf(*process), 0);
}

TEST_F(PanelProcess, StartsFromTheSettingsOfAFile) {
  const QString settings =
      write(u"settings.json"_s, R"({"kesto.print.PrintSettings.jobSuspend":"3","of.another":""})");
  const auto process = startPanel({u"--settings"_s, settings});
  ask(*process, R"({"do":"restore"})");
  const QJsonObject controls = ask(*process, R"({"do":"controls"})").value(u"controls"_s).toObject();
  EXPECT_EQ(controls.value(u"suspendMatrix"_s).toObject().value(u"selectedRow"_s), 2);
  ask(*process, R"({"do":"save"})");
  const QJsonObject saved = ask(*process, R"({"do":"settings"})").value(u"settings"_s).toObject();
  EXPECT_EQ(saved.value(u"of.another"_s), QString(u""_s));
  EXPECT_EQ(saved.value(u"kesto.print.PrintSettings.jobSuspend"_s), u"3"_s);
  process->closeWriteChannel();
  EXPECT_EQ(exitCodeOf(*process), 0);
}

#ifndef NDEBUG
TEST_F(PanelProcess, ItsTraceTellsTheCallsAndNoSecret) {
  qputenv("QT_LOGGING_RULES", "kesto.pde.debug=true");
  const auto process = startPanel();
  qunsetenv("QT_LOGGING_RULES");
  for (const char* command : {R"({"do":"restore"})", R"({"do":"click","control":"retentionCheckBox"})",
                              R"({"do":"type","control":"suspendKeyEditText","text":"47114711"})",
                              R"({"do":"type","control":"loginNameEditText","text":"jdoe-of-accounts"})",
                              R"({"do":"type","control":"passwordEditText","text":"open-sesame"})",
                              R"({"do":"click","control":"loginNameButton"})", R"({"do":"save"})",
                              R"({"do":"shouldPrint"})", R"({"do":"summary"})", R"({"do":"quit"})"}) {
    EXPECT_FALSE(ask(*process, command).contains(u"error")) << command;
  }
  EXPECT_EQ(exitCodeOf(*process), 0);
  const QString trace = QString::fromUtf8(process->readAllStandardError());
  for (const auto& line :
       {u"enter initWithCallback:(HostCallback, 0x"_s, u"note Constraint Handling Available: YES"_s,
        u"leave initWithCallback:=id(self)"_s})
    EXPECT_TRUE(trace.contains(line)) << line << " is not in\n" << trace;
  // One panel, which all calls name but those of the entry object.
  QSet<QString> objects;
  for (const QString& line : trace.split(u'\n')) {
    const QString object = line.section(u' ', 1, 1);
    if (line.startsWith(u"kesto.pde: ") && !line.contains(u"PDEPanelsForType") &&
        !line.contains(u"initWithBundle"))
      objects.insert(object);
  }
  EXPECT_EQ(objects.size(), 1) << trace;
  for (const auto& secret : {u"47114711"_s, u"jdoe-of"_s, u"open-sesame"_s})
    EXPECT_FALSE(trace.contains(secret)) << trace;
}
#endif

TEST_F(PanelProcess, TheLastWritersRecordWinsWhole) {
  const auto first = startPanel();
  const auto second = startPanel();
  for (QProcess* process : {first.get(), second.get()}) {
    ask(*process, R"({"do":"restore"})");
    ask(*process, R"({"do":"paste","control":"userNumberEditText","text":")" +
                      QByteArray(process == first.get() ? "11" : "22") + "\"}");
    ask(*process, R"({"do":"click","control":"userNumberButton"})");
  }
  ask(*first, R"({"do":"type","control":"loginNameEditText","text":"jdoe"})");
  ask(*first, R"({"do":"click","control":"loginNameButton"})");
  EXPECT_EQ(ask(*first, R"({"do":"shouldPrint"})"), (QJsonObject{{u"answer"_s, true}}));
  EXPECT_EQ(record().value(u"hold button"_s), 66);
  EXPECT_EQ(ask(*second, R"({"do":"shouldPrint"})"), (QJsonObject{{u"answer"_s, true}}));
  EXPECT_EQ(record().value(u"hold button"_s), 64);
  EXPECT_EQ(record().value(u"user login name"_s), u""_s);

  const auto third = startPanel();
  ask(*third, R"({"do":"restore"})");
  const QJsonObject controls = ask(*third, R"({"do":"controls"})").value(u"controls"_s).toObject();
  EXPECT_EQ(controls.value(u"userNumberEditText"_s).toObject().value(u"stringValue"_s), u"22"_s);
  EXPECT_EQ(controls.value(u"loginNameButton"_s).toObject().value(u"state"_s), 0);
  for (QProcess* process : {first.get(), second.get(), third.get()}) {
    process->closeWriteChannel();
    EXPECT_EQ(exitCodeOf(*process), 0);
  }
}

// Each process is killed somewhere in a row of saves, in which user name and job name change together.
TEST_F(PanelProcess, AKilledSaveLeavesTheOldRecordOrTheNew) {
  QStringList script;
  for (int time = 0; time < 15; ++time) {
    for (const QString& edit : {u"type"_s, u"backspace"_s}) {
      for (const QString& name : {u"userNameEditText"_s, u"jobNameEditText"_s}) {
        script.append(uR"({"do":"%1","control":"%2","text":"x"})"_s.arg(edit, name));
      }
      script.append(uR"({"do":"shouldPrint"})"_s);
    }
  }
  std::mt19937 random(2024);
  for (int kill = 0; kill < 36; ++kill) {
    const auto process = startPanel();
    ask(*process, R"({"do":"restore"})");
    ask(*process, R"({"do":"caret","control":"userNameEditText","location":0,"length":255})");
    ask(*process, R"({"do":"backspace","control":"userNameEditText"})");
    process->write(script.join(u'\n').toLatin1() + '\n');
    for (unsigned answers = 1 + random() % 50; answers > 0; --answers)
      readAnswer(*process);
    process->kill();
    EXPECT_TRUE(process->waitForFinished());
    EXPECT_EQ(process->exitStatus(), QProcess::CrashExit);
    const QJsonObject left = record();
    EXPECT_EQ(left.value(u"Release Number"_s), u"2.00"_s) << "kill " << kill;
    EXPECT_EQ(left.value(u"user name"_s), left.value(u"job name"_s)) << "a record of both, in kill " << kill;
  }
  EXPECT_EQ(QDir(m_home.filePath(u"kesto"_s)).entryList({u"*.damaged-*"_s}), QStringList());
}

}  // namespace
}  // namespace kesto
