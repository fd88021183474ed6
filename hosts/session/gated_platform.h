// A platform whose preferences can be protected from changes.
#pragma once

#include <QtCore/QTemporaryDir>
#include <map>
#include <memory>

#include "platform/panel.h"
#include "platform/system_platform.h"
#include "platform/user_defaults.h"

namespace kesto {

/// The operating system's services, with a gate in front of the preferences. While it is closed, writes
/// succeed without changing anything outside, and reads return what was written. So a panel can be asked
/// whether a job may go out before it is known that it does.
class GatedPlatform : public SystemPlatform {
 public:
  using SystemPlatform::SystemPlatform;

  /// Closes the gate, which is open at first.
  void close() { m_gate.writes = Writes::KeptAside; }
  /// Opens the gate. This does not write what was kept aside, which is still read until its domain is
  /// written.
  void open() { m_gate.writes = Writes::Through; }

  /// Lets a panel write the job's print settings and decide whether the job may go out. Nothing is
  /// remembered, not even aside.
  bool confirmJob(PrintDialogPanel& panel);
  /// Lets a panel remember the entries of a job that it has confirmed. Fails when they cannot be written.
  Outcome rememberEntries(PrintDialogPanel& panel);

  /// Why the last change of the preferences, or a later read, failed; each fault is returned once.
  Outcome takeFault() { return std::exchange(m_gate.lastFault, Outcome::done()); }

  /// A folder of mode 0700 below the user's temporary directory, created when it is first asked for, so that
  /// it cannot contain an answer of another printer or user. If that fails, a path that does not exist.
  QString temporaryDirectory() override;
  /// Removes that folder; the next queue gets a new one.
  void leaveQueue() { m_answers.reset(); }

  UserDefaults& userDefaults() override { return m_gate; }

 private:
  enum class Writes { Through, KeptAside, Dropped };

  struct Gate : UserDefaults {
    explicit Gate(UserDefaults& gated) : defaults(gated) {}
    Domain persistentDomainForName(const QString& name) override;
    Outcome changePersistentDomain(const QString& name, const DomainChange& change) override;
    Outcome changeAside(const QString& name, const DomainChange& change);
    void lay(const QString& name, QJsonObject* values) const;  // lays what is aside over what is stored

    UserDefaults& defaults;
    Writes writes = Writes::Through;
    std::map<QString, QJsonObject> aside;  // by domain, the top-level keys that were changed
    Outcome lastFault = Outcome::done();   // of reading and writing
  };
  std::unique_ptr<QTemporaryDir> m_answers;
  Gate m_gate{SystemPlatform::userDefaults()};
};

}  // namespace kesto
