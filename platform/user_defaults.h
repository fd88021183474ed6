// The user's preferences: a set of named domains, each a dictionary of JSON values.
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <functional>
#include <optional>

#include "platform/outcome.h"

namespace kesto {

/// What reading a domain gave.
struct Domain {
  /// False when the store cannot be read at the moment (no rights, no descriptors, not a file, too large):
  /// nothing may be concluded from `values`, and nothing may be written over what is there.
  bool available = false;
  /// The domain's dictionary; none when there is no such domain.
  std::optional<QJsonObject> values;
  /// Why it is not available, a clause without a full stop; null when it is.
  QString reason = {};
};

/// Changes the dictionary of a domain, empty for a domain that does not exist. It can run more than once,
/// each time on the values as they are then, so it changes nothing else, and it uses no user defaults. A
/// failure leaves the domain as it is.
using DomainChange = std::function<Outcome(QJsonObject* values)>;

/// The store behind the panel's memory. Every read sees what other processes wrote; every change is on disk
/// when it returns.
class UserDefaults {
 public:
  virtual ~UserDefaults() = default;
  /// Reads the domain afresh.
  virtual Domain persistentDomainForName(const QString& name) = 0;
  /// Reads the domain, changes it and writes it whole as one step, which no other process comes between. On
  /// failure the stored domain is what it was.
  virtual Outcome changePersistentDomain(const QString& name, const DomainChange& change) = 0;
};

}  // namespace kesto
