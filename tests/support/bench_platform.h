// The platform of benchmarks and fuzz targets, which takes no time.
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

/// The application object that Qt's classes need; created at first use.
inline QCoreApplication& application() {
  static int argc = 1;
  static char name[] = "kesto-bench";
  static char* argv[] = {name, nullptr};
  static QCoreApplication instance(argc, argv);
  return instance;
}

/// Has the real bundle, and preferences that are always empty. Both can be replaced.
class BenchPlatform : public Platform, private UserDefaults, private AlertPresenter {
 public:
  BenchPlatform() { application(); }

  void setBundle(std::shared_ptr<const Bundle> bundle) { m_bundle = std::move(bundle); }
  /// `defaults` outlives the platform.
  void setUserDefaults(UserDefaults& defaults) { m_defaults = &defaults; }
  void setSystemEncoding(TextEncoding encoding) { m_encoding = encoding; }

  std::shared_ptr<const Bundle> bundle() override {
    if (!m_bundle) m_bundle = std::make_shared<const Bundle>(Bundle::find(QStringLiteral("JobHandling.pde")));
    return m_bundle;
  }
  UserDefaults& userDefaults() override { return *m_defaults; }
  AlertPresenter& alertPresenter() override { return *this; }
  QDateTime now() override { return m_now; }
  QString temporaryDirectory() override { return m_folder.path() + QLatin1Char('/'); }
  QString userName() override { return QStringLiteral("anna"); }
  QString fullUserName() override { return QStringLiteral("Anna Berg"); }
  TextEncoding systemEncoding() override { return m_encoding; }

 private:
  Domain persistentDomainForName(const QString& /*name*/) override {
    return {.available = true, .values = {}};
  }
  Outcome changePersistentDomain(const QString& /*name*/, const DomainChange& change) override {
    QJsonObject values;
    return change(&values);
  }
  void runInformationalAlert(const QString& /*title*/, const QString& /*message*/,
                             const QString& /*button*/) override {}

  std::shared_ptr<const Bundle> m_bundle;
  UserDefaults* m_defaults = this;
  TextEncoding m_encoding = TextEncoding::MacRoman;
  QTemporaryDir m_folder;
  QDateTime m_now = QDateTime::currentDateTime();
};

/// A host with print settings, and with a printer and a PPD when they are set.
class BenchHost : public HostCallback {
 public:
  const PrintSession& printSession() const override { return session; }
  PrintSettings* printSettings() override { return &settings; }
  ppd_file_s* ppdFile() override { return ppd; }
  bool answersWillChangePPDOptionKeyValue() const override { return true; }
  BenchPlatform& platform() override { return m_platform; }

  PrintSettings settings;
  PrintSession session;
  ppd_file_s* ppd = nullptr;  ///< Not owned.

 private:
  BenchPlatform m_platform;
};

}  // namespace kesto::bench
