#include "hosts/session/preset_store.h"

#include <QtCore/QJsonArray>
#include <algorithm>
#include <array>
#include <optional>

#include "hosts/cups/faults.h"
#include "hosts/session/panel_entries.h"
#include "hosts/session/panel_host.h"
#include "panel/model/panel_view.h"
#include "panel/model/pop_up.h"
#include "panel/model/radio_matrix.h"
#include "panel/model/text_field.h"
#include "platform/environment.h"
#include "platform/job_keys.h"
#include "platform/text_encoding.h"

namespace kesto {
namespace {

const QLatin1String prefix(printSettingsPrefix);
constexpr QLatin1String presetsKey("Presets");
constexpr QLatin1String modelKey("model");
constexpr QLatin1String settingsKey("settings");
constexpr QLatin1String optionsKey("options");

// What is bound to the moment of one job, and the plain text of numbers that are read from their sealed form.
const std::array ofOneJob{QLatin1String(job_keys::spoolTime), QLatin1String(job_keys::jobSuspendKey),
                          QLatin1String(job_keys::folderPassword), QLatin1String(job_keys::userNumber),
                          QLatin1String(job_keys::accountNumber)};
const std::array sealedCodes{QLatin1String(job_keys::jobSuspend2Key),
                             QLatin1String(job_keys::folderPassword2)};

// A stored name of more bytes is not read back.
constexpr qsizetype longestFolderName = 127;

constexpr qsizetype longestPresetName = 255;

QString textOf(const PanelView& view, Entry entry) {
  const auto* found = view.control<TextField>(fieldOf(entry));
  return found == nullptr ? QString() : found->stringValue();
}

// The panel tells the job nothing of its folder choice; a preset keeps it under the keys that the panel
// reads.
Outcome addFolder(const PanelView& view, QMap<QString, QString>* settings) {
  const auto* matrix = view.control<RadioMatrix>(QStringLiteral("folderSelectionMatrix"));
  if (matrix == nullptr) return Outcome::done();
  settings->insert(job_keys::whole(job_keys::filing),
                   QString(QLatin1Char(job_keys::filingDigit(matrix->selectedRow()))));
  if (matrix->selectedRow() != CustomFolder) return Outcome::done();
  const auto* popUp = view.control<PopUp>(QStringLiteral("folderSelectionPopup"));
  const bool isStored = popUp != nullptr && popUp->selectedIndex() >= firstFolderItem;
  const QString name = isStored ? popUp->selectedItem()->title : textOf(view, Folder);
  const auto bytes = cStringOfText(name, systemEncodingOfEnvironment(), longestFolderName + 1);
  if (!bytes) return Outcome::failed(Faults::tr("a preset cannot store this folder's name"));
  settings->insert(job_keys::whole(job_keys::folderPath), QString::fromLatin1(bytes->toHex().toUpper()));
  return Outcome::done();
}

// None when it is no object of texts.
std::optional<QMap<QString, QString>> textsOf(const QJsonValue& value) {
  if (!value.isObject()) return {};
  QMap<QString, QString> texts;
  const QJsonObject values = value.toObject();
  for (auto it = values.begin(); it != values.end(); ++it) {
    if (!it.value().isString()) return {};
    texts.insert(it.key(), it.value().toString());
  }
  return texts;
}

QJsonObject objectOfTexts(const QMap<QString, QString>& texts) {
  QJsonObject object;
  for (auto it = texts.begin(); it != texts.end(); ++it)
    object.insert(it.key(), it.value());
  return object;
}

Outcome noSuchPreset(const QString& name, const QJsonObject& presets) {
  const QString known = presets.keys().join(QStringLiteral(", "));
  return Outcome::failed(
      presets.isEmpty() ? Faults::tr("there is no preset \"%1\"; this printer has no presets").arg(name)
                        : Faults::tr("there is no preset \"%1\"; this printer has: %2").arg(name, known));
}

Outcome damagedPreset(const QString& name) {
  return Outcome::failed(Faults::tr("the preset \"%1\" is damaged and was left unchanged").arg(name));
}

// The presets of a domain, which has none at first.
Outcome presetsOf(const QJsonObject& domain, QJsonObject* presets) {
  const QJsonValue value = domain.value(presetsKey);
  if (!value.isUndefined() && !value.isObject()) {
    return Outcome::failed(Faults::tr("this printer's presets are damaged and were left unchanged"));
  }
  *presets = value.toObject();
  return Outcome::done();
}

Outcome mayReplace(const QString& name, const QJsonObject& presets) {
  if (name.size() > longestPresetName) {
    return Outcome::failed(Faults::tr("a preset's name must have at most %1 characters; choose a shorter one")
                               .arg(longestPresetName));
  }
  const bool isDamaged = presets.contains(name) && !PresetStore::presetOf(presets.value(name));
  return isDamaged ? damagedPreset(name) : Outcome::done();
}

}  // namespace

Outcome makePreset(const PrintSettings& settings, const PanelView& view, bool withCodes, Preset* preset) {
  // The panel names a job after itself; the next job has a name of its own.
  const bool isNamedAfterJob = textOf(view, JobName) == settings.jobName().value_or(QString());
  const QMap<QString, QString>& all = settings.all();
  for (auto it = all.begin(); it != all.end(); ++it) {
    if (!it.key().startsWith(prefix)) continue;
    const QString name = it.key().sliced(prefix.size());
    if (std::ranges::find(ofOneJob, name) != ofOneJob.end()) continue;
    if (!withCodes && std::ranges::find(sealedCodes, name) != sealedCodes.end()) continue;
    if (isNamedAfterJob && name.startsWith(QLatin1String(job_keys::jobName))) continue;
    preset->settings.insert(it.key(), it.value());
  }
  return addFolder(view, &preset->settings);
}

void restorePanel(PanelHost& host, const Preset& preset) {
  const QMap<QString, QString>& values = preset.settings;
  for (auto it = values.begin(); it != values.end(); ++it)
    host.settings->setValue(it.key(), it.value());
  host.panel()->restoreValuesAndReturnError(nullptr);
  // The panel has taken the preset over and writes its own. What it would leave untouched, a code that the
  // job no longer has or the end of a longer name, must not travel with the job.
  for (auto it = values.begin(); it != values.end(); ++it)
    host.settings->setValue(it.key(), std::nullopt);
}

std::optional<Preset> PresetStore::presetOf(const QJsonValue& value) {
  const QJsonValue model = value[modelKey];
  const auto settings = textsOf(value[settingsKey]);
  const auto options = textsOf(value[optionsKey]);
  if (!model.isString() || !settings || (!options && !value[optionsKey].isUndefined())) return {};
  const QStringList keys = settings->keys();
  if (std::ranges::any_of(keys, [](const QString& key) { return !key.startsWith(prefix); })) return {};
  return Preset{.model = model.toString(), .settings = *settings, .options = options};
}

QJsonObject PresetStore::objectOf(const Preset& preset) {
  QJsonObject object{{modelKey, preset.model}, {settingsKey, objectOfTexts(preset.settings)}};
  if (preset.options) object.insert(optionsKey, objectOfTexts(*preset.options));
  return object;
}

PresetStore::PresetStore(UserDefaults& defaults, const QString& queue)
    : m_defaults(defaults), m_queue(queue), m_domain(sharedDomain + u'.' + queue) {}

Outcome PresetStore::read(QJsonObject* presets) const {
  const Domain stored = m_defaults.persistentDomainForName(m_domain);
  if (!stored.available)
    return Outcome::failed(Faults::tr("cannot read this printer's presets: %1").arg(stored.reason));
  return presetsOf(stored.values.value_or(QJsonObject()), presets);
}

Outcome PresetStore::change(const DomainChange& change) {
  return m_defaults.changePersistentDomain(m_domain, [&](QJsonObject* domain) {
    QJsonObject presets;
    if (Outcome found = presetsOf(*domain, &presets); !found) return found;
    Outcome changed = change(&presets);
    domain->insert(presetsKey, presets);
    return changed;
  });
}

Outcome PresetStore::names(QStringList* names) const {
  QJsonObject presets;
  Outcome found = read(&presets);
  *names = presets.keys();
  return found;
}

Outcome PresetStore::find(const QString& name, Preset* preset) const {
  QJsonObject presets;
  if (Outcome found = read(&presets); !found) return found;
  if (!presets.contains(name)) return noSuchPreset(name, presets);
  const std::optional<Preset> stored = presetOf(presets.value(name));
  if (!stored) return damagedPreset(name);
  *preset = *stored;
  return Outcome::done();
}

Outcome PresetStore::load(const QString& name, const QString& model, Preset* preset) const {
  Preset stored;
  if (Outcome found = find(name, &stored); !found) return found;
  if (stored.model != model) {
    return Outcome::failed(
        Faults::tr("the preset \"%1\" is for another printer model, %2").arg(name, stored.model));
  }
  *preset = stored;
  return Outcome::done();
}

Outcome PresetStore::check(const QString& name) const {
  QJsonObject presets;
  if (Outcome found = read(&presets); !found) return found;
  return mayReplace(name, presets);
}

Outcome PresetStore::save(const QString& name, const Preset& preset) {
  const Outcome saved = change([&](QJsonObject* presets) {
    if (Outcome free = mayReplace(name, *presets); !free) return free;
    presets->insert(name, objectOf(preset));
    return Outcome::done();
  });
  return saved ? enlist() : saved;
}

// Other queues look for presets here, too.
Outcome PresetStore::enlist() {
  return m_defaults.changePersistentDomain(sharedDomain, [this](QJsonObject* values) {
    QJsonArray queues = values->value(queuesKey).toArray();
    if (!queues.contains(m_queue)) queues.append(m_queue);
    values->insert(queuesKey, queues);
    return Outcome::done();
  });
}

Outcome PresetStore::remove(const QString& name) {
  return change([&](QJsonObject* presets) {
    if (!presets->contains(name)) return noSuchPreset(name, *presets);
    presets->remove(name);
    return Outcome::done();
  });
}

}  // namespace kesto
