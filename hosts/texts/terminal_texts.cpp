#include "hosts/texts/terminal_texts.h"

#include <langinfo.h>
#include <locale.h>  // NOLINT(modernize-deprecated-headers): newlocale() is POSIX's

#include <QtCore/QCoreApplication>
#include <memory>
#include <mutex>

#include "hosts/texts/catalogue.h"

namespace kesto {
namespace {

// Most runs show no text of ours, so nothing is loaded before the first one. That may be in any thread.
class LazyTranslator : public QTranslator {
 public:
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* source, const char* comment, int count) const override {
    // Qt's own texts are not among ours, and Qt asks for one of them while ours are loaded.
    if (context != nullptr && *context == 'Q') return {};
    std::call_once(m_isLoaded, [this] { loadTexts(&m_texts); });
    return m_texts.translate(context, source, comment, count);
  }

 private:
  mutable std::once_flag m_isLoaded;
  mutable QTranslator m_texts;
};

// A locale that is not installed has no encoding but that of its name, which then is UTF-8 as a rule.
bool hasOtherEncoding() {
  const locale_t locale = ::newlocale(LC_CTYPE_MASK, "", nullptr);
  if (locale == nullptr) return false;
  const bool isOther = qstrcmp(::nl_langinfo_l(CODESET, locale), "UTF-8") != 0;
  ::freelocale(locale);
  return isOther;
}

}  // namespace

void installTerminalTexts() {
  // What is printed is UTF-8. English, which every encoding can show, is chosen for the panel's words as
  // well.
  if (hasOtherEncoding()) qputenv("LANGUAGE", "en");
  auto translator = std::make_unique<LazyTranslator>();
  translator->setParent(QCoreApplication::instance());
  QCoreApplication::installTranslator(translator.release());
}

}  // namespace kesto
