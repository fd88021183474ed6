#include "hosts/session/preset_shelf.h"

#include <QtCore/QJsonArray>
#include <algorithm>
#include <utility>

#include "hosts/cups/faults.h"

namespace kesto {
namespace {

constexpr QLatin1String lastUsedKey("Last used");

}  // namespace

PresetShelf::PresetShelf(UserDefaults& defaults, QString queue)
    : m_defaults(defaults), m_queue(std::move(queue)) {}

QStringList PresetShelf::queues() const {
  QStringList queues{m_queue};
  const Domain stored = m_defaults.persistentDomainForName(PresetStore::sharedDomain);
  for (const auto& queue : stored.values.value_or(QJsonObject())[PresetStore::queuesKey].toArray())
    queues.append(queue.toString());
  queues.removeDuplicates();
  return queues;
}

// What another queue's presets have wrong is no fault here.
Outcome PresetShelf::names(QStringList* names) const {
  if (Outcome found = PresetStore(m_defaults, m_queue).names(names); !found) return found;
  for (const QString& queue : queues()) {
    QStringList others;
    if (PresetStore(m_defaults, queue).names(&others)) *names += others;
  }
  names->removeDuplicates();
  names->sort();
  return Outcome::done();
}

QString PresetShelf::holderOf(const QString& name) const {
  const QStringList all = queues();
  const auto found = std::ranges::find_if(all, [&](const QString& queue) {
    QStringList names;
    return PresetStore(m_defaults, queue).names(&names) && names.contains(name);
  });
  return found == all.end() ? m_queue : *found;
}

Outcome PresetShelf::load(const QString& name, Preset* preset) const {
  return PresetStore(m_defaults, holderOf(name)).find(name, preset);
}

Outcome PresetShelf::remove(const QString& name) {
  return PresetStore(m_defaults, holderOf(name)).remove(name);
}

bool PresetShelf::hasLastUsed() const {
  Preset preset;
  return bool(loadLastUsed(&preset));
}

Outcome PresetShelf::loadLastUsed(Preset* preset) const {
  const Domain stored = m_defaults.persistentDomainForName(PresetStore::sharedDomain);
  const auto found = PresetStore::presetOf(stored.values.value_or(QJsonObject()).value(lastUsedKey));
  if (!found) return Outcome::failed(Faults::tr("nothing was printed before"));
  *preset = *found;
  return Outcome::done();
}

Outcome PresetShelf::keepLastUsed(const Preset& preset) {
  return m_defaults.changePersistentDomain(PresetStore::sharedDomain, [&](QJsonObject* values) {
    values->insert(lastUsedKey, PresetStore::objectOf(preset));
    return Outcome::done();
  });
}

}  // namespace kesto
