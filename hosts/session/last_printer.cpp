#include "hosts/session/last_printer.h"

#include "hosts/cups/queue_options.h"
#include "platform/json_user_defaults.h"

namespace kesto {
namespace {

const QString printerKey = QStringLiteral("printer");

}  // namespace

QString printerToBeginWith() {
  if (!defaultQueueName().queue.isNull()) return {};
  JsonUserDefaults defaults(JsonUserDefaults::defaultDirectory());
  const Domain stored = defaults.persistentDomainForName(dialogDomain);
  const QString printer = stored.values.value_or(QJsonObject()).value(printerKey).toString();
  return printer.isEmpty() ? QString() : printer;
}

void keepPrinter(const QString& printer) {
  JsonUserDefaults defaults(JsonUserDefaults::defaultDirectory());
  (void)defaults.changePersistentDomain(dialogDomain, [&](QJsonObject* values) {
    values->insert(printerKey, printer);
    return Outcome::done();
  });
}

}  // namespace kesto
