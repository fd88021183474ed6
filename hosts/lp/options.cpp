#include "hosts/lp/options.h"

#include <algorithm>
#include <iostream>
#include <regex>
#include <string>
#include <vector>

#include "hosts/command/arguments.h"
#include "hosts/command/secret_arguments.h"
#include "hosts/command/server_options.h"
#include "hosts/cups/option_array.h"
#include "hosts/lp/help_text.h"
#include "hosts/lp/lp_texts.h"
#include "hosts/lp/option_faults.h"
#include "hosts/lp/server_password.h"
#include "hosts/session/page_range.h"

namespace kesto {
namespace {

// The options as the parser knows them, and what is looked at once it is done.
class CommandLine {
 public:
  explicit CommandLine(Options& options);
  std::optional<ExitCode> parse(int argc, const char* const* argv);

 private:
  CLI::Option* addText(const std::string& name, std::optional<QString>* value);
  CLI::Option* addName(const std::string& name, std::optional<QString>* value);
  void addTask(const std::string& name, Task task);
  void addNamedTask(const std::string& name, Task task, std::optional<QString>* value);
  CLI::Option* addUsual(const std::string& names, const std::function<void(const QString&)>& take);
  CLI::Option* addUsualName(const std::string& name, std::optional<QString>* value);
  void addServer();
  void addJob();
  void addIgnored(const std::string& name, const char* what);
  CLI::Option* addUsualOption(const std::string& names, const char* jobOption);
  void setHold(const QString& when);
  void addHold();
  void addField(std::size_t field);
  void addMemory(const char* name, bool remember);
  void addPresets();
  void addWait();
  // What is wrong with the arguments, null for nothing.
  QString faultOfAll() const;

  Options& m_options;
  CLI::App m_app;
  int m_tasks = 0;
  std::array<std::vector<CLI::Option*>, entryCount> m_ways;  // The options that give one entry.
  QString m_contradiction;
  std::string m_wait;
};

// An empty name is what an unset variable of a script leaves.
std::string refuseEmpty(const std::string& value) {
  return value.empty() ? LpTexts::tr("must not be empty").toStdString() : "";
}

// A word that no server knows would hold the job for ever.
std::string faultOfHold(const std::string& when) {
  static const std::regex known(
      "hold|immediate|resume|release|restart|no-hold|indefinite|day-time|evening|night|second-shift|"
      "third-shift|weekend|([01]?[0-9]|2[0-3]):[0-5][0-9](:[0-5][0-9])?");
  if (std::regex_match(when, known)) return {};
  return LpTexts::tr(
             "must be a time such as 18:30 (UTC), hold, immediate, resume, restart "
             "or a keyword of the print server such as evening")
      .toStdString();
}

std::string faultOfJobName(const std::string& name) {
  return SentJob::of(QString::fromStdString(name))
             ? ""
             : LpTexts::tr("must be a job such as 12 or QUEUE-12").toStdString();
}

CommandLine::CommandLine(Options& options) : m_options(options) {
  // The parser would repeat the arguments that it does not know, and one of them may be a secret.
  m_app.allow_extras();
  m_app.set_help_flag("--help");
  addServer();
  addJob();
  addHold();
  for (std::size_t field = 0; field < entryCount; ++field)
    addField(field);
  for (CLI::Option* byNumber : m_ways[UserNumber]) {
    for (const Entry other : {Login, Password}) {
      for (CLI::Option* byLogin : m_ways.at(other))
        byNumber->excludes(byLogin);
    }
  }
  addMemory("--remember", true);
  addMemory("--forget", false);
  addPresets();
  addVersion(m_app, "kesto-lp");
  refuseFlagValues(m_app);
  addWait();  // the only flag with a value
}

CLI::Option* CommandLine::addText(const std::string& name, std::optional<QString>* value) {
  return m_app.add_option_function<std::string>(
      name, [value](const std::string& given) { *value = QString::fromStdString(given); });
}

CLI::Option* CommandLine::addName(const std::string& name, std::optional<QString>* value) {
  return addText(name, value)->check(refuseEmpty);
}

// Each task excludes the others.
void CommandLine::addTask(const std::string& name, Task task) {
  m_app.add_flag_callback(name, [this, task] {
    m_options.task = task;
    ++m_tasks;
  });
}

void CommandLine::addNamedTask(const std::string& name, Task task, std::optional<QString>* value) {
  const auto choose = [this, task, value](const std::string& given) {
    *value = QString::fromStdString(given);
    m_options.task = task;
    ++m_tasks;
  };
  m_app.add_option_function<std::string>(name, choose)->check(refuseEmpty);
}

// An option of the usual print command. Those are taken in the order in which they stand, and of one that is
// given again the last counts, as there.
CLI::Option* CommandLine::addUsual(const std::string& names,
                                   const std::function<void(const QString&)>& take) {
  const auto takeText = [take](const std::string& given) { take(QString::fromStdString(given)); };
  return m_app.add_option_function<std::string>(names, takeText)->trigger_on_parse();
}

CLI::Option* CommandLine::addUsualName(const std::string& name, std::optional<QString>* value) {
  return addUsual(name, [value](const QString& given) { *value = given; })->check(refuseEmpty);
}

void CommandLine::addServer() {
  for (CLI::Option* usual : addServerOptions(m_app, &m_options.server))
    usual->trigger_on_parse()->check(refuseEmpty);
  addName("--server-password-file", &m_options.serverPassword);
  addName("--ppd", &m_options.ppd);
  addName("--device-uri", &m_options.deviceUri);
  addUsualName("-d", &m_options.queue);
  addTask("--list", Task::ListQueues);
  addNamedTask("--check", Task::Check, &m_options.queue);
  m_app.add_flag("--job-handling", m_options.jobHandlingOnly);
  m_app.add_flag("--network", m_options.network);
}

CLI::Option* CommandLine::addUsualOption(const std::string& names, const char* jobOption) {
  return addUsual(names, [this, jobOption](const QString& value) {
    addJobOption(QLatin1String(jobOption), value, &m_options.jobOptions);
  });
}

// An option that the usual print command takes for the sake of older systems and passes over.
void CommandLine::addIgnored(const std::string& name, const char* what) {
  addUsual(name, [this, name, what](const QString& /*value*/) {
    m_options.warnings +=
        LpTexts::tr("%1 is ignored: %2").arg(QLatin1String(name.c_str()), LpTexts::tr(what));
  });
}

void CommandLine::setHold(const QString& when) {
  static const QMap<QString, QString> words{{QStringLiteral("hold"), QStringLiteral("indefinite")},
                                            {QStringLiteral("immediate"), QStringLiteral("no-hold")},
                                            {QStringLiteral("resume"), QStringLiteral("no-hold")},
                                            {QStringLiteral("release"), QStringLiteral("no-hold")}};
  if (when == u"restart") {
    m_options.restart = true;
    return;
  }
  addJobOption(QStringLiteral("job-hold-until"), words.value(when, when), &m_options.jobOptions);
  // Ahead of the jobs that wait.
  if (when == u"immediate")
    addJobOption(QStringLiteral("job-priority"), QStringLiteral("100"), &m_options.jobOptions);
}

void CommandLine::addJob() {
  addUsual("-o", [this](const QString& text) { addJobOptions(text, &m_options.jobOptions); });
  addUsual("-P", [this](const QString& pages) {
    addJobOption(QStringLiteral("page-ranges"), pageRangesOf(pages).value_or(pages), &m_options.jobOptions);
  });
  addUsualOption("-n", "copies")
      ->transform(
          wholeNumber(QT_TRANSLATE_NOOP("CommandTexts", "copies must be between %1 and %2"), 1, 9999));
  addUsualOption("-q,-p", "job-priority")
      ->transform(
          wholeNumber(QT_TRANSLATE_NOOP("CommandTexts", "priority must be between %1 and %2"), 1, 100));
  addUsual("-H", [this](const QString& when) { setHold(when); })->check(faultOfHold);
  const auto changeJob = [this](const QString& name) {
    m_tasks += m_options.job ? 0 : 1;
    m_options.task = Task::Change;
    m_options.job = SentJob::of(name);
  };
  addUsual("-i", changeJob)->check(faultOfJobName);
  m_app.add_flag("-m,-w", m_options.mail);
  // Files are always sent as they are now, which is what -c asks for.
  m_app.add_flag("-c");
  m_app.add_flag("-s", m_options.silent);
  addUsual("-t", [this](const QString& title) { m_options.title = title; });
  addIgnored("-f", QT_TRANSLATE_NOOP("LpTexts", "CUPS has no forms"));
  addIgnored("-y", QT_TRANSLATE_NOOP("LpTexts", "CUPS has no modes; use -o"));
  addIgnored("-S", QT_TRANSLATE_NOOP("LpTexts", "the character set is always UTF-8"));
  addIgnored("-T",
             QT_TRANSLATE_NOOP("LpTexts", "the print server detects the type; use -o document-format=TYPE"));
  m_app.add_option_function<std::vector<std::string>>("files", [this](const std::vector<std::string>& given) {
    for (const std::string& file : given)
      m_options.files.append(QByteArray::fromStdString(file));
  });
  addTask("--dry-run", Task::DryRun);
  m_app.add_flag("--json", m_options.json);
  m_app.add_flag("--summary", m_options.summary);
  addTask("--folders", Task::ListFolders);
  addName("--address", &m_options.address);
}

void CommandLine::addHold() {
  const auto choose = [this](const std::string& choice) {
    m_options.entries.hold = static_cast<int>(std::ranges::find(holdChoices, choice) - holdChoices.begin());
  };
  CLI::Option* hold = m_app.add_option_function<std::string>("--hold", choose);
  hold->check(oneOf({holdChoices.begin(), holdChoices.end()}));
  m_app.add_flag_callback("--no-hold", [this] { m_options.entries.hold = noHold; })->excludes(hold);
}

void CommandLine::addField(std::size_t field) {
  const FieldRow& row = fieldTable().at(field);
  const std::string name = row.name;
  std::vector<CLI::Option*>& ways = m_ways.at(field);
  if (row.argument != nullptr) {
    std::optional<QString>* text = &m_options.entries.texts.at(field);
    ways.push_back(row.isSecret() ? addName("--" + name, text) : addText("--" + name, text));
  }
  if (!row.isSecret()) return;
  SecretSource* secret = &m_options.secrets.at(field);
  ways.push_back(addName("--" + name + "-file", &secret->file));
  ways.push_back(m_app.add_flag("--ask-" + name, secret->ask));
  for (auto way = ways.begin(); way != ways.end(); ++way) {
    std::for_each(ways.begin(), way, [&](CLI::Option* other) { (*way)->excludes(other); });
  }
}

void CommandLine::addMemory(const char* name, bool remember) {
  std::vector<std::string> names;
  for (const FieldRow& row : fieldTable())
    names.emplace_back(row.name);
  const auto turn = [this, names, remember](const std::vector<std::string>& given) {
    for (const std::string& field : given) {
      auto& turned = m_options.entries.remember.at(
          static_cast<std::size_t>(std::ranges::find(names, field) - names.begin()));
      if (turned && *turned != remember) {
        m_contradiction =
            LpTexts::tr("--remember and --forget cannot both name %1").arg(QString::fromStdString(field));
      }
      turned = remember;
    }
  };
  m_app.add_option_function<std::vector<std::string>>(name, turn)
      ->delimiter(',')
      ->allow_extra_args(false)
      ->check(oneOf(names));
}

void CommandLine::addPresets() {
  addTask("--list-presets", Task::ListPresets);
  addNamedTask("--delete-preset", Task::DeletePreset, &m_options.deletedPreset);
  addName("--preset", &m_options.preset);
  CLI::Option* save = addName("--save-preset", &m_options.savePreset);
  m_app.add_flag("--with-codes", m_options.withCodes)->needs(save);
}

void CommandLine::addWait() {
  const auto take = [this](std::string value) {
    m_options.wait = true;
    if (value == "true") return;  // it has none
    const auto seconds =
        wholeNumber(QT_TRANSLATE_NOOP("CommandTexts", "the seconds must be between %1 and %2"), 1, 999'999);
    const std::string fault = seconds(value);
    if (!fault.empty()) throw CLI::ValidationError("--wait", fault);
    m_options.waitLimit = std::chrono::seconds(std::stoi(value));
  };
  m_app.add_flag("--wait", m_wait)->each(take);
}

std::optional<ExitCode> CommandLine::parse(int argc, const char* const* argv) {
  QString fault;
  try {
    m_app.parse(argc, argv);
    fault = faultOfAll();
  } catch (const CLI::CallForHelp&) {
    std::cout << helpText();
    return ExitDone;
  } catch (const CLI::CallForVersion& version) {
    m_app.exit(version);
    return ExitDone;
  } catch (const CLI::ParseError& error) {
    fault = QString::fromStdString(faultOf(m_app, error));
  }
  if (fault.isNull()) return {};
  // The parser may have stopped before it came to the option.
  if (wantsJson(argc, argv))
    Messages(true).error(fault);
  else
    failUsage("kesto-lp", fault.toStdString());
  return ExitUsage;
}

QString CommandLine::faultOfAll() const {
  if (const std::string fault = faultOfUnknown(m_app); !fault.empty()) return QString::fromStdString(fault);
  if (!m_contradiction.isNull()) return m_contradiction;
  if (m_tasks > 1)
    return LpTexts::tr(
        "use only one of -i, --dry-run, --list, --folders, --check, --list-presets and --delete-preset");
  return faultOfOptions(m_options);
}

}  // namespace

bool Options::wantsPanel() const {
  const bool wantsSecret = std::ranges::any_of(secrets, &SecretSource::isGiven);
  return wantsSecret || entries != Entries() || summary;
}

bool wantsJson(int argc, const char* const* argv) {
  return std::ranges::count(argv, argv + argc, std::string_view("--json")) > 0;
}

std::optional<ExitCode> parseOptions(int argc, char** argv, Options* options) {
  const std::optional<ExitCode> end = CommandLine(*options).parse(argc, argv);
  wipeSecretArguments(argc, argv);
  options->server.passwords = makePasswordKeeper(options->serverPassword);
  return end;
}

}  // namespace kesto
