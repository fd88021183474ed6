#include "platform/system_platform.h"

#include "platform/environment.h"

namespace kesto {

SystemPlatform::SystemPlatform(std::shared_ptr<const Bundle> bundle, AlertPresenter& alertPresenter)
    : m_bundle(std::move(bundle)), m_alertPresenter(alertPresenter) {}

std::shared_ptr<const Bundle> SystemPlatform::bundle() {
  return m_bundle;
}
UserDefaults& SystemPlatform::userDefaults() {
  return m_userDefaults;
}
AlertPresenter& SystemPlatform::alertPresenter() {
  return m_alertPresenter;
}
QDateTime SystemPlatform::now() {
  return QDateTime::currentDateTime();
}
QString SystemPlatform::temporaryDirectory() {
  return userTemporaryDirectory();
}
QString SystemPlatform::userName() {
  return accountShortName();
}
QString SystemPlatform::fullUserName() {
  return accountFullName();
}
TextEncoding SystemPlatform::systemEncoding() {
  return systemEncodingOfEnvironment();
}

}  // namespace kesto
