// The user's preferences: a set of named domains, each a dictionary of JSON values.
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <optional>

#include "platform/outcome.h"

namespace kesto {

/// What reading a domain gave.
struct Domain {
  /// False when the store cannot be read at the moment (no rights, no descriptors, not a file): nothing may
  /// be concluded from `values`, and nothing may be written over what is there.
  bool available = false;
  /// The domain's dictionary; none when there is no such domain.
  std::optional<QJsonObject> values;
};

/// The store behind the panel's memory. Every read sees what other processes wrote; every write is on disk
/// when it returns.
class UserDefaults {
 public:
  virtual ~UserDefaults() = default;
  /// Reads the domain afresh.
  virtual Domain persistentDomainForName(const QString& name) = 0;
  /// Replaces the whole domain, atomically and synced. On failure the stored domain is what it was.
  virtual Outcome setPersistentDomain(const QJsonObject& values, const QString& name) = 0;
};

}  // namespace kesto
