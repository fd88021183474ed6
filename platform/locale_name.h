// The names of POSIX locales, and the language of the user's texts.
#pragma once

#include <QtCore/QLocale>
#include <QtCore/QString>

#include "platform/export.h"

namespace kesto {

/// What a locale's name, language[_TERRITORY][.codeset][@modifier], says about the language.
struct LocaleName {
  QString language;   ///< In lower case, such as "sr".
  QString territory;  ///< Such as "RS"; empty for none.
  QString modifier;   ///< Such as "latin" or "euro"; empty for none.

  /// Four letters, such as "Cyrl": from the modifier if that names a script, else from CLDR for the language
  /// and territory; empty when unknown.
  KESTO_EXPORT QString script() const;
};

/// Parses a name; a locale of that name need not be installed.
KESTO_EXPORT LocaleName localeNameOf(const QString& locale);

/// The value of the first of LC_ALL, `category` and LANG that is set and not empty; empty when none is.
KESTO_EXPORT QString localeOfEnvironment(const char* category);

/// The language of all texts: the first available one that the user lists in LANGUAGE and in LC_ALL,
/// LC_MESSAGES or LANG. English is always available. It is also used when no other is, and in the C and POSIX
/// locales. A translation serves a language in the same script, whatever the territory.
KESTO_EXPORT QLocale userLanguage();

}  // namespace kesto
