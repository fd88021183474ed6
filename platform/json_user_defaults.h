// User defaults kept as one JSON file per domain in a private folder (docs/formats/preferences.md).
#pragma once

#include "platform/user_defaults.h"

namespace kesto {

/// One file `<domain name>.json` per domain in `directory`: mode 0600 in a folder of mode 0700, written whole
/// to a temporary file, synced and renamed. Characters of the name other than ASCII letters, digits, ".", "_"
/// and "-" are percent-encoded. A file that does not hold a JSON object is renamed aside and counts as
/// missing; an empty file counts as missing, too, and is replaced.
class JsonUserDefaults : public UserDefaults {
 public:
  /// `directory` need not exist; the first write makes it.
  explicit JsonUserDefaults(QString directory);
  /// `$XDG_CONFIG_HOME/kesto`, else `~/.config/kesto`.
  static QString defaultDirectory();

  Domain persistentDomainForName(const QString& name) override;
  Outcome setPersistentDomain(const QJsonObject& values, const QString& name) override;

 private:
  QString pathForName(const QString& name) const;
  QString m_directory;
};

}  // namespace kesto
