// User defaults kept as one JSON file per domain in a private folder (docs/formats/preferences.md).
#pragma once

#include <chrono>

#include "platform/export.h"
#include "platform/user_defaults.h"

namespace kesto {

/// The largest size of a domain's file in bytes. A larger file is neither read nor written.
inline constexpr qsizetype largestDomain = qsizetype{16} * 1024 * 1024;

/// One file `<domain name>.json` per domain in `directory`: mode 0600 in a folder of mode 0700, written whole
/// to a temporary file, synced and renamed, under a lock on the directory. Characters of the name other than
/// ASCII letters, digits, ".", "_" and "-" are percent-encoded, and a file name beyond 255 bytes is cut and
/// ends with a digest. A file that does not hold a JSON object is renamed aside and counts as missing; an
/// empty file also counts as missing, and is replaced. A change that fails is logged.
class KESTO_EXPORT JsonUserDefaults : public UserDefaults {
 public:
  static constexpr std::chrono::milliseconds lockLimit{10000};

  /// `directory` need not exist; the first write creates it. `limit` is the longest wait for another process.
  explicit JsonUserDefaults(QString directory, std::chrono::milliseconds limit = lockLimit);
  /// The folder "kesto" in the user's configuration folder.
  static QString defaultDirectory();

  Domain persistentDomainForName(const QString& name) override;
  Outcome changePersistentDomain(const QString& name, const DomainChange& change) override;

 private:
  Outcome changeFile(const QString& path, const DomainChange& change);
  QString pathForName(const QString& name) const;

  QString m_directory;
  std::chrono::milliseconds m_limit;
};

}  // namespace kesto
