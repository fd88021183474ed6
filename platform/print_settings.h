// The print settings of one job: the dictionary of text values that travels with the job to the driver's
// filter.
#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <optional>

#include "platform/export.h"

namespace kesto {

/// The prefix of every key of Job Handling.
inline constexpr char printSettingsPrefix[] = "kesto.print.PrintSettings.";

/// Key to value, both text. The host owns it and lends it to the panel. A key with an empty value is present.
class KESTO_EXPORT PrintSettings {
 public:
  /// Stores `value` under `key`, replacing any earlier value; none removes the key.
  void setValue(const QString& key, const std::optional<QString>& value) {
    if (value) {
      m_values.insert(key, *value);
    } else {
      m_values.remove(key);
    }
  }
  /// The value under `key`, none when the key is absent.
  std::optional<QString> value(const QString& key) const {
    const auto found = m_values.constFind(key);
    return found == m_values.constEnd() ? std::nullopt : std::optional(*found);
  }
  /// All keys and values, sorted by key.
  const QMap<QString, QString>& all() const { return m_values; }

  /// The job's own name, none when the job has none.
  const std::optional<QString>& jobName() const { return m_jobName; }
  void setJobName(std::optional<QString> name) { m_jobName = std::move(name); }

 private:
  QMap<QString, QString> m_values;
  std::optional<QString> m_jobName;
};

}  // namespace kesto
