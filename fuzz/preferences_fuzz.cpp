// The input is the preference file of the demo queue.
#include <QtCore/QJsonDocument>

#include "fuzz/targets.h"
#include "hosts/cups/ppd_file.h"
#include "platform/json_user_defaults.h"
#include "plugin/job_handling_panel.h"
#include "tests/support/bench_host.h"

namespace kesto::fuzz {
namespace {

ppd_file_s* demoPpd() {
  static PpdFile ppd;
  if (!ppd) require(static_cast<bool>(openPpdFile(QStringLiteral(KESTO_DEMO_PPD), &ppd)), "the PPD opens");
  return ppd.get();
}

void writeFile(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "the file can be written");
}

}  // namespace

void runPreferences(const QByteArray& input) {
  const QString domain = QStringLiteral("kesto.mfp.Office_MFP");
  const QString panelRecord = QStringLiteral("Job Handling");
  const QTemporaryDir folder;
  writeFile(folder.filePath(domain + QStringLiteral(".json")), input);
  JsonUserDefaults defaults(folder.path());
  const QJsonDocument before = QJsonDocument::fromJson(input);

  bench::BenchHost host;
  host.ownPlatform.store = &defaults;
  host.ppd = demoPpd();
  host.session.currentPrinter = {.id = QStringLiteral("Office_MFP"), .deviceUri = {}};
  KestoPrintPdeVq250nJC panel(host);
  panel.restoreValuesAndReturnError(nullptr);
  panel.shouldPrint();

  QJsonObject after = defaults.persistentDomainForName(domain).values.value_or(QJsonObject());
  require(after.take(panelRecord).isObject(), "there is a record after a save");
  QJsonObject others = before.object();
  others.remove(panelRecord);
  require(after == others, "what belongs to others survives");
}

}  // namespace kesto::fuzz
