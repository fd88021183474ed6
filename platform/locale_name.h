// The names of POSIX locales, and the language of the user's texts.
#pragma once

#include <QtCore/QLocale>
#include <QtCore/QString>

namespace kesto {

/// What a locale's name, language[_TERRITORY][.codeset][@modifier], says of the language.
struct LocaleName {
  QString language;   ///< In lower case, such as "sr".
  QString territory;  ///< Such as "RS"; empty for none.
  /// Four letters, such as "Cyrl": that of a modifier such as "latin", else what CLDR gives to language and
  /// territory; empty when it is not known.
  QString script;
};

/// Takes a name apart; a locale of that name need not be installed.
LocaleName localeNameOf(const QString& locale);

/// The value of the first of LC_ALL, `category` and LANG that is set and not empty; else empty.
QString localeOfEnvironment(const char* category);

/// The language of all texts: the first that the system has of those that the user lists in LANGUAGE and in
/// LC_ALL, LC_MESSAGES or LANG. English is one of them, and serves when there is no other and in the C and
/// POSIX locales. A translation serves a language in the same script, whatever the territory.
QLocale userLanguage();

}  // namespace kesto
