// A double of the platform. It uses nothing of the machine but the bundle, and all of it can be made to fail.
#pragma once

#include <QtCore/QMap>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimeZone>
#include <functional>
#include <vector>

#include "platform/alert_presenter.h"
#include "platform/bundle.h"
#include "platform/platform.h"
#include "platform/user_defaults.h"

namespace kesto::test {

using namespace Qt::StringLiterals;

/// The preference domain of the printer that a test's host has.
inline const QString printerDomain = u"kesto.mfp.Office_MFP"_s;

/// User defaults in memory. `shallFail` is asked before every access with the accesses so far, this one
/// included.
class MemoryUserDefaults : public UserDefaults {
 public:
  Domain persistentDomainForName(const QString& name) override {
    if (isFailing()) return {};
    const auto found = domains.constFind(name);
    return {.available = true, .values = found == domains.constEnd() ? std::nullopt : std::optional(*found)};
  }
  Outcome changePersistentDomain(const QString& name, const DomainChange& change) override {
    Outcome failed = Outcome::failed(u"the test lets it fail"_s);
    if (isFailing()) return failed;
    QJsonObject values = domains.value(name);
    if (Outcome changed = change(&values); !changed) return changed;
    if (isFailing()) return failed;
    domains.insert(name, values);
    return Outcome::done();
  }

  QMap<QString, QJsonObject> domains;
  int accesses = 0;
  std::function<bool(int access)> shallFail;

 private:
  bool isFailing() {
    ++accesses;
    return shallFail && shallFail(accesses);
  }
};

/// Replaces a whole domain.
inline Outcome store(UserDefaults&& defaults, const QJsonObject& values, const QString& name) {
  return defaults.changePersistentDomain(name, [&](QJsonObject* stored) {
    *stored = values;
    return Outcome::done();
  });
}

/// Texts and facts are members that the test sets; alerts are kept, and each counts as dismissed.
class TestPlatform : public Platform, public AlertPresenter {
 public:
  explicit TestPlatform(QLocale::Language language = QLocale::English)
      : bundleOfPanel(std::make_shared<const Bundle>(Bundle::find(u"JobHandling.pde"_s), QLocale(language))) {
  }

  std::shared_ptr<const Bundle> bundle() override { return bundleOfPanel; }
  UserDefaults& userDefaults() override { return *store; }
  AlertPresenter& alertPresenter() override { return *this; }
  QDateTime now() override { return clock; }
  QString temporaryDirectory() override { return temporary; }
  QString userName() override { return shortName; }
  QString fullUserName() override { return fullName; }
  TextEncoding systemEncoding() override { return encoding; }
  /// The preferences' record of the test's printer and model, with `entries` of its own.
  void remember(const QJsonObject& entries) {
    QJsonObject record{{u"Model Name"_s, u"KESTO VQ-250n"_s}, {u"Release Number"_s, u"2.00"_s}};
    for (auto it = entries.begin(); it != entries.end(); ++it)
      record.insert(it.key(), it.value());
    defaults.domains.insert(printerDomain, {{u"Job Handling"_s, record}});
  }
  QJsonObject remembered() const {
    return defaults.domains.value(printerDomain).value(u"Job Handling"_s).toObject();
  }
  void runInformationalAlert(const QString& title, const QString& message, const QString& button) override {
    alerts.push_back({title, message, button});
  }

  std::shared_ptr<const Bundle> bundleOfPanel;
  MemoryUserDefaults defaults;
  UserDefaults* store = &defaults;  ///< Not owned.
  QDateTime clock{QDate(2024, 2, 29), QTime(7, 8, 9), QTimeZone(-(3 * 60 + 30) * 60)};
  QTemporaryDir folder;
  QString temporary = folder.path() + u'/';
  QString shortName = u"jdoe"_s;
  QString fullName = u"Jane Doe"_s;
  TextEncoding encoding = TextEncoding::MacRoman;
  std::vector<QStringList> alerts;  ///< Title, message and button of each.
};

}  // namespace kesto::test
