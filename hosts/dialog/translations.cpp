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

void install(const QString& name, const QString& folder) {
  auto translator = std::make_unique<RememberingTranslator>();
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
