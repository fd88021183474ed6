#include "hosts/dialog/widgets/mnemonics.h"

#include <QtCore/QHash>
#include <QtCore/QMutex>
#include <QtCore/QSet>
#include <QtGui/QKeySequence>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <algorithm>
#include <utility>

#include "hosts/dialog/widgets/plain_text.h"

namespace kesto {
namespace {

constexpr char textsProperty[] = "mnemonicTexts";
constexpr char exceptProperty[] = "withoutMnemonic";

using Letters = QSet<QChar>;

// What keyboards have as a key of its own: no letter that takes an accent first.
bool isCandidate(QChar c) {
  const bool isPlainLetter = (c.script() == QChar::Script_Greek || c.script() == QChar::Script_Cyrillic) &&
                             c.decompositionTag() == QChar::NoDecomposition;
  return c.isLetterOrNumber() && (c.unicode() < 0x100 || isPlainLetter);
}

bool beginsWord(const QString& text, qsizetype place) {
  return place == 0 || !text[place - 1].isLetterOrNumber();
}

struct EnglishTexts {
  QMutex mutex;
  QHash<QString, QString> texts;
};

EnglishTexts& englishTexts() {
  static EnglishTexts texts;
  return texts;
}

// Scripts without an alphabet have no keys of their own.
bool hasAlphabet(const QString& text) {
  return std::ranges::none_of(text, [](QChar c) {
    return c.script() == QChar::Script_Han || c.script() == QChar::Script_Hiragana ||
           c.script() == QChar::Script_Katakana || c.script() == QChar::Script_Hangul;
  });
}

// The text that gives the letter.
QString letteredText(const QString& text) {
  if (hasAlphabet(text)) return text;
  EnglishTexts& english = englishTexts();
  const QMutexLocker lock(&english.mutex);
  return english.texts.value(text);
}

QList<QChar> candidatesOf(const QString& text, bool onlyFirst) {
  QList<QChar> letters;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar letter = text[i].toUpper();
    if (isCandidate(letter) && (!onlyFirst || beginsWord(text, i))) letters.append(letter);
  }
  return letters;
}

// Gives texts one letter each.
class Assignment {
 public:
  Assignment(const QStringList& texts, Letters taken) : m_taken(std::move(taken)) {
    for (const bool onlyFirst : {true, false}) {
      for (const QString& text : texts)
        takeFree(text, onlyFirst);
    }
    for (const QString& text : texts) {
      Letters tried = m_taken;
      if (!m_letters.contains(text)) takeOver(text, &tried);
    }
  }

  const QHash<QString, QChar>& letters() const { return m_letters; }

 private:
  void give(const QString& text, QChar letter) {
    m_letters.insert(text, letter);
    m_owners.insert(letter, text);
  }
  void takeFree(const QString& text, bool onlyFirst) {
    if (m_letters.contains(text)) return;
    for (const QChar letter : candidatesOf(letteredText(text), onlyFirst)) {
      if (!m_taken.contains(letter) && !m_owners.contains(letter)) return give(text, letter);
    }
  }
  // Takes a letter whose owner finds another.
  bool takeOver(const QString& text, Letters* tried) {
    for (const QChar letter : candidatesOf(letteredText(text), false)) {
      if (tried->contains(letter)) continue;
      tried->insert(letter);
      if (m_owners.contains(letter) && !takeOver(m_owners.value(letter), tried)) continue;
      give(text, letter);
      return true;
    }
    return false;
  }

  Letters m_taken;
  QHash<QString, QChar> m_letters;
  QHash<QChar, QString> m_owners;
};

Letters lettersIn(const QHash<QString, QChar>& letters) {
  return {letters.begin(), letters.end()};
}

qsizetype placeOf(QChar letter, const QString& text) {
  qsizetype place = -1;
  for (qsizetype i = text.size() - 1; i >= 0; --i) {
    if (text[i].toUpper() == letter && (place < 0 || beginsWord(text, i) || !beginsWord(text, place)))
      place = i;
  }
  return place;
}

QString withMnemonic(const QString& text, QChar letter) {
  if (letter.isNull()) return withPlainAmpersands(text);
  if (!hasAlphabet(text)) {
    const QString stem = withoutColon(text);
    return withPlainAmpersands(stem) + QStringLiteral("(&%1)").arg(letter) + text.sliced(stem.size());
  }
  const qsizetype place = placeOf(letter, text);
  return withPlainAmpersands(text.first(place)) + u'&' + text[place] +
         withPlainAmpersands(text.sliced(place + 1));
}

// Whether the letters below a widget are given apart from those around it.
bool isScope(const QWidget& widget) {
  return widget.property(textsProperty).isValid();
}

const QWidget* scopeOf(const QWidget& widget) {
  const QWidget* scope = widget.parentWidget();
  while (scope != nullptr && !scope->isWindow() && !isScope(*scope))
    scope = scope->parentWidget();
  return scope;
}

bool takesMnemonic(const QWidget& widget) {
  const auto* label = qobject_cast<const QLabel*>(&widget);
  return !plainText(widget).isEmpty() && !widget.property(exceptProperty).toBool() && !isScope(widget) &&
         (label == nullptr || label->buddy() != nullptr);
}

void giveCompanion(const QWidget& field, const QString& text) {
  const QKeySequence mnemonic = QKeySequence::mnemonic(text);
  for (auto* button : field.parentWidget()->findChildren<QAbstractButton*>()) {
    if (button->property("companionOf").toString() != field.objectName()) continue;
    button->setShortcut(mnemonic.isEmpty()
                            ? QKeySequence()
                            : QKeySequence(QKeyCombination(Qt::ALT | Qt::SHIFT, mnemonic[0].key())));
  }
}

// The dialog's buttons come first, before them the one that Enter presses; then the fields.
int rankOf(const QWidget* widget) {
  const auto* button = qobject_cast<const QPushButton*>(widget);
  if (button != nullptr && button->isDefault()) return 0;
  if (qobject_cast<const QDialogButtonBox*>(widget->parentWidget()) != nullptr) return 1;
  return qobject_cast<const QLabel*>(widget) != nullptr ? 2 : 3;
}

QWidgetList placesOf(QWidget& scope) {
  QWidgetList places = scope.findChildren<QWidget*>();
  places.removeIf([&](const QWidget* each) { return scopeOf(*each) != &scope || !takesMnemonic(*each); });
  std::ranges::stable_sort(places, {}, &rankOf);
  return places;
}

void assign(QWidget& scope, Letters taken) {
  const QWidgetList places = placesOf(scope);
  QStringList texts = scope.property(textsProperty).toStringList();
  QHash<QString, QChar> letters = Assignment(texts, taken).letters();
  taken.unite(lettersIn(letters));
  texts.clear();
  for (const QWidget* place : places) {
    if (!letters.contains(withoutColon(plainText(*place)))) texts.append(withoutColon(plainText(*place)));
  }
  letters.insert(Assignment(texts, taken).letters());
  taken.unite(lettersIn(letters));
  for (QWidget* place : places) {
    const QString text = plainText(*place);
    const QString marked = withMnemonic(text, letters.take(withoutColon(text)));
    showMarkedText(*place, marked);
    if (const auto* label = qobject_cast<QLabel*>(place)) giveCompanion(*label->buddy(), marked);
  }
  for (auto* widget : scope.findChildren<QWidget*>()) {
    if (isScope(*widget) && scopeOf(*widget) == &scope) assign(*widget, taken);
  }
}

}  // namespace

void assignMnemonics(QWidget& window) {
  assign(window, {});
}

void setMnemonicTexts(QWidget& part, const QStringList& texts) {
  if (texts.isEmpty() && part.property(textsProperty).isValid()) return;
  part.setProperty(textsProperty, texts);
}

void exceptFromMnemonics(QWidget& widget) {
  widget.setProperty(exceptProperty, true);
}

void rememberEnglish(const QString& text, const QString& english) {
  if (hasAlphabet(text)) return;
  EnglishTexts& known = englishTexts();
  const QMutexLocker lock(&known.mutex);
  known.texts.insert(withoutColon(text), withoutColon(english));
}

}  // namespace kesto
