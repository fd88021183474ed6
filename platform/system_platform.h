// The platform of our hosts: the real account, clock, folders and preferences.
#pragma once

#include "platform/export.h"
#include "platform/json_user_defaults.h"
#include "platform/platform.h"

namespace kesto {

/// The operating system's own services. The host supplies the bundle and the presenter of alerts.
class KESTO_EXPORT SystemPlatform : public Platform {
 public:
  /// `alertPresenter` must outlive the platform.
  SystemPlatform(std::shared_ptr<const Bundle> bundle, AlertPresenter& alertPresenter);

  std::shared_ptr<const Bundle> bundle() override;
  UserDefaults& userDefaults() override;
  AlertPresenter& alertPresenter() override;
  QDateTime now() override;
  QString temporaryDirectory() override;
  QString userName() override;
  QString fullUserName() override;
  TextEncoding systemEncoding() override;

 private:
  std::shared_ptr<const Bundle> m_bundle;
  AlertPresenter& m_alertPresenter;
  JsonUserDefaults m_userDefaults{JsonUserDefaults::defaultDirectory()};
};

}  // namespace kesto
