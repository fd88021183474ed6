#include "hosts/lp/options.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <string>
#include <vector>

#include "hosts/command/arguments.h"
#include "hosts/command/secret_arguments.h"
#include "hosts/cups/print_job.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

constexpr char helpOfJob[] =
    R"(Usage: kesto-lp [OPTION]... [FILE]...
Prints files, or standard input, with a printer's Job Handling.

  -d QUEUE -h HOST[:PORT] -U USER -n COPIES -P PAGES -o NAME=VALUE -t TITLE
  -q PRIORITY -H WHEN -m -s -c -E   as of the usual print command
  --ppd FILE --device-uri URI   stand for a queue where no job is sent
  --dry-run                 print the job's settings and send nothing; keep only
                            what --remember, --forget or --save-preset ask for
  --summary                 print the panel's summary, not the settings
  --list [--job-handling]   list the queues, or those that offer Job Handling
  --folders [--address A]   fetch, keep and list the printer's folders
  --check QUEUE             tell what other users of the server see of a job's
                            options, and how to close it
  --json                    print JSON;  --timeout SECONDS  (5) wait no longer

  --hold only|after|sample  hold the job: unprinted, after printing it, or after
                            a sample of it; --no-hold does not hold it
)";

constexpr char helpOfMemory[] =
    R"(  --X-file FILE, --ask-X    take X (pin, folder-pin, password) from the first
                            line of a file or of standard input, "-", or ask at
                            the terminal: other users may see a command line
  --remember X,...          keep the value of X (pin, password or another entry)
  --forget X,...            for this queue's next jobs, or keep it no longer

  --preset NAME             start from a preset of this queue
  --save-preset NAME        keep the settings as a preset; the pass codes only
                            together with --with-codes
  --list-presets, --delete-preset NAME   do this alone, for -d or --ppd
  --help                    print this text
Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel.
)";

std::string helpText() {
  std::string text = helpOfJob;
  for (const FieldRow& row : fieldTable()) {
    if (row.argument == nullptr) continue;
    std::string line = "  --" + std::string(row.name) + ' ' + row.argument;
    line.resize(28, ' ');
    text += line + row.help;
    if (row.limit != nullptr) text += std::string(", ") + row.limit;
    text += '\n';
  }
  return text + helpOfMemory;
}

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
  void addServer();
  void addJob();
  CLI::Option* addJobOption(const std::string& name, const char* jobOption);
  void addHold();
  void addField(std::size_t field);
  void addMemory(const char* name, bool remember);
  void addPresets();
  // What is wrong with the arguments, null for nothing.
  QString faultOfAll() const;
  QString faultOfTask() const;
  QString faultOfQueue() const;

  Options& m_options;
  CLI::App m_app;
  int m_tasks = 0;
  std::array<std::vector<CLI::Option*>, fieldCount> m_ways;  // The options that give one entry.
  QString m_contradiction;
};

// An empty name is what an unset variable of a script leaves.
std::string refuseEmpty(const std::string& value) {
  return value.empty() ? "is empty" : "";
}

CommandLine::CommandLine(Options& options) : m_options(options) {
  // The parser would repeat the arguments that it does not know, and one of them may be a secret.
  m_app.allow_extras();
  m_app.set_help_flag("--help");
  addServer();
  addJob();
  addHold();
  for (std::size_t field = 0; field < fieldCount; ++field)
    addField(field);
  for (CLI::Option* byNumber : m_ways[UserNumber]) {
    for (const Field other : {Login, Password}) {
      for (CLI::Option* byLogin : m_ways.at(other))
        byNumber->excludes(byLogin);
    }
  }
  addMemory("--remember", true);
  addMemory("--forget", false);
  addPresets();
  refuseFlagValues(m_app);
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

void CommandLine::addServer() {
  addName("-h", &m_options.server.address);
  addName("-U", &m_options.server.user);
  m_app.add_flag("-E", m_options.server.encrypt);
  const auto setLimit = [this](double seconds) {
    if (std::isnan(seconds)) throw CLI::ValidationError("--timeout", "is no number");
    m_options.server.limit = std::chrono::milliseconds(static_cast<int>(seconds * 1000));
  };
  m_app.add_option_function<double>("--timeout", setLimit)->check(CLI::Range(0.1, 3600.0));
  addName("--ppd", &m_options.ppd);
  addName("--device-uri", &m_options.deviceUri);
  addName("-d", &m_options.queue);
  addTask("--list", Task::ListQueues);
  addNamedTask("--check", Task::Check, &m_options.queue);
  m_app.add_flag("--job-handling", m_options.jobHandlingOnly);
}

CLI::Option* CommandLine::addJobOption(const std::string& name, const char* jobOption) {
  return m_app.add_option_function<std::string>(name, [this, jobOption](const std::string& value) {
    m_options.jobOptions.insert(QLatin1String(jobOption), QString::fromStdString(value));
  });
}

void CommandLine::addJob() {
  const auto addOptions = [this](const std::vector<std::string>& given) {
    for (const std::string& options : given)
      m_options.jobOptions.insert(parseJobOptions(QString::fromStdString(options)));
  };
  m_app.add_option_function<std::vector<std::string>>("-o", addOptions)->allow_extra_args(false);
  addJobOption("-P", "page-ranges");
  addJobOption("-H", "job-hold-until");
  addJobOption("-n", "copies")->transform(wholeNumber(1, 9999));
  addJobOption("-q", "job-priority")->transform(wholeNumber(1, 100));
  m_app.add_flag("-m", m_options.mail);
  // Files are always sent as they are now, which is what -c asks for.
  m_app.add_flag("-c");
  m_app.add_flag("-s", m_options.silent);
  addText("-t", &m_options.title);
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
  hold->check(CLI::IsMember(std::vector<std::string>(holdChoices.begin(), holdChoices.end())));
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
            QStringLiteral("--remember and --forget both name %1").arg(QString::fromStdString(field));
      }
      turned = remember;
    }
  };
  m_app.add_option_function<std::vector<std::string>>(name, turn)
      ->delimiter(',')
      ->allow_extra_args(false)
      ->check(CLI::IsMember(names));
}

void CommandLine::addPresets() {
  addTask("--list-presets", Task::ListPresets);
  addNamedTask("--delete-preset", Task::DeletePreset, &m_options.deletedPreset);
  addName("--preset", &m_options.preset);
  CLI::Option* save = addName("--save-preset", &m_options.savePreset);
  m_app.add_flag("--with-codes", m_options.withCodes)->needs(save);
}

std::optional<ExitCode> CommandLine::parse(int argc, const char* const* argv) {
  QString fault;
  try {
    m_app.parse(argc, argv);
    fault = faultOfAll();
  } catch (const CLI::CallForHelp&) {
    std::cout << helpText();
    return ExitDone;
  } catch (const CLI::ParseError& error) {
    fault = QString::fromUtf8(error.what());
  }
  if (fault.isNull()) return {};
  std::cerr << "kesto-lp: " << shownText(fault).toStdString() << "\nkesto-lp --help tells more.\n";
  return ExitUsage;
}

QString CommandLine::faultOfAll() const {
  if (const std::string fault = faultOfUnknown(m_app); !fault.empty()) return QString::fromStdString(fault);
  if (!m_contradiction.isNull()) return m_contradiction;
  if (QString fault = faultOfTask(); !fault.isNull()) return fault;
  if (QString fault = faultOfQueue(); !fault.isNull()) return fault;
  const auto fromInput = [](const SecretSource& source) { return source.file == QLatin1String("-"); };
  if (std::ranges::count_if(m_options.secrets, fromInput) < 2) return {};
  return QStringLiteral("only one entry can come from standard input");
}

QString CommandLine::faultOfTask() const {
  const Task task = m_options.task;
  if (m_tasks > 1)
    return QStringLiteral(
        "only one of --dry-run, --list, --folders, --check and the presets' two can be done");
  if (m_options.jobHandlingOnly && task != Task::ListQueues)
    return QStringLiteral("--job-handling goes with --list");
  if (m_options.address && task != Task::ListFolders) return QStringLiteral("--address goes with --folders");
  if (m_options.summary && task != Task::DryRun) return QStringLiteral("--summary goes with --dry-run");
  if (task == Task::Print || task == Task::DryRun) return {};
  const bool hasJob = m_options.wantsPanel() || m_options.title || !m_options.files.isEmpty() ||
                      !m_options.jobOptions.isEmpty();
  return hasJob ? QStringLiteral("a list takes no options of a job") : QString();
}

QString CommandLine::faultOfQueue() const {
  const Task task = m_options.task;
  if (task == Task::ListPresets || task == Task::DeletePreset) {
    return m_options.queue || m_options.ppd ? QString()
                                            : QStringLiteral("the queue is missing; give -d or --ppd");
  }
  if (m_options.deviceUri && !m_options.ppd) return QStringLiteral("--device-uri goes with --ppd");
  if (!m_options.ppd) return {};
  if (!m_options.deviceUri) return QStringLiteral("--device-uri is missing");
  if (task == Task::DryRun || task == Task::ListFolders) return {};
  return QStringLiteral("--ppd stands for a queue only with --dry-run or --folders");
}

}  // namespace

bool Options::wantsPanel() const {
  const bool wantsSecret = std::ranges::any_of(secrets, &SecretSource::isGiven);
  return wantsSecret || entries != Entries() || summary || preset || savePreset;
}

std::optional<ExitCode> parseOptions(int argc, char** argv, Options* options) {
  const std::optional<ExitCode> end = CommandLine(*options).parse(argc, argv);
  wipeSecretArguments(argc, argv);
  return end;
}

}  // namespace kesto
