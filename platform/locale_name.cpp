#include "platform/locale_name.h"

#include <unicode/uloc.h>

#include <QtCore/QStringList>
#include <algorithm>
#include <array>

namespace kesto {
namespace {

struct ModifierRow {
  QLatin1String modifier;
  QLatin1String script;
};

// The modifiers that name a script.
constexpr std::array modifiers{
    ModifierRow{QLatin1String("cyrillic"), QLatin1String("Cyrl")},
    ModifierRow{QLatin1String("devanagari"), QLatin1String("Deva")},
    ModifierRow{QLatin1String("iqtelif"), QLatin1String("Latn")},
    ModifierRow{QLatin1String("latin"), QLatin1String("Latn")},
};

// The locales of programs and machines.
bool isForNoLanguage(const LocaleName& name) {
  return name.language.isEmpty() || name.language == u"C" || name.language == u"POSIX";
}

// ICU knows the script of every language in CLDR; Qt knows only those languages whose formats it has. The
// first question makes ICU load its data, so it is asked only when the script matters.
QString likelyScript(const LocaleName& locale) {
  if (isForNoLanguage(locale)) return {};
  const QString name =
      locale.territory.isEmpty() ? locale.language : locale.language + u'_' + locale.territory;
  std::array<char, ULOC_FULLNAME_CAPACITY> likely{};
  std::array<char, ULOC_SCRIPT_CAPACITY> script{};
  UErrorCode status = U_ZERO_ERROR;
  uloc_addLikelySubtags(name.toLatin1().constData(), likely.data(), likely.size(), &status);
  uloc_getScript(likely.data(), script.data(), script.size(), &status);
  return U_SUCCESS(status) ? QString::fromLatin1(script.data()) : QString();
}

// English needs no translation.
bool isUntranslated(const LocaleName& name) {
  return isForNoLanguage(name) || name.language == u"en";
}

}  // namespace

LocaleName localeNameOf(const QString& locale) {
  const QString name = locale.section(u'@', 0, 0).section(u'.', 0, 0);
  return {.language = name.section(u'_', 0, 0),
          .territory = name.section(u'_', 1),
          .modifier = locale.section(u'@', 1)};
}

QString LocaleName::script() const {
  const auto* const row =
      std::ranges::find_if(modifiers, [&](const ModifierRow& each) { return modifier == each.modifier; });
  if (row != modifiers.end()) return row->script;
  return language == u"en" ? QStringLiteral("Latn") : likelyScript(*this);
}

QString localeOfEnvironment(const char* category) {
  for (const char* variable : {"LC_ALL", category, "LANG"}) {
    const QByteArray locale = qgetenv(variable);
    if (!locale.isEmpty()) return QString::fromLatin1(locale);
  }
  return {};
}

QLocale userLanguage() {
  const QString locale = localeOfEnvironment("LC_MESSAGES");
  const LocaleName own = localeNameOf(locale);
  QStringList wanted{locale};
  if (!isForNoLanguage(own))
    wanted = qEnvironmentVariable("LANGUAGE").split(u':', Qt::SkipEmptyParts) + wanted;
  const QStringList translations = QStringLiteral(KESTO_LANGUAGES).split(u':');
  for (const QString& each : wanted) {
    const LocaleName name = localeNameOf(each);
    if (isUntranslated(name)) break;
    const QString script = name.script();
    const auto serves = [&](const QString& translation) {
      const LocaleName its = localeNameOf(translation);
      return its.language == name.language && its.script() == script;
    };
    const auto found = std::ranges::find_if(translations, serves);
    if (found != translations.end()) return QLocale(*found);
  }
  return {QLocale::English};
}

}  // namespace kesto
