// What a dialog prints with: the open queue, its panel, and the preferences.
#pragma once

#include <memory>
#include <optional>

#include "hosts/cups/queue.h"
#include "hosts/session/gated_platform.h"
#include "hosts/session/job_option_table.h"
#include "hosts/session/panel_host.h"
#include "hosts/session/preset_store.h"

namespace kesto {

/// One queue at a time, with its panel where the queue offers one.
class JobSession {
 public:
  /// `alerts` must outlive the session.
  explicit JobSession(AlertPresenter& alerts) : m_alerts(alerts) {}

  /// Goes over to a queue, whose panel is made, restored and ready to be shown. The job has this name. When
  /// the panel cannot be had the queue prints without it, and the outcome says why.
  Outcome take(const std::shared_ptr<Queue>& queue, const QString& jobName);
  /// Lets go of the panel and the queue. Ends what the panel is waiting for.
  void release();

  /// Null while there is no queue.
  const std::shared_ptr<Queue>& queue() const { return m_queue; }
  /// Null for a queue without one, and while there is no queue.
  ppd_file_t* ppd() const;
  /// The options with a choice to show that are kept for the queue, by its user or on the server. They are
  /// taken out of its destination, and travel only as part of a job's own options.
  const JobChoices& kept() const { return m_kept; }
  /// Null for a queue that offers none.
  PrintDialogPanel* panel() const { return m_host ? m_host->panel() : nullptr; }
  /// The panel's controls, null without a panel.
  PanelView* view() const { return panel() == nullptr ? nullptr : panel()->panelView(); }
  /// Only with a panel.
  const Bundle& bundle() const { return *m_bundle; }

  /// Another name for the job; the panel shows it unless the user has given one.
  void renameJob(const QString& jobName);
  /// Writes the panel's entries into the job. Whether the job may go out; if not, the user has been told.
  bool confirm();
  /// The job has gone out: its entries become the user's for this queue. Fails when they cannot be kept.
  Outcome remember();
  /// Why the folders that the panel has just fetched are not there, or not remembered; done when there is
  /// nothing to say that the panel has not said.
  Outcome outcomeOfFetch();
  /// The job's print settings, as they travel with it.
  QMap<QString, QString> settings() const;

  /// The presets of the queue; null without a panel.
  PresetStore* presets() { return m_presets ? &*m_presets : nullptr; }
  Outcome loadPreset(const QString& name);
  Outcome savePreset(const QString& name, bool withCodes);

 private:
  Outcome loadPlatform();
  Outcome openPanel(const QString& jobName);

  AlertPresenter& m_alerts;
  std::shared_ptr<const Bundle> m_bundle;
  PrintDialogPlugIn* m_plugIn = nullptr;
  std::unique_ptr<GatedPlatform> m_platform;
  std::shared_ptr<Queue> m_queue;
  JobChoices m_kept;
  std::unique_ptr<PanelHost> m_host;
  std::optional<PresetStore> m_presets;
};

}  // namespace kesto
