// The presets of all queues, as a dialog offers them on any.
#pragma once

#include "hosts/session/preset_store.h"

namespace kesto {

/// The presets of one queue, followed by those of the others. Where several have the same name, the first one
/// counts. Also keeps the last job's choice, in the domain "kesto.presets" under "Last used".
class PresetShelf {
 public:
  /// `defaults` must outlive the shelf.
  PresetShelf(UserDefaults& defaults, QString queue);

  /// The names, sorted.
  Outcome names(QStringList* names) const;
  /// Fails when there is no such preset, or when it is damaged. It may be for another model.
  Outcome load(const QString& name, Preset* preset) const;
  Outcome remove(const QString& name);

  bool hasLastUsed() const;
  Outcome loadLastUsed(Preset* preset) const;
  Outcome keepLastUsed(const Preset& preset);

 private:
  /// The queue whose preset of that name counts; this one when there is none.
  QString holderOf(const QString& name) const;
  QStringList queues() const;

  UserDefaults& m_defaults;
  QString m_queue;
};

}  // namespace kesto
