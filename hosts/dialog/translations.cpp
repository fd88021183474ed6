#include "hosts/dialog/translations.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLibraryInfo>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>
#include <memory>

namespace kesto {
namespace {

void install(const QString& name, const QString& folder) {
  auto translator = std::make_unique<QTranslator>();
  if (!translator->load(QLocale(), name, QStringLiteral("_"), folder)) return;
  translator->setParent(QCoreApplication::instance());
  QCoreApplication::installTranslator(translator.release());
}

}  // namespace

void installTranslations() {
  install(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  install(QStringLiteral("kesto-print"), QStringLiteral(":/translations"));
}

}  // namespace kesto
