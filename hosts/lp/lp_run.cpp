#include "hosts/lp/lp_run.h"

#include <QtCore/QFileInfo>
#include <QtCore/QJsonObject>
#include <iostream>

#include "hosts/command/secret_input.h"
#include "hosts/cups/network_printers.h"
#include "hosts/cups/option_array.h"
#include "hosts/cups/queue.h"
#include "hosts/lp/job_waiting.h"
#include "hosts/lp/listings.h"
#include "hosts/lp/lp_texts.h"
#include "hosts/lp/submission.h"
#include "hosts/session/panel_session.h"
#include "platform/alert_presenter.h"
#include "platform/json_user_defaults.h"
#include "platform/secret.h"

namespace kesto {
namespace {

ExitCode ended(const Options& options, const Outcome& outcome, ExitCode onFailure = ExitFailed) {
  if (outcome) return ExitDone;
  options.messages().error(outcome.reason());
  return onFailure;
}

class StandardErrorAlerts : public AlertPresenter {
 public:
  explicit StandardErrorAlerts(const Messages& messages) : m_messages(messages) {}

  void runInformationalAlert(const QString& /*title*/, const QString& message,
                             const QString& /*button*/) override {
    m_messages.alert(message);
    wasShown = true;
  }
  bool wasShown = false;

 private:
  Messages m_messages;
};

// The queue that the job is for, and the server that has it unless a PPD file stands for it.
struct JobQueue {
  std::unique_ptr<PrintServer> server;
  Queue queue;
};

// The queue's name without asking a server: as it was written, but for the instance of "queue/instance".
QString queueOfFiles(const Options& options) {
  const QString file = QFileInfo(options.ppd.value_or(QString())).completeBaseName();
  return options.queue.value_or(file).section(u'/', 0, 0);
}

Outcome findQueue(const Options& options, JobQueue* found) {
  Queue& queue = found->queue;
  if (options.ppd) {
    queue.id = queueOfFiles(options);
    queue.deviceUri = *options.deviceUri;
    return openPpdFile(*options.ppd, &queue.ppd);
  }
  const QString name = options.queue.value_or(QString());
  if (Outcome connected = options.server.forQueue(name).connect(&found->server); !connected) return connected;
  std::optional<QueueSummary> announced;
  Outcome opened = openOrMakeQueue(*found->server, name, options.server.limit, &queue, &announced);
  // Anyone on the network can announce a printer of that name.
  if (!opened || !announced) return opened;
  if (options.serverPassword) {
    return Outcome::failed(
        LpTexts::tr(
            "the password in the file is not sent to \"%1\", which is a printer on the network and not "
            "set up on the print server")
            .arg(name));
  }
  options.messages().warning(
      LpTexts::tr("\"%1\" is not set up on the print server; using the printer on the network: %2")
          .arg(name, announced->deviceUri));
  return opened;
}

Outcome readSecrets(const Options& options, Entries* entries) {
  for (const Entry entry : allEntries) {
    const SecretSource& source = options.secrets.at(entry);
    if (!source.isGiven()) continue;
    const FieldRow& row = fieldTable().at(entry);
    QString secret;
    const Outcome read =
        source.ask ? askSecret(LpTexts::tr(row.prompt), &secret) : readSecretLine(*source.file, &secret);
    if (!read) {
      const QString option = QLatin1String(source.ask ? "--ask-%1" : "--%1-file");
      return Outcome::failed(option.arg(QLatin1String(row.name)) + QStringLiteral(": ") + read.reason());
    }
    entries->texts.at(entry) = secret;
  }
  return Outcome::done();
}

// One job on a queue that is open, with the panel if the queue offers it.
class Job {
 public:
  Job(const Options& options, PanelSession& session, PrintServer* server)
      : m_options(options), m_session(session), m_server(server) {}

  // Makes the entries and has the panel confirm the job.
  Outcome enter(const Entries& entries);
  // Prints the settings or sends the job; only then are entries and preset kept. What cannot be kept of them
  // is found before, as far as it can be.
  Outcome finish();
  // What was sent, once it is.
  SentJob sent() const { return {.queue = m_session.queue()->id, .number = m_id}; }

 private:
  Outcome makePresetToSave(Preset* preset) const;
  Outcome keep(const Preset& preset);
  // Whether a folder was chosen that the job will not be filed in.
  bool isUnfiled() const { return m_options.entries.texts[Folder] && !m_session.panel()->filesDocuments(); }
  // What JSON says of the job beside its number or its summary.
  QJsonObject facts() const {
    return isUnfiled() ? QJsonObject{{QStringLiteral("filed"), false}} : QJsonObject();
  }

  const Options& m_options;
  PanelSession& m_session;
  PrintServer* m_server;  // null for a PPD file
  int m_id = 0;
};

Outcome Job::enter(const Entries& entries) {
  if (m_session.panel() == nullptr) return Outcome::done();
  if (Outcome applied = applyEntries(*m_session.view(), entries); !applied) return applied;
  if (isUnfiled())
    m_options.messages().warning(LpTexts::tr("--folder has no effect: this printer files no documents"));
  const std::optional<Entry> missing = m_session.confirm();
  if (!missing) return Outcome::done();
  return Outcome::failed(m_session.panel()->panelName() + QStringLiteral(": ") + missingEntryText(*missing));
}

Outcome Job::makePresetToSave(Preset* preset) const {
  return m_options.savePreset ? m_session.makePreset(*m_options.savePreset, m_options.withCodes, preset)
                              : Outcome::done();
}

// Remembers the entries, in a dry run only when that is asked for, and saves the preset.
Outcome Job::keep(const Preset& preset) {
  const bool isAsked = m_options.entries.asksForMemory();
  Outcome kept = Outcome::done();
  if (isAsked || m_options.task == Task::Print) {
    Outcome remembered = m_session.remember();
    if (!remembered)
      kept = Outcome::failed(LpTexts::tr("cannot remember the entries: %1").arg(remembered.reason()));
  }
  Outcome saved =
      m_options.savePreset ? m_session.keepPreset(*m_options.savePreset, preset) : Outcome::done();
  if (isAsked && !kept) return kept;
  if (!kept) m_options.messages().warning(kept.reason());
  return saved;
}

Outcome Job::finish() {
  Preset preset;
  if (Outcome made = makePresetToSave(&preset); !made) return made;
  if (m_options.task == Task::Print) {
    Outcome sent = submit(*m_server, m_session.queue()->id, m_options, m_session.options(),
                          m_session.settings(), &m_id, facts());
    if (!sent) return sent;
    Outcome kept = keep(preset);
    return kept ? kept : Outcome::failed(LpTexts::tr("the job was sent, but: %1").arg(kept.reason()));
  }
  if (Outcome kept = keep(preset); !kept) return kept;
  if (m_options.summary) return printPairs(summaryOf(*m_session.panel()), ": ", m_options.json, facts());
  return printPairs(m_session.settings(), "=", m_options.json);
}

Outcome listFolders(PanelSession& session, const Options& options) {
  if (Outcome asked = fetchFolders(*session.view(), options.address.value_or(QString())); !asked)
    return asked;
  const PrintDialogPanel& panel = *session.panel();
  if (Outcome fetched = outcomeOfFetch(panel); !fetched) return fetched;
  return printFolders(panel, options.json);
}

PanelStart startOf(const Options& options) {
  const bool isNamed = options.title || !options.files.isEmpty() || options.task == Task::Print;
  return {.jobName = isNamed ? std::optional(titleOf(options)) : std::nullopt,
          .preset = options.preset,
          .keepsAside = options.task == Task::DryRun,
          .ignoresRaw = options.task == Task::ListFolders};
}

// What kesto-lp ends with once the job is sent, or could not be.
ExitCode endOfJob(const Options& options, const Outcome& outcome, const SentJob& job,
                  const QMap<QString, QString>& settings) {
  const ExitCode end = ended(options, outcome);
  if (!options.wait || job.number == 0) return end;
  const ExitCode waited = waitForJob(options, job, PrinterHold::of(settings));
  return end == ExitDone ? waited : end;
}

// The end when there is no panel for what is wanted of it; none for a job that prints as usual.
std::optional<ExitCode> refuseWithoutPanel(const Options& options, const PanelSession& session) {
  if (session.panel() != nullptr) return std::nullopt;
  const bool isList = options.task == Task::ListFolders;
  if (!isList && session.options().goesRaw()) {
    if (!options.wantsPanel() && !options.preset && !options.savePreset) return std::nullopt;
    const QString fault = LpTexts::tr("a raw job bypasses the driver, and Job Handling with it");
    return ended(options, Outcome::failed(fault), ExitUsage);
  }
  if (!isList && !options.wantsPanel()) return std::nullopt;
  return ended(options,
               Outcome::failed(
                   LpTexts::tr("the printer \"%1\" does not offer Job Handling").arg(session.queue()->id)));
}

ExitCode runJob(Options& options, JobQueue queue) {
  StandardErrorAlerts alerts(options.messages());
  PanelSession session(alerts);
  session.options().set(JobOptions::Source::Given, options.jobOptions);
  if (Outcome opened = session.open(std::move(queue.queue), startOf(options)); !opened)
    return ended(options, opened);
  if (const auto end = refuseWithoutPanel(options, session)) return *end;
  if (options.task == Task::ListFolders) {
    const Outcome listed = listFolders(session, options);
    if (alerts.wasShown && listed) return ExitFailed;
    if (const Outcome kept = session.outcomeOfFetch(); listed && !kept)
      options.messages().warning(kept.reason());
    return ended(options, listed);
  }
  if (Outcome read = readSecrets(options, &options.entries); !read) return ended(options, read);
  Job job(options, session, queue.server.get());
  const Outcome entered = job.enter(options.entries);
  // The panel has them now, in their stored forms; an upload can take long.
  for (std::optional<QString>& text : options.entries.texts) {
    if (text) wipe(*text);
  }
  if (!entered) return ended(options, entered, ExitRefused);
  const Outcome finished = job.finish();
  return endOfJob(options, finished, job.sent(), session.settings());
}

ExitCode runPresets(const Options& options) {
  JsonUserDefaults defaults(JsonUserDefaults::defaultDirectory());
  PresetStore store(defaults, queueOfFiles(options));
  return ended(options, options.deletedPreset ? store.remove(*options.deletedPreset)
                                              : printPresets(store, options.json));
}

ExitCode runQueueList(const Options& options) {
  std::vector<QueueSummary> network;
  if (options.network) network = networkPrinters(options.server.limit);
  std::unique_ptr<PrintServer> server;
  if (Outcome connected = options.server.connect(&server); !connected) return ended(options, connected);
  return ended(options, printQueues(*server, network, options.jobHandlingOnly, options.json));
}

ExitCode runCheck(const Options& options) {
  std::unique_ptr<PrintServer> server;
  if (Outcome connected = options.server.forQueue(*options.queue).connect(&server); !connected)
    return ended(options, connected);
  JobPrivacy privacy;
  if (Outcome found = findJobPrivacy(*server, *options.queue, &privacy); !found) return ended(options, found);
  printPrivacy(*options.queue, privacy, options.json);
  return privacy.shown.isEmpty() ? ExitDone : ExitFailed;
}

ExitCode runChange(const Options& options) {
  if (options.mail) options.messages().warning(LpTexts::tr("-m is ignored: it goes with a new job"));
  QMap<QString, QString> changes = options.jobOptions;
  if (options.title) addJobOption(QStringLiteral("job-name"), *options.title, &changes);
  std::unique_ptr<PrintServer> server;
  Outcome done = options.server.connect(&server);
  if (done && options.restart) done = restartJob(*server, *options.job);
  if (done) done = changeJob(*server, *options.job, changes);
  if (done && options.json && !options.silent) std::cout << "{\"job\":" << options.job->number << "}\n";
  return ended(options, done);
}

}  // namespace

ExitCode run(Options& options) {
  for (const QString& warning : options.warnings)
    options.messages().warning(warning);
  if (options.task == Task::Change) return runChange(options);
  if (options.task == Task::ListPresets || options.task == Task::DeletePreset) return runPresets(options);
  if (options.task == Task::ListQueues) return runQueueList(options);
  if (options.task == Task::Check) return runCheck(options);
  JobQueue queue;
  if (Outcome found = findQueue(options, &queue); !found) return ended(options, found);
  return runJob(options, std::move(queue));
}

}  // namespace kesto
