// A platform whose preferences can be kept from changing.
#pragma once

#include "platform/panel.h"
#include "platform/system_platform.h"
#include "platform/user_defaults.h"

namespace kesto {

/// The operating system's services, but for a gate before the preferences: while it is closed, writing
/// succeeds and changes nothing. A panel can so be asked whether a job may go out before it is known that it
/// does.
class GatedPlatform : public SystemPlatform {
 public:
  using SystemPlatform::SystemPlatform;

  /// Has a panel write the job's print settings and say whether the job may go out. Nothing is remembered:
  /// the gate is closed meanwhile.
  bool confirmJob(PrintDialogPanel& panel) {
    panel.saveValuesAndReturnError(nullptr);
    m_gate.isOpen = false;
    const bool mayPrint = panel.shouldPrint();
    m_gate.isOpen = true;
    return mayPrint;
  }
  UserDefaults& userDefaults() override { return m_gate; }

 private:
  struct Gate : UserDefaults {
    explicit Gate(UserDefaults& gated) : defaults(gated) {}
    Domain persistentDomainForName(const QString& name) override {
      return defaults.persistentDomainForName(name);
    }
    Outcome setPersistentDomain(const QJsonObject& values, const QString& name) override {
      return isOpen ? defaults.setPersistentDomain(values, name) : Outcome::done();
    }
    UserDefaults& defaults;
    bool isOpen = true;
  };
  Gate m_gate{SystemPlatform::userDefaults()};
};

}  // namespace kesto
