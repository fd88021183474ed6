#include "hosts/dialog/widgets/plain_text.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QTextDocument>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>

#include "platform/shown_text.h"

namespace kesto {
namespace {

constexpr char plainTextProperty[] = "plainText";
constexpr char namedByTextProperty[] = "namedByText";

// Without a name of its own a button would be read with its key letter, which may stand in brackets.
void nameByText(QAbstractButton& button, const QString& text) {
  if (!button.accessibleName().isEmpty() && !button.property(namedByTextProperty).toBool()) return;
  button.setAccessibleName(text);
  button.setProperty(namedByTextProperty, true);
}

}  // namespace

void setPlainText(QWidget& widget, const QString& given) {
  const QString text = shownText(given);
  if (widget.property(plainTextProperty).toString() == text && !text.isEmpty()) return;
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) nameByText(*button, text);
  widget.setProperty(plainTextProperty, text);
  auto* label = qobject_cast<QLabel*>(&widget);
  if (label != nullptr) label->setTextFormat(Qt::PlainText);
  showMarkedText(widget, label != nullptr && label->buddy() == nullptr ? text : withPlainAmpersands(text));
}

QFont boldOf(QFont font) {
  font.setBold(true);
  return font;
}

QString plainText(const QWidget& widget) {
  return widget.property(plainTextProperty).toString();
}

void showMarkedText(QWidget& widget, const QString& text) {
  if (auto* label = qobject_cast<QLabel*>(&widget)) {
    label->setText(text);
    // Read as a field's name, without the key letter that may stand in brackets.
    if (label->buddy() != nullptr) label->setAccessibleName(withoutColon(plainText(widget)));
  }
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) button->setText(text);
  if (auto* box = qobject_cast<QGroupBox*>(&widget)) box->setTitle(text);
}

QString tipOf(const QString& text) {
  return text.isEmpty() ? QString() : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

QString withPlainAmpersands(QString text) {
  return text.replace(u'&', QLatin1String("&&"));
}

QString withColon(const QString& text) {
  return QCoreApplication::translate("PlainText", "%1:", "a label").arg(text);
}

QString asSentence(const QString& fault) {
  if (fault.isEmpty()) return {};
  const QString text = fault[0].toUpper() + fault.sliced(1);
  const bool isEnded = QStringView(u".?!…。？！").contains(text.back());
  return isEnded ? text : QCoreApplication::translate("PlainText", "%1.", "a sentence").arg(text);
}

QString withoutColon(const QString& text) {
  qsizetype end = text.size();
  while (end > 0 && (text[end - 1] == u':' || text[end - 1].isSpace()))
    --end;
  return text.first(end);
}

}  // namespace kesto
