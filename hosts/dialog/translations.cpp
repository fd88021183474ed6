#include "hosts/dialog/translations.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLibraryInfo>
#include <QtCore/QTranslator>
#include <memory>

#include "hosts/dialog/widgets/mnemonics.h"
#include "hosts/texts/catalogue.h"
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

template <class Load>
bool install(const Load& load) {
  auto translator = std::make_unique<RememberingTranslator>();
  if (!load(translator.get())) return false;
  translator->setParent(QCoreApplication::instance());
  return QCoreApplication::installTranslator(translator.release());
}

bool installTextsOfQt(const QString& folder) {
  return install([&](QTranslator* translator) {
    return translator->load(userLanguage(), QStringLiteral("qtbase"), QStringLiteral("_"), folder);
  });
}

}  // namespace

void installTranslations() {
  if (!installTextsOfQt(QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    installTextsOfQt(QStringLiteral(":/translations"));
  install(loadTexts);
}

}  // namespace kesto
