#include "hosts/dialog/translations.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLibraryInfo>
#include <QtCore/QTranslator>
#include <memory>

#include "hosts/dialog/widgets/mnemonics.h"
#include "platform/locale_name.h"

namespace kesto {
namespace {

// What is translated to a script without an alphabet gets the mnemonic of the English text.
class RememberingTranslator : public QTranslator {
 public:
  QString translate(const char* context, const char* source, const char* comment, int count) const override {
    QString text = QTranslator::translate(context, source, comment, count);
    if (!text.isNull()) rememberEnglish(text, QString::fromUtf8(source));
    return text;
  }
};

bool install(const QString& name, const QString& folder) {
  auto translator = std::make_unique<RememberingTranslator>();
  if (!translator->load(userLanguage(), name, QStringLiteral("_"), folder)) return false;
  translator->setParent(QCoreApplication::instance());
  return QCoreApplication::installTranslator(translator.release());
}

}  // namespace

void installTranslations() {
  const QString own = QStringLiteral(":/translations");
  const QString ofQt = QStringLiteral("qtbase");
  if (!install(ofQt, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) install(ofQt, own);
  install(QStringLiteral("kesto-print"), own);
}

}  // namespace kesto
