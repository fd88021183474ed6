// A platform whose preferences can be kept from changing.
#pragma once

#include <QtCore/QTemporaryDir>
#include <map>
#include <memory>

#include "platform/panel.h"
#include "platform/system_platform.h"
#include "platform/user_defaults.h"

namespace kesto {

/// The operating system's services, but for a gate before the preferences. While it is closed, writing
/// succeeds and changes nothing outside; what was written is read back. A panel can so be asked whether a job
/// may go out before it is known that it does.
class GatedPlatform : public SystemPlatform {
 public:
  using SystemPlatform::SystemPlatform;

  /// It is open at first.
  void close() { m_gate.writes = Writes::KeptAside; }
  /// What was kept aside is not written by this, but goes on being read until its domain is written.
  void open() { m_gate.writes = Writes::Through; }

  /// Has a panel write the job's print settings and say whether the job may go out. Nothing is remembered,
  /// not even aside.
  bool confirmJob(PrintDialogPanel& panel);
  /// Has a panel remember the entries of a job that it has confirmed. Fails when the open gate could not be
  /// passed.
  Outcome rememberEntries(PrintDialogPanel& panel);

  /// Why the last change of the preferences, or a reading since then, failed; asked once.
  Outcome takeFault() { return std::exchange(m_gate.lastFault, Outcome::done()); }

  /// A folder of mode 0700 below the user's temporary directory, made when it is first asked for: no answer
  /// of another printer, and none of another user's, can lie there. Without it, a path that leads nowhere.
  QString temporaryDirectory() override;
  /// Removes that folder; another queue's is another one.
  void leaveQueue() { m_answers.reset(); }

  UserDefaults& userDefaults() override { return m_gate; }

 private:
  enum class Writes { Through, KeptAside, Dropped };

  struct Gate : UserDefaults {
    explicit Gate(UserDefaults& gated) : defaults(gated) {}
    Domain persistentDomainForName(const QString& name) override;
    Outcome changePersistentDomain(const QString& name, const DomainChange& change) override;
    Outcome changeAside(const QString& name, const DomainChange& change);
    void lay(const QString& name, QJsonObject* values) const;  // what is aside over what is stored

    UserDefaults& defaults;
    Writes writes = Writes::Through;
    std::map<QString, QJsonObject> aside;  // by domain, the top-level keys that were changed
    Outcome lastFault = Outcome::done();   // of reading and writing
  };
  std::unique_ptr<QTemporaryDir> m_answers;
  Gate m_gate{SystemPlatform::userDefaults()};
};

}  // namespace kesto
