#include "hosts/lp/lp_run.h"

#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <iostream>

#include "hosts/command/secret_input.h"
#include "hosts/cups/job_options.h"
#include "hosts/cups/queue.h"
#include "hosts/lp/listings.h"
#include "hosts/lp/submission.h"
#include "hosts/session/gated_platform.h"
#include "hosts/session/panel_host.h"
#include "hosts/session/preset_store.h"
#include "panel/model/panel_view.h"
#include "platform/alert_presenter.h"
#include "platform/json_user_defaults.h"
#include "platform/secret.h"
#include "platform/shown_text.h"

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
struct JobQueue : Queue {
  std::unique_ptr<PrintServer> server;
};

// The queue's name without asking a server: as it was written, but for the instance of "queue/instance".
QString queueOfFiles(const Options& options) {
  const QString file = QFileInfo(options.ppd.value_or(QString())).completeBaseName();
  return options.queue.value_or(file).section(u'/', 0, 0);
}

Outcome findQueue(const Options& options, JobQueue* queue) {
  if (options.ppd) {
    queue->id = queueOfFiles(options);
    queue->deviceUri = *options.deviceUri;
    return openPpdFile(*options.ppd, &queue->ppd);
  }
  if (Outcome connected = options.server.connect(&queue->server); !connected) return connected;
  return openQueue(*queue->server, options.queue.value_or(QString()), queue);
}

// `facts` go beside the pairs in JSON.
Outcome print(const QMap<QString, QString>& pairs, const char* separator, bool json, QJsonObject facts = {}) {
  if (json) {
    QJsonObject& object = facts;
    for (auto it = pairs.begin(); it != pairs.end(); ++it)
      object.insert(it.key(), it.value());
    std::cout << QJsonDocument(object).toJson().constData();
  } else {
    for (auto it = pairs.begin(); it != pairs.end(); ++it) {
      std::cout << shownText(it.key()).toStdString() << separator << shownText(it.value()).toStdString()
                << '\n';
    }
  }
  return Outcome::done();
}

Outcome listPresets(const PresetStore& store, bool json) {
  QStringList names;
  if (Outcome found = store.names(&names); !found) return found;
  if (json) return printArray(QJsonArray::fromStringList(names));
  for (const QString& name : names)
    std::cout << shownText(name).toStdString() << '\n';
  return Outcome::done();
}

Outcome readSecrets(const Options& options, Entries* entries) {
  for (std::size_t field = 0; field < fieldCount; ++field) {
    const SecretSource& source = options.secrets.at(field);
    if (!source.isGiven()) continue;
    const FieldRow& row = fieldTable().at(field);
    QString secret;
    const Outcome read =
        source.ask ? askSecret(QLatin1String(row.prompt), &secret) : readSecretLine(*source.file, &secret);
    if (!read) {
      const QString option = QLatin1String(source.ask ? "--ask-%1" : "--%1-file");
      return Outcome::failed(option.arg(QLatin1String(row.name)) + QStringLiteral(": ") + read.reason());
    }
    entries->texts.at(field) = secret;
  }
  return Outcome::done();
}

// One job on one queue that offers the panel.
class Job {
 public:
  Job(const Options& options, GatedPlatform& platform, JobQueue& queue)
      : m_options(options),
        m_platform(platform),
        m_queue(queue),
        m_host(platform),
        m_presets(platform.userDefaults(), queue.id) {}

  Outcome open(PrintDialogPlugIn& plugIn);
  Outcome restore();
  // Makes the entries and has the panel confirm the job.
  Outcome enter(const Entries& entries);
  // Prints the settings or sends the job; only then are entries and preset kept. What cannot be kept of them
  // is found before, as far as it can be.
  Outcome finish();
  PrintDialogPanel& panel() const { return *m_host.panel(); }

 private:
  Outcome makePresetToSave(Preset* preset) const;
  Outcome keep(const Preset& preset);
  // Whether a folder was chosen that the job will not be filed in.
  bool isUnfiled() const { return m_options.entries.texts[Folder] && !panel().filesDocuments(); }
  // What JSON says of the job beside its number or its summary.
  QJsonObject facts() const {
    return isUnfiled() ? QJsonObject{{QStringLiteral("filed"), false}} : QJsonObject();
  }
  QString model() const { return panel().property("modelStringRef").toString(); }

  const Options& m_options;
  GatedPlatform& m_platform;
  JobQueue& m_queue;
  PanelHost m_host;
  PresetStore m_presets;
};

Outcome Job::open(PrintDialogPlugIn& plugIn) {
  m_host.session.currentPrinter = Printer{.id = m_queue.id, .deviceUri = m_queue.deviceUri};
  const bool isNamed = m_options.title || !m_options.files.isEmpty() || m_options.task == Task::Print;
  m_host.settings.emplace().setJobName(isNamed ? std::optional(titleOf(m_options)) : std::nullopt);
  m_host.ppd = std::move(m_queue.ppd);
  if (m_options.task == Task::DryRun) m_platform.close();
  return m_host.openShownPanel(plugIn);
}

Outcome Job::restore() {
  Preset preset;
  if (m_options.preset) {
    if (Outcome loaded = m_presets.load(*m_options.preset, model(), &preset); !loaded) return loaded;
  }
  restorePanel(m_host, preset);
  return Outcome::done();
}

Outcome Job::enter(const Entries& entries) {
  PanelView& view = *panel().panelView();
  if (Outcome applied = applyEntries(view, entries); !applied) return applied;
  if (isUnfiled())
    m_options.messages().warning(QStringLiteral("--folder has no effect: this printer files no documents"));
  if (m_platform.confirmJob(panel())) return Outcome::done();
  return Outcome::failed(panel().panelName() + QStringLiteral(": ") + missingEntry(view));
}

Outcome Job::makePresetToSave(Preset* preset) const {
  if (!m_options.savePreset) return Outcome::done();
  if (Outcome fits = m_presets.check(*m_options.savePreset); !fits) return fits;
  preset->model = model();
  return makePreset(*m_host.settings, *panel().panelView(), m_options.withCodes, preset);
}

// Remembers the entries, in a dry run only when that is asked for, and saves the preset.
Outcome Job::keep(const Preset& preset) {
  const bool isAsked = m_options.entries.asksForMemory();
  Outcome kept = Outcome::done();
  m_platform.open();
  if (isAsked || m_options.task == Task::Print) {
    Outcome remembered = m_platform.rememberEntries(panel());
    if (!remembered)
      kept = Outcome::failed(QStringLiteral("the entries are not remembered: ") + remembered.reason());
  }
  Outcome saved = m_options.savePreset ? m_presets.save(*m_options.savePreset, preset) : Outcome::done();
  if (isAsked && !kept) return kept;
  if (!kept) m_options.messages().warning(kept.reason());
  return saved;
}

Outcome Job::finish() {
  Preset preset;
  if (Outcome made = makePresetToSave(&preset); !made) return made;
  if (m_options.task == Task::Print) {
    Outcome sent = submit(*m_queue.server, *m_queue.destination, m_options, &*m_host.settings, facts());
    if (!sent) return sent;
    Outcome kept = keep(preset);
    return kept ? kept : Outcome::failed(QStringLiteral("the job is sent; ") + kept.reason());
  }
  if (Outcome kept = keep(preset); !kept) return kept;
  if (m_options.summary) return print(summaryOf(panel()), ": ", m_options.json, facts());
  return print(m_host.settings->all(), "=", m_options.json);
}

Outcome listFolders(PrintDialogPanel& panel, const Options& options) {
  if (Outcome asked = fetchFolders(panel, options.address.value_or(QString())); !asked) return asked;
  if (panel.lastFolderFetch() == FolderFetch::Failed) return Outcome::done();  // the alert has said it
  if (Outcome fetched = outcomeOfFetch(panel); !fetched) return fetched;
  return printFolders(panel, options.json);
}

ExitCode runJob(const Options& options, Entries entries, JobQueue& queue) {
  StandardErrorAlerts alerts(options.messages());
  std::shared_ptr<const Bundle> bundle;
  PrintDialogPlugIn* plugIn = nullptr;
  if (Outcome loaded = loadJobHandlingBundle(&bundle, &plugIn); !loaded) return ended(options, loaded);
  GatedPlatform platform(bundle, alerts);
  Job job(options, platform, queue);
  if (Outcome opened = job.open(*plugIn); !opened) return ended(options, opened);
  if (Outcome restored = job.restore(); !restored) return ended(options, restored);
  if (options.task == Task::ListFolders) {
    const Outcome listed = listFolders(job.panel(), options);
    if (alerts.wasShown) return ExitFailed;
    if (const Outcome kept = platform.takeFault(); listed && !kept)
      std::cerr << "kesto-lp: the folders are not remembered: " << kept.reason().toStdString() << '\n';
    return ended(options, listed);
  }
  const Outcome entered = job.enter(entries);
  // The panel has them now, in their stored forms; an upload can take long.
  for (std::optional<QString>& text : entries.texts) {
    if (text) wipe(*text);
  }
  if (!entered) return ended(options, entered, ExitRefused);
  return ended(options, job.finish());
}

// A queue without the panel prints as usual, and so does a job that the panel's driver never sees.
ExitCode runPlainJob(const Options& options, JobQueue& queue, bool isRaw) {
  if (isRaw && options.wantsPanel()) {
    const QString fault = QStringLiteral("a raw job goes past the driver, and Job Handling with it");
    return ended(options, Outcome::failed(fault), ExitUsage);
  }
  if (options.task == Task::ListFolders || options.wantsPanel()) {
    return ended(options,
                 Outcome::failed(QStringLiteral("the queue %1 does not offer Job Handling").arg(queue.id)));
  }
  if (options.task == Task::DryRun) return ended(options, print({}, "=", options.json));
  return ended(options, submit(*queue.server, *queue.destination, options, nullptr));
}

ExitCode runPresets(const Options& options) {
  JsonUserDefaults defaults(JsonUserDefaults::defaultDirectory());
  PresetStore store(defaults, queueOfFiles(options));
  return ended(options, options.deletedPreset ? store.remove(*options.deletedPreset)
                                              : listPresets(store, options.json));
}

ExitCode runQueueList(const Options& options) {
  std::unique_ptr<PrintServer> server;
  if (Outcome connected = options.server.connect(&server); !connected) return ended(options, connected);
  return ended(options, printQueues(*server, options.jobHandlingOnly, options.json));
}

ExitCode runCheck(const Options& options) {
  std::unique_ptr<PrintServer> server;
  if (Outcome connected = options.server.connect(&server); !connected) return ended(options, connected);
  bool isOpen = false;
  const ExitCode code = ended(options, printPrivacy(*server, *options.queue, options.json, &isOpen));
  return code == ExitDone && isOpen ? ExitFailed : code;
}

ExitCode runChange(const Options& options) {
  if (options.mail) options.messages().warning(QStringLiteral("-m is ignored: it goes with a new job"));
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

ExitCode run(const Options& options) {
  for (const QString& warning : options.warnings)
    options.messages().warning(warning);
  if (options.task == Task::Change) return runChange(options);
  if (options.task == Task::ListPresets || options.task == Task::DeletePreset) return runPresets(options);
  if (options.task == Task::ListQueues) return runQueueList(options);
  if (options.task == Task::Check) return runCheck(options);
  JobQueue queue;
  if (Outcome found = findQueue(options, &queue); !found) return ended(options, found);
  const bool isRaw = options.task != Task::ListFolders && goesRaw(options, queue.destination.get());
  if (isRaw || !queue.ppd || !offersJobHandling(*queue.ppd)) return runPlainJob(options, queue, isRaw);
  Entries entries = options.entries;
  if (Outcome read = readSecrets(options, &entries); !read) return ended(options, read);
  return runJob(options, std::move(entries), queue);
}

}  // namespace kesto
