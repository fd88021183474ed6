// A queue and its panel, from the opening to what is remembered of the job.
#pragma once

#include <memory>
#include <optional>

#include "hosts/cups/queue.h"
#include "hosts/session/gated_platform.h"
#include "hosts/session/job_options.h"
#include "hosts/session/panel_entries.h"
#include "hosts/session/panel_host.h"
#include "hosts/session/preset_shelf.h"
#include "platform/json_user_defaults.h"

namespace kesto {

/// What a panel starts with.
struct PanelStart {
  std::optional<QString> jobName;      ///< None for a job that has none.
  std::optional<QString> preset = {};  ///< To restore, of the queue.
  bool keepsAside = false;             ///< What the panel remembers before `remember` is not stored.
  bool ignoresRaw = false;             ///< The panel is wanted for something else than a job.
};

/// One queue at a time, with its panel where the queue offers one.
class PanelSession {
 public:
  /// `alerts` must outlive the session.
  explicit PanelSession(AlertPresenter& alerts) : m_alerts(alerts) {}

  /// Goes over to a queue: the job's options are open for it, and its panel is made, restored and ready to be
  /// shown. When there is none to be had the queue is open without it, and the outcome says why. A raw job
  /// has no panel, since it goes past the driver, and no preset. It also fails on a preset that cannot be
  /// loaded.
  Outcome open(Queue queue, const PanelStart& start);
  /// Lets go of the panel and the queue. Ends what the panel is waiting for.
  void release();

  /// Null while there is no queue.
  const Queue* queue() const { return m_queue ? &*m_queue : nullptr; }
  /// The job's options on the open queue.
  JobOptions& options() { return m_options; }
  const JobOptions& options() const { return m_options; }
  /// Null for a queue that offers none.
  PrintDialogPanel* panel() const { return m_host ? m_host->panel() : nullptr; }
  /// The panel's controls, null without a panel.
  PanelView* view() const { return panel() == nullptr ? nullptr : panel()->panelView(); }
  /// Only with a panel.
  const Bundle& bundle() const { return *m_bundle; }

  /// Another name for the job; the panel shows it unless the user has given one.
  void renameJob(const QString& jobName);
  /// Writes the panel's entries into the job. None when the job may go out; otherwise the entry that is
  /// missing, which the panel has said in an alert.
  std::optional<Entry> confirm();
  /// The job has gone out: its entries become the user's for this queue. Fails when they cannot be kept.
  Outcome remember();
  /// The job's print settings, as they travel with it.
  QMap<QString, QString> settings() const;

  /// Why the folders that the panel has just fetched are not there, or not remembered; done when there is
  /// nothing to say that the panel has not said.
  Outcome outcomeOfFetch();

  /// The presets of the queue; null without a queue.
  PresetStore* presets() { return m_presets ? &*m_presets : nullptr; }
  /// Those of all queues; null without a queue.
  PresetShelf* shelf() { return m_shelf ? &*m_shelf : nullptr; }
  /// Restores the panel with a preset of any queue, and the options as if the user chose them; a preset of
  /// before options were kept leaves these. `others` names what does not fit this queue and is left out.
  Outcome loadPreset(const QString& name, QStringList* others);
  /// The same with the choice of the last job.
  Outcome loadLastUsed(QStringList* others);
  /// Fails when there is no such preset.
  Outcome removePreset(const QString& name);
  /// The preset that was loaded or saved last; empty for the choice of the last job, null for none.
  const QString& activePreset() const { return m_active.name; }
  /// Whether something was chosen or entered differently since then.
  bool isPresetChanged() const;
  /// Makes a preset of a confirmed job. Fails when it could not be kept under that name.
  Outcome makePreset(const QString& name, bool withCodes, Preset* preset) const;
  /// Keeps it.
  Outcome keepPreset(const QString& name, const Preset& preset);
  /// Makes and keeps a preset of the job, which is the active one from now on.
  Outcome savePreset(const QString& name, bool withCodes);
  /// Keeps, for the next dialog, the printer of a job that has gone out and what it was sent with, but for
  /// copies, pages and pass codes.
  Outcome keepChoice();

 private:
  Outcome loadPlatform();
  Outcome openPanel(const PanelStart& start);
  /// What the job is made of, to see whether it changes.
  struct ActivePreset {
    QString name;
    QMap<QString, QString> options;
    QMap<QString, QString> entries;
  };

  Outcome restorePreset(const QString& name);
  QStringList take(const Preset& preset);
  ActivePreset activeAs(const QString& name) const;
  QString model() const;

  AlertPresenter& m_alerts;
  std::shared_ptr<const Bundle> m_bundle;
  PrintDialogPlugIn* m_plugIn = nullptr;
  std::unique_ptr<GatedPlatform> m_platform;
  std::optional<Queue> m_queue;
  std::unique_ptr<PanelHost> m_host;
  JsonUserDefaults m_defaults{JsonUserDefaults::defaultDirectory()};
  std::optional<PresetStore> m_presets;
  std::optional<PresetShelf> m_shelf;
  ActivePreset m_active;
  JobOptions m_options;
};

}  // namespace kesto
