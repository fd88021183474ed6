#include "hosts/texts/catalogue.h"

#include "platform/locale_name.h"

namespace kesto {

bool loadTexts(QTranslator* translator) {
  const QLocale language = userLanguage();
  return language.language() != QLocale::English &&
         translator->load(language, QStringLiteral("kesto"), QStringLiteral("_"), QStringLiteral(":/texts"));
}

}  // namespace kesto
