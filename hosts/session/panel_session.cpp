#include "hosts/session/panel_session.h"

#include "hosts/cups/faults.h"
#include "panel/model/panel_view.h"
#include "panel/model/text_field.h"

namespace kesto {

// The bundle costs time and memory that a queue without the panel need not pay.
Outcome PanelSession::loadPlatform() {
  if (m_bundle) return Outcome::done();
  if (Outcome loaded = loadJobHandlingBundle(&m_bundle, &m_plugIn); !loaded) return loaded;
  m_platform = std::make_unique<GatedPlatform>(m_bundle, m_alerts);
  return Outcome::done();
}

Outcome PanelSession::open(Queue queue, const PanelStart& start) {
  release();
  m_queue = std::move(queue);
  m_options.openFor(*m_queue);
  return m_queue->ppd && offersJobHandling(*m_queue->ppd) ? openPanel(start) : Outcome::done();
}

Outcome PanelSession::openPanel(const PanelStart& start) {
  if (Outcome loaded = loadPlatform(); !loaded) return loaded;
  if (start.keepsAside) m_platform->close();
  m_host = std::make_unique<PanelHost>(*m_platform);
  m_host->ppd = m_queue->ppd.get();
  m_host->session.currentPrinter = Printer{.id = m_queue->id, .deviceUri = m_queue->deviceUri};
  m_host->settings.emplace().setJobName(start.jobName);
  if (Outcome opened = m_host->openShownPanel(*m_plugIn); !opened) return opened;
  m_options.leaveToPanel(panel()->supportedPPDOptionKeys());
  m_presets.emplace(m_platform->userDefaults(), m_queue->id);
  if (start.preset) {
    Preset preset;
    Outcome restored = restorePreset(*start.preset, &preset);
    m_options.set(JobOptions::Source::Preset, preset.options.value_or(QMap<QString, QString>()));
    return restored;
  }
  restorePanel(*m_host, {});
  return Outcome::done();
}

QString PanelSession::model() const {
  return panel()->modelName();
}

void PanelSession::release() {
  m_options.close();
  m_presets.reset();
  m_host.reset();
  if (m_platform) m_platform->leaveQueue();
  m_queue.reset();
}

void PanelSession::renameJob(const QString& jobName) {
  if (!m_host) return;
  const QString before = m_host->settings->jobName().value_or(QString());
  m_host->settings->setJobName(jobName);
  auto* field = view() == nullptr ? nullptr : view()->control<TextField>(fieldOf(JobName));
  if (field == nullptr || !field->isEditable() || field->stringValue() != before) return;
  field->setStringValue(jobName);
  // A job that is confirmed already travels under its new name.
  panel()->saveValuesAndReturnError(nullptr);
}

std::optional<Entry> PanelSession::confirm() {
  if (panel() == nullptr || m_platform->confirmJob(*panel())) return std::nullopt;
  return missingEntry(*view());
}

Outcome PanelSession::remember() {
  if (panel() == nullptr) return Outcome::done();
  m_platform->open();
  return m_platform->rememberEntries(*panel());
}

QMap<QString, QString> PanelSession::settings() const {
  return panel() == nullptr ? QMap<QString, QString>() : m_host->settings->all();
}

Outcome PanelSession::outcomeOfFetch() {
  if (panel() == nullptr) return Outcome::done();
  if (Outcome fetched = kesto::outcomeOfFetch(*panel()); !fetched) return fetched;
  const Outcome kept = m_platform->takeFault();
  return kept ? kept : Outcome::failed(Faults::tr("cannot remember the folders: %1").arg(kept.reason()));
}

Outcome PanelSession::restorePreset(const QString& name, Preset* preset) {
  if (Outcome loaded = m_presets->load(name, model(), preset); !loaded) return loaded;
  restorePanel(*m_host, *preset);
  return Outcome::done();
}

Outcome PanelSession::loadPreset(const QString& name) {
  Preset preset;
  if (Outcome restored = restorePreset(name, &preset); !restored) return restored;
  if (!preset.options) return Outcome::done();
  m_options.clear(JobOptions::Source::Chosen);
  m_options.set(JobOptions::Source::Chosen, *preset.options);
  return Outcome::done();
}

Outcome PanelSession::makePreset(const QString& name, bool withCodes, Preset* preset) const {
  if (Outcome fits = m_presets->check(name); !fits) return fits;
  preset->model = model();
  preset->options = m_options.ofPreset();
  return kesto::makePreset(*m_host->settings, *view(), withCodes, preset);
}

Outcome PanelSession::keepPreset(const QString& name, const Preset& preset) {
  m_platform->open();
  return m_presets->save(name, preset);
}

Outcome PanelSession::savePreset(const QString& name, bool withCodes) {
  panel()->saveValuesAndReturnError(nullptr);
  Preset preset;
  Outcome made = makePreset(name, withCodes, &preset);
  return made ? keepPreset(name, preset) : made;
}

}  // namespace kesto
