#include "hosts/session/panel_session.h"

#include "hosts/cups/faults.h"
#include "hosts/session/last_printer.h"
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
  m_presets.emplace(m_defaults, m_queue->id);
  m_shelf.emplace(m_defaults, m_queue->id);
  const bool isRaw = !start.ignoresRaw && m_options.goesRaw();
  Outcome opened = Outcome::done();
  if (!isRaw && m_queue->ppd && offersJobHandling(*m_queue->ppd)) opened = openPanel(start);
  return opened && start.preset && !isRaw ? restorePreset(*start.preset) : opened;
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
  if (!start.preset) restorePanel(*m_host, {});
  return Outcome::done();
}

QString PanelSession::model() const {
  return panel() == nullptr ? QStringLiteral("") : panel()->modelName();
}

void PanelSession::release() {
  m_options.close();
  m_active = {};
  m_shelf.reset();
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

Outcome PanelSession::restorePreset(const QString& name) {
  Preset preset;
  if (Outcome loaded = m_presets->load(name, model(), &preset); !loaded) return loaded;
  if (m_host) restorePanel(*m_host, preset);
  m_options.set(JobOptions::Source::Preset, preset.options.value_or(QMap<QString, QString>()));
  return Outcome::done();
}

Outcome PanelSession::loadPreset(const QString& name, QStringList* others) {
  Preset preset;
  if (Outcome loaded = m_shelf->load(name, &preset); !loaded) return loaded;
  *others = take(preset);
  m_active = activeAs(name);
  return Outcome::done();
}

Outcome PanelSession::loadLastUsed(QStringList* others) {
  Preset preset;
  if (Outcome loaded = m_shelf->loadLastUsed(&preset); !loaded) return loaded;
  *others = take(preset);
  m_active = activeAs(QStringLiteral(""));
  return Outcome::done();
}

Outcome PanelSession::removePreset(const QString& name) {
  if (Outcome removed = m_shelf->remove(name); !removed) return removed;
  if (name == m_active.name) m_active = {};
  return Outcome::done();
}

QStringList PanelSession::take(const Preset& preset) {
  QStringList others;
  if (panel() != nullptr && preset.model == model())
    restorePanel(*m_host, preset);
  else if (!preset.settings.isEmpty())
    others.append(Faults::tr("Job Handling for the model %1").arg(preset.model));
  if (preset.options) others += m_options.choosePreset(*preset.options);
  return others;
}

PanelSession::ActivePreset PanelSession::activeAs(const QString& name) const {
  return {.name = name,
          .options = m_options.ofPreset(),
          .entries = panel() == nullptr ? QMap<QString, QString>() : summaryOf(*panel())};
}

bool PanelSession::isPresetChanged() const {
  if (m_active.name.isNull()) return false;
  const ActivePreset now = activeAs(m_active.name);
  return now.options != m_active.options || now.entries != m_active.entries;
}

Outcome PanelSession::makePreset(const QString& name, bool withCodes, Preset* preset) const {
  if (Outcome fits = m_presets->check(name); !fits) return fits;
  preset->model = model();
  preset->options = m_options.ofPreset();
  return panel() == nullptr ? Outcome::done()
                            : kesto::makePreset(*m_host->settings, *view(), withCodes, preset);
}

Outcome PanelSession::keepPreset(const QString& name, const Preset& preset) {
  return m_presets->save(name, preset);
}

Outcome PanelSession::savePreset(const QString& name, bool withCodes) {
  if (panel() != nullptr) panel()->saveValuesAndReturnError(nullptr);
  Preset preset;
  if (Outcome made = makePreset(name, withCodes, &preset); !made) return made;
  Outcome kept = keepPreset(name, preset);
  if (kept) m_active = activeAs(name);
  return kept;
}

Outcome PanelSession::keepChoice() {
  keepPrinter(m_queue->id);
  Preset preset{.model = model(), .settings = {}, .options = m_options.ofPreset()};
  for (const char* each : {"copies", "collate", "page-ranges", "page-set"})
    preset.options->remove(QLatin1String(each));
  if (panel() != nullptr) {
    if (Outcome made = kesto::makePreset(*m_host->settings, *view(), false, &preset); !made) return made;
  }
  return m_shelf->keepLastUsed(preset);
}

}  // namespace kesto
