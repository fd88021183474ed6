#include "hosts/session/gated_platform.h"

namespace kesto {

Domain GatedPlatform::Gate::persistentDomainForName(const QString& name) {
  const auto found = aside.find(name);
  if (found != aside.end()) return {.available = true, .values = found->second};
  Domain domain = defaults.persistentDomainForName(name);
  if (!domain.available) lastFault = Outcome::failed(QStringLiteral("the preferences cannot be read"));
  return domain;
}

Outcome GatedPlatform::Gate::setPersistentDomain(const QJsonObject& values, const QString& name) {
  if (writes == Writes::KeptAside) aside[name] = values;
  if (writes != Writes::Through) return Outcome::done();
  aside.erase(name);
  Outcome written = defaults.setPersistentDomain(values, name);
  if (!written) lastFault = written;
  return written;
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
  m_gate.lastFault = Outcome::done();
  panel.shouldPrint();
  return m_gate.lastFault;
}

}  // namespace kesto
