#include "hosts/dialog/dialog_memory.h"

#include "hosts/session/last_printer.h"
#include "platform/json_user_defaults.h"

namespace kesto {
namespace {

// Another dialog writes for a moment only, and the looks are worth no longer wait.
JsonUserDefaults preferences() {
  return JsonUserDefaults(JsonUserDefaults::defaultDirectory(), std::chrono::milliseconds(100));
}

}  // namespace

DialogMemory DialogMemory::load() {
  const QJsonObject values =
      preferences().persistentDomainForName(dialogDomain).values.value_or(QJsonObject());
  DialogMemory memory{.size = QSize(values.value(u"width").toInt(), values.value(u"height").toInt()),
                      .sideWidth = values.value(u"sideWidth").toInt()};
  const QJsonObject open = values.value(u"open").toObject();
  for (auto it = open.begin(); it != open.end(); ++it)
    memory.open.insert(it.key(), it.value().toBool());
  return memory;
}

void DialogMemory::save() const {
  (void)preferences().changePersistentDomain(dialogDomain, [this](QJsonObject* values) {
    values->insert(QStringLiteral("width"), size.width());
    values->insert(QStringLiteral("height"), size.height());
    values->insert(QStringLiteral("sideWidth"), sideWidth);
    QJsonObject sections;
    for (auto it = open.begin(); it != open.end(); ++it)
      sections.insert(it.key(), it.value());
    values->insert(QStringLiteral("open"), sections);
    return Outcome::done();
  });
}

}  // namespace kesto
