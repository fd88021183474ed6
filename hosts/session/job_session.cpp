#include "hosts/session/job_session.h"

#include "hosts/cups/faults.h"
#include "hosts/cups/ppd_choices.h"
#include "panel/model/panel_view.h"
#include "panel/model/text_field.h"

namespace kesto {
namespace {

// Takes the options of the table and of the PPD out of those kept for a queue, which travel by themselves.
JobChoices takeKeptOptions(cups_dest_t& destination, ppd_file_t* ppd) {
  QMap<QString, QString> kept;
  for (int i = destination.num_options - 1; i >= 0; --i) {
    const cups_option_t& each = destination.options[i];
    const QString name = QString::fromUtf8(each.name);
    if (!JobOptionTable(ppd).has(name)) continue;
    kept.insert(name, QString::fromUtf8(each.value));
    destination.num_options = cupsRemoveOption(each.name, destination.num_options, &destination.options);
  }
  return JobOptionTable(ppd).resolve(kept);
}

}  // namespace

// The bundle costs time and memory that a queue without the panel need not pay.
Outcome JobSession::loadPlatform() {
  if (m_bundle) return Outcome::done();
  if (Outcome loaded = loadJobHandlingBundle(&m_bundle, &m_plugIn); !loaded) return loaded;
  m_platform = std::make_unique<GatedPlatform>(m_bundle, m_alerts);
  return Outcome::done();
}

Outcome JobSession::take(const std::shared_ptr<Queue>& queue, const QString& jobName) {
  release();
  m_queue = queue;
  if (queue->destination) m_kept = takeKeptOptions(*queue->destination, queue->ppd.get());
  if (!queue->ppd) return Outcome::done();
  markDefaults(*queue->ppd, m_kept.options);
  return offersJobHandling(*queue->ppd) ? openPanel(jobName) : Outcome::done();
}

Outcome JobSession::openPanel(const QString& jobName) {
  if (Outcome loaded = loadPlatform(); !loaded) return loaded;
  m_host = std::make_unique<PanelHost>(*m_platform);
  m_host->ppd = std::move(m_queue->ppd);
  m_host->session.currentPrinter = Printer{.id = m_queue->id, .deviceUri = m_queue->deviceUri};
  m_host->settings.emplace().setJobName(jobName);
  if (Outcome opened = m_host->openShownPanel(*m_plugIn); !opened) return opened;
  restorePanel(*m_host, {});
  m_presets.emplace(m_platform->userDefaults(), m_queue->id);
  return Outcome::done();
}

ppd_file_t* JobSession::ppd() const {
  if (m_host) return m_host->ppd.get();
  return m_queue ? m_queue->ppd.get() : nullptr;
}

void JobSession::release() {
  m_presets.reset();
  m_host.reset();
  if (m_platform) m_platform->leaveQueue();
  m_queue.reset();
  m_kept = {};
}

void JobSession::renameJob(const QString& jobName) {
  if (!m_host) return;
  const QString before = m_host->settings->jobName().value_or(QString());
  m_host->settings->setJobName(jobName);
  auto* field = view() == nullptr ? nullptr : view()->control<TextField>(QStringLiteral("jobNameEditText"));
  if (field == nullptr || !field->isEditable() || field->stringValue() != before) return;
  field->setStringValue(jobName);
  // A job that is confirmed already travels under its new name.
  panel()->saveValuesAndReturnError(nullptr);
}

bool JobSession::confirm() {
  return panel() == nullptr || m_platform->confirmJob(*panel());
}

Outcome JobSession::remember() {
  return panel() == nullptr ? Outcome::done() : m_platform->rememberEntries(*panel());
}

Outcome JobSession::outcomeOfFetch() {
  if (panel() == nullptr) return Outcome::done();
  if (Outcome fetched = kesto::outcomeOfFetch(*panel()); !fetched) return fetched;
  const Outcome kept = m_platform->takeFault();
  return kept ? kept : Outcome::failed(Faults::tr("the folders cannot be remembered: %1").arg(kept.reason()));
}

QMap<QString, QString> JobSession::settings() const {
  return panel() == nullptr ? QMap<QString, QString>() : m_host->settings->all();
}

Outcome JobSession::loadPreset(const QString& name) {
  Preset preset;
  if (Outcome loaded = m_presets->load(name, panel()->property("modelStringRef").toString(), &preset);
      !loaded)
    return loaded;
  restorePanel(*m_host, preset);
  return Outcome::done();
}

Outcome JobSession::savePreset(const QString& name, bool withCodes) {
  panel()->saveValuesAndReturnError(nullptr);
  Preset preset{.model = panel()->property("modelStringRef").toString(), .settings = {}};
  if (Outcome made = makePreset(*m_host->settings, *view(), withCodes, &preset); !made) return made;
  return m_presets->save(name, preset);
}

}  // namespace kesto
