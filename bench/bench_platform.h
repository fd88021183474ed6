// The platform that the benchmarks run on: nothing of it takes time.
#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QTemporaryDir>

#include "platform/alert_presenter.h"
#include "platform/bundle.h"
#include "platform/host_callback.h"
#include "platform/platform.h"
#include "platform/print_settings.h"
#include "platform/user_defaults.h"

namespace kesto::bench {

/// The application object that Qt's classes want; made on first use.
inline QCoreApplication& application() {
  static int argc = 1;
  static char name[] = "kesto-bench";
  static char* argv[] = {name, nullptr};
  static QCoreApplication instance(argc, argv);
  return instance;
}

/// Has the real bundle, and preferences that are always empty.
class BenchPlatform : public Platform, private UserDefaults, private AlertPresenter {
 public:
  BenchPlatform() { application(); }

  std::shared_ptr<const Bundle> bundle() override {
    if (!m_bundle) m_bundle = std::make_shared<const Bundle>(Bundle::find(QStringLiteral("JobHandling.pde")));
    return m_bundle;
  }
  UserDefaults& userDefaults() override { return *this; }
  AlertPresenter& alertPresenter() override { return *this; }
  QDateTime now() override { return m_now; }
  QString temporaryDirectory() override { return m_folder.path() + QLatin1Char('/'); }
  QString userName() override { return QStringLiteral("anna"); }
  QString fullUserName() override { return QStringLiteral("Anna Berg"); }
  TextEncoding systemEncoding() override { return TextEncoding::MacRoman; }

 private:
  Domain persistentDomainForName(const QString& /*name*/) override {
    return {.available = true, .values = {}};
  }
  Outcome setPersistentDomain(const QJsonObject& /*values*/, const QString& /*name*/) override {
    return Outcome::done();
  }
  void runInformationalAlert(const QString& /*title*/, const QString& /*message*/,
                             const QString& /*button*/) override {}

  std::shared_ptr<const Bundle> m_bundle;
  QTemporaryDir m_folder;
  QDateTime m_now = QDateTime::currentDateTime();
};

/// A host with print settings and no printer.
class BenchHost : public HostCallback {
 public:
  const PrintSession& printSession() const override { return m_session; }
  PrintSettings* printSettings() override { return &settings; }
  ppd_file_s* ppdFile() override { return nullptr; }
  bool answersWillChangePPDOptionKeyValue() const override { return true; }
  Platform& platform() override { return m_platform; }

  PrintSettings settings;

 private:
  PrintSession m_session;
  BenchPlatform m_platform;
};

}  // namespace kesto::bench
