#include "hosts/texts/catalogue.h"

#include "platform/locale_name.h"

namespace kesto {

bool loadTexts(QTranslator* translator) {
  return translator->load(userLanguage(), QStringLiteral("kesto"), QStringLiteral("_"),
                          QStringLiteral(":/texts"));
}

}  // namespace kesto
