#include "hosts/session/gated_platform.h"

namespace kesto {

namespace {

// The values in `after` that differ from `before`.
QJsonObject difference(const QJsonObject& before, const QJsonObject& after) {
  QJsonObject changed;
  for (auto it = after.begin(); it != after.end(); ++it) {
    if (before.value(it.key()) != it.value()) changed.insert(it.key(), it.value());
  }
  return changed;
}

}  // namespace

void GatedPlatform::Gate::lay(const QString& name, QJsonObject* values) const {
  const auto found = aside.find(name);
  if (found == aside.end()) return;
  for (auto it = found->second.begin(); it != found->second.end(); ++it)
    values->insert(it.key(), it.value());
}

Domain GatedPlatform::Gate::persistentDomainForName(const QString& name) {
  Domain domain = defaults.persistentDomainForName(name);
  if (!domain.available) lastFault = Outcome::failed(domain.reason);
  if (!domain.available || !aside.contains(name)) return domain;
  QJsonObject values = domain.values.value_or(QJsonObject());
  lay(name, &values);
  domain.values = values;
  return domain;
}

Outcome GatedPlatform::Gate::changePersistentDomain(const QString& name, const DomainChange& change) {
  if (writes != Writes::Through) return changeAside(name, change);
  Outcome changed = defaults.changePersistentDomain(name, [&](QJsonObject* values) {
    lay(name, values);
    return change(values);
  });
  if (changed) aside.erase(name);
  lastFault = changed;
  return changed;
}

Outcome GatedPlatform::Gate::changeAside(const QString& name, const DomainChange& change) {
  const Domain domain = persistentDomainForName(name);
  if (!domain.available) return Outcome::failed(domain.reason);
  const QJsonObject before = domain.values.value_or(QJsonObject());
  QJsonObject after = before;
  Outcome changed = change(&after);
  if (!changed || writes == Writes::Dropped) return changed;
  QJsonObject& kept = aside[name];
  const QJsonObject more = difference(before, after);
  for (auto it = more.begin(); it != more.end(); ++it)
    kept.insert(it.key(), it.value());
  return changed;
}

bool GatedPlatform::confirmJob(PrintDialogPanel& panel) {
  panel.saveValuesAndReturnError(nullptr);
  const Writes before = m_gate.writes;
  m_gate.writes = Writes::Dropped;
  const bool mayPrint = panel.shouldPrint();
  m_gate.writes = before;
  return mayPrint;
}

Outcome GatedPlatform::rememberEntries(PrintDialogPanel& panel) {
  (void)takeFault();
  panel.shouldPrint();
  return takeFault();
}

QString GatedPlatform::temporaryDirectory() {
  if (!m_answers || !m_answers->isValid()) {
    const QString folder = SystemPlatform::temporaryDirectory();
    m_answers = std::make_unique<QTemporaryDir>((folder.isNull() ? QStringLiteral("/tmp/") : folder) +
                                                QStringLiteral("kesto-XXXXXX"));
  }
  return (m_answers->isValid() ? m_answers->path() : QStringLiteral("/nonexistent")) + u'/';
}

}  // namespace kesto
