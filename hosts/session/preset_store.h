// Presets: options and print settings that the user keeps under a name, per queue.
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <optional>

#include "platform/outcome.h"
#include "platform/print_settings.h"
#include "platform/user_defaults.h"

namespace kesto {

class PanelHost;
class PanelView;

/// What one preset holds, and the printer model that it is for.
struct Preset {
  QString model;
  QMap<QString, QString> settings;                  ///< The panel's, by whole keys.
  std::optional<QMap<QString, QString>> options{};  ///< The job's; none in presets of before they were kept.
};

/// Makes a preset of a job's print settings and of the panel that wrote them. What belongs to this job alone
/// stays out, and the pass codes too unless `withCodes`. Fails when the folder's name cannot be kept.
Outcome makePreset(const PrintSettings& settings, const PanelView& view, bool withCodes, Preset* preset);

/// Restores an opened panel from its job's print settings, with those of a preset among them.
void restorePanel(PanelHost& host, const Preset& preset);

/// The presets of one queue, in the domain "kesto.presets." + queue: under "Presets", by name, an object with
/// the texts "model" and "settings" and "options" (objects of texts, the latter not always there). What else
/// the domain holds is kept. The queues that have presets are listed in the domain "kesto.presets".
class PresetStore {
 public:
  static constexpr QLatin1String sharedDomain{"kesto.presets"};
  static constexpr QLatin1String queuesKey{"Queues"};
  /// A preset as it is stored; none when the value is no such object.
  static std::optional<Preset> presetOf(const QJsonValue& value);
  static QJsonObject objectOf(const Preset& preset);

  /// `defaults` must outlive the store.
  PresetStore(UserDefaults& defaults, const QString& queue);

  /// The names, sorted.
  Outcome names(QStringList* names) const;
  /// Fails when there is no such preset (the reason lists those that there are), or when it is damaged.
  Outcome find(const QString& name, Preset* preset) const;
  /// Fails also when it is made for another model.
  Outcome load(const QString& name, const QString& model, Preset* preset) const;
  /// Whether a preset of this name can be kept, as things are: one that is damaged is not replaced, and a
  /// name has at most 255 characters.
  Outcome check(const QString& name) const;
  /// Keeps or replaces a preset.
  Outcome save(const QString& name, const Preset& preset);
  /// Fails when there is no such preset.
  Outcome remove(const QString& name);

 private:
  Outcome read(QJsonObject* presets) const;
  Outcome change(const DomainChange& change);  // of the presets alone
  Outcome enlist();

  UserDefaults& m_defaults;
  QString m_queue;
  QString m_domain;
};

}  // namespace kesto
