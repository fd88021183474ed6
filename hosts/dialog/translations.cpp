#include "hosts/dialog/translations.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLibraryInfo>
#include <QtCore/QTranslator>
#include <memory>

#include "platform/locale_name.h"

namespace kesto {
namespace {

void install(const QString& name, const QString& folder) {
  auto translator = std::make_unique<QTranslator>();
  if (!translator->load(userLanguage(), name, QStringLiteral("_"), folder)) return;
  translator->setParent(QCoreApplication::instance());
  QCoreApplication::installTranslator(translator.release());
}

}  // namespace

void installTranslations() {
  install(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  install(QStringLiteral("kesto-print"), QStringLiteral(":/translations"));
}

}  // namespace kesto
