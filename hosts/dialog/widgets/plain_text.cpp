#include "hosts/dialog/widgets/plain_text.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtCore/QStringList>
#include <QtGui/QKeySequence>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>
#include <vector>

#include "platform/shown_text.h"

namespace kesto {
namespace {

constexpr char plainTextProperty[] = "plainText";

QString escaped(QString text) {
  return text.replace(u'&', QLatin1String("&&"));
}

void showText(QWidget& widget, const QString& text) {
  if (auto* label = qobject_cast<QLabel*>(&widget)) label->setText(text);
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) button->setText(text);
  if (auto* box = qobject_cast<QGroupBox*>(&widget)) box->setTitle(text);
}

using Letters = QSet<QChar>;

// The letters of a text that can be a mnemonic, first those that begin a word.
std::vector<QChar> candidatesOf(const QString& text) {
  std::vector<QChar> first;
  std::vector<QChar> others;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar letter = text[i].toUpper();
    if (!letter.isLetterOrNumber() || letter.unicode() >= 0x100) continue;
    (i == 0 || !text[i - 1].isLetterOrNumber() ? first : others).push_back(letter);
  }
  first.insert(first.end(), others.begin(), others.end());
  return first;
}

// A letter for each text. As many texts as possible get one of their own letters (a maximum matching), the
// others get one that is left.
class Matching {
 public:
  Matching(const QStringList& texts, Letters taken)
      : m_taken(std::move(taken)), m_letters(static_cast<std::size_t>(texts.size())) {
    for (const QString& text : texts)
      m_candidates.push_back(candidatesOf(text));
    for (std::size_t text = 0; text < m_candidates.size(); ++text) {
      Letters tried = m_taken;
      seek(text, &tried);
    }
    for (auto owner = m_owners.cbegin(); owner != m_owners.cend(); ++owner)
      m_letters[owner.value()] = owner.key();
    for (QChar& letter : m_letters) {
      if (letter.isNull()) letter = takeFree();
    }
  }

  /// Null when no letter was left.
  QChar letter(std::size_t text) const { return m_letters[text]; }

 private:
  bool seek(std::size_t text, Letters* tried) {
    for (const QChar letter : m_candidates[text]) {
      if (tried->contains(letter)) continue;
      tried->insert(letter);
      const auto owner = m_owners.constFind(letter);
      if (owner != m_owners.cend() && !seek(owner.value(), tried)) continue;
      m_owners.insert(letter, text);
      return true;
    }
    return false;
  }

  QChar takeFree() {
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
      if (m_taken.contains(QChar(letter)) || m_owners.contains(QChar(letter))) continue;
      m_taken.insert(QChar(letter));
      return letter;
    }
    return {};
  }

  Letters m_taken;
  std::vector<std::vector<QChar>> m_candidates;
  QHash<QChar, std::size_t> m_owners;
  std::vector<QChar> m_letters;
};

QString withMnemonic(const QString& text, QChar letter) {
  if (letter.isNull()) return escaped(text);
  qsizetype place = -1;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i].toUpper() != letter) continue;
    const bool beginsWord = i == 0 || !text[i - 1].isLetterOrNumber();
    if (place < 0 || beginsWord) place = i;
    if (beginsWord) break;
  }
  if (place >= 0) return escaped(text.first(place)) + u'&' + text[place] + escaped(text.sliced(place + 1));
  const QString stem = withoutColon(text);
  return escaped(stem) + QStringLiteral("(&%1)").arg(letter) + text.sliced(stem.size());
}

// Pages of a tab widget are never visible together; everything else of a scope is.
bool isInPageBelow(const QWidget& widget, const QWidget& scope) {
  for (const QWidget* each = widget.parentWidget(); each != nullptr && each != &scope;
       each = each->parentWidget()) {
    if (qobject_cast<const QTabWidget*>(each) != nullptr) return true;
  }
  return false;
}

template <class T>
QList<T*> inScope(const QWidget& scope) {
  QList<T*> found = scope.findChildren<T*>();
  found.removeIf([&](const T* each) { return isInPageBelow(*each, scope); });
  return found;
}

bool takesMnemonic(const QWidget& widget) {
  const auto* label = qobject_cast<const QLabel*>(&widget);
  return !plainText(widget).isEmpty() && qobject_cast<const QGroupBox*>(&widget) == nullptr &&
         (label == nullptr || label->buddy() != nullptr);
}

void giveCompanion(const QWidget& field, const QString& text) {
  const QKeySequence mnemonic = QKeySequence::mnemonic(text);
  if (mnemonic.isEmpty()) return;
  for (auto* button : field.parentWidget()->findChildren<QAbstractButton*>()) {
    if (button->property("companionOf").toString() != field.objectName()) continue;
    button->setShortcut(QKeyCombination(Qt::ALT | Qt::SHIFT, mnemonic[0].key()));
  }
}

// A widget or a tab that has a text.
struct Place {
  QWidget* widget = nullptr;  // for a tab, its page
  QTabWidget* tabs = nullptr;

  QString text() const { return plainText(*widget); }
  void show(const QString& text) const {
    if (tabs != nullptr) return tabs->setTabText(tabs->indexOf(widget), text);
    showText(*widget, text);
    if (const auto* label = qobject_cast<QLabel*>(widget)) giveCompanion(*label->buddy(), text);
  }
};

std::vector<Place> placesOf(QWidget& scope) {
  std::vector<Place> places;
  for (auto* tabs : inScope<QTabWidget>(scope)) {
    for (int i = 0; i < tabs->count(); ++i)
      places.push_back({tabs->widget(i), tabs});
  }
  for (auto* widget : inScope<QWidget>(scope)) {
    if (takesMnemonic(*widget)) places.push_back({widget, nullptr});
  }
  return places;
}

// All texts that are visible together with the scope's own when the pages with the most texts are shown.
QStringList crowdedTexts(QWidget& scope) {
  QStringList texts;
  for (const Place& place : placesOf(scope))
    texts.append(place.text());
  for (auto* tabs : inScope<QTabWidget>(scope)) {
    QStringList most;
    for (int i = 0; i < tabs->count(); ++i) {
      QStringList page = crowdedTexts(*tabs->widget(i));
      if (page.size() > most.size()) most = std::move(page);
    }
    texts.append(most);
  }
  return texts;
}

void assign(QWidget& scope, Letters taken) {
  const std::vector<Place> places = placesOf(scope);
  const Matching matching(crowdedTexts(scope), taken);
  for (std::size_t i = 0; i < places.size(); ++i) {
    const QChar letter = matching.letter(i);
    places[i].show(withMnemonic(places[i].text(), letter));
    taken.insert(letter);
  }
  for (auto* tabs : inScope<QTabWidget>(scope)) {
    for (int i = 0; i < tabs->count(); ++i)
      assign(*tabs->widget(i), taken);
  }
}

}  // namespace

void setPlainText(QWidget& widget, const QString& given) {
  const QString text = shownText(given);
  if (widget.property(plainTextProperty).toString() == text && !text.isEmpty()) return;
  widget.setProperty(plainTextProperty, text);
  showText(widget,
           qobject_cast<QLabel*>(&widget) != nullptr && qobject_cast<QLabel*>(&widget)->buddy() == nullptr
               ? text
               : escaped(text));
}

QString plainText(const QWidget& widget) {
  return widget.property(plainTextProperty).toString();
}

QString withColon(const QString& text) {
  return QCoreApplication::translate("PlainText", "%1:", "a label").arg(text);
}

QString withoutColon(const QString& text) {
  qsizetype end = text.size();
  while (end > 0 && (text[end - 1] == u':' || text[end - 1].isSpace()))
    --end;
  return text.first(end);
}

void assignMnemonics(QWidget& window) {
  assign(window, {});
}

}  // namespace kesto
