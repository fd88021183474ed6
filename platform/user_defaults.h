// The user's preferences: a set of named domains, each a dictionary of JSON values.
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <functional>
#include <optional>

#include "platform/export.h"
#include "platform/outcome.h"

namespace kesto {

/// The result of reading a domain.
struct Domain {
  /// False when the store cannot be read at the moment (no permission, no descriptors, not a file, too
  /// large). Then `values` says nothing, and the store must not be overwritten.
  bool available = false;
  /// The domain's dictionary; none when there is no such domain.
  std::optional<QJsonObject> values;
  /// Why the store is not available, a clause without a full stop; null when it is available.
  QString reason = {};
};

/// Changes the dictionary of a domain, which is empty for a domain that does not exist. It can run more than
/// once, each time on the current values, so it must change nothing else and must not use the user defaults.
/// A failure leaves the domain as it is.
using DomainChange = std::function<Outcome(QJsonObject* values)>;

/// The store for everything that the panel remembers. Every read sees what other processes wrote; every
/// change is on disk when the call returns.
class KESTO_EXPORT UserDefaults {
 public:
  virtual ~UserDefaults() = default;
  /// Reads the domain afresh.
  virtual Domain persistentDomainForName(const QString& name) = 0;
  /// Reads the domain, changes it and writes it whole, as one step that no other process can interrupt. On
  /// failure the stored domain is what it was.
  virtual Outcome changePersistentDomain(const QString& name, const DomainChange& change) = 0;
};

}  // namespace kesto
