// The texts of all programs in the user's language.
#pragma once

#include <QtCore/QTranslator>

namespace kesto {

/// Loads the texts in the user's language. False for English, which needs none. Needs no application object.
bool loadTexts(QTranslator* translator);

}  // namespace kesto
