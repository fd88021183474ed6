#include "panel/model/text_field.h"

#include "panel/model/panel_view.h"
#include "platform/secret.h"
#include "platform/surrogates.h"

namespace kesto {

QString Formatter::stringForObjectValue(const QVariant& value) const {
  return value.toString();
}

bool Formatter::getObjectValue(QVariant* value, const QString& forString,
                               QString* /*errorDescription*/) const {
  *value = forString;
  return true;
}

TextField::TextField(const QString& name, PanelView* view, int tag)
    : Control(name, view), m_tag(tag), m_editable(tag != 0), m_selectable(tag != 0) {}

TextField::~TextField() {
  wipe(m_stringValue);
}

QString TextField::kind() const {
  return m_tag == 0 ? QStringLiteral("label") : QStringLiteral("textField");
}

void TextField::setStringValue(const QString& text) {
  const TextRange end{text.size(), 0};
  if (m_stringValue == text && m_selection == end) return;
  replaceText(text, end);
}

Outcome TextField::beginEdit() {
  if (!m_editable) return Outcome::failed(objectName() + QStringLiteral(" is not editable"));
  view()->makeFirstResponder(this);
  return Outcome::done();
}

void TextField::insert(QStringView text) {
  QString proposed = m_stringValue;
  proposed.replace(m_selection.location, m_selection.length, text.toString());
  edit(std::move(proposed), {m_selection.location + text.size(), 0});
}

Outcome TextField::type(const QString& text) {
  if (Outcome begun = beginEdit(); !begun) return begun;
  // Without a filter a text can be long, and typing it by characters would copy and wipe it for each of them.
  if (!m_formatter) {
    insert(text);
    return Outcome::done();
  }
  for (qsizetype position = 0; position < text.size();) {
    const qsizetype units = isWithinPair(text, position + 1) ? 2 : 1;
    insert(QStringView(text).sliced(position, units));
    position += units;
  }
  return Outcome::done();
}

Outcome TextField::paste(const QString& text) {
  if (Outcome begun = beginEdit(); !begun) return begun;
  insert(text);
  return Outcome::done();
}

Outcome TextField::backspace() {
  if (Outcome begun = beginEdit(); !begun) return begun;
  TextRange cut = m_selection;
  if (cut.length == 0) {
    if (cut.location == 0) return Outcome::done();
    cut.length = isWithinPair(m_stringValue, cut.location - 1) ? 2 : 1;
    cut.location -= cut.length;
  }
  QString proposed = m_stringValue;
  proposed.remove(cut.location, cut.length);
  edit(std::move(proposed), {cut.location, 0});
  return Outcome::done();
}

Outcome TextField::placeCaret(TextRange range) {
  if (!m_selectable) return Outcome::failed(objectName() + QStringLiteral(" is not selectable"));
  view()->makeFirstResponder(this);
  qsizetype begin = qBound(qsizetype{0}, range.location, m_stringValue.size());
  qsizetype end = begin + qBound(qsizetype{0}, range.length, m_stringValue.size() - begin);
  const bool isCaret = begin == end;
  if (isWithinPair(m_stringValue, begin)) --begin;
  if (isCaret) {
    end = begin;
  } else if (isWithinPair(m_stringValue, end)) {
    ++end;
  }
  assign(m_selection, TextRange{begin, end - begin});
  return Outcome::done();
}

void TextField::edit(QString proposed, TextRange proposedSelection) {
  if (m_formatter) {
    QString before = proposed;
    const WipedAtEnd wiped(before);
    const TextRange selectionBefore = proposedSelection;
    const bool accepted =
        m_formatter->isPartialStringValid(proposed, proposedSelection, m_stringValue, m_selection, nullptr);
    const bool replaced = proposed != before || proposedSelection != selectionBefore;
    if (!accepted && !replaced) return;
  }
  if (proposed == m_stringValue && proposedSelection == m_selection) return;
  replaceText(proposed, proposedSelection);
}

void TextField::replaceText(const QString& text, TextRange selection) {
  QString before = std::exchange(m_stringValue, text);
  wipe(before);
  m_selection = selection;
  Q_EMIT changed();
}

QString TextField::textColorName() const {
  return m_textColor == Color::Gray ? QStringLiteral("gray") : QStringLiteral("black");
}

QVariantList TextField::selectionList() const {
  return {m_selection.location, m_selection.length};
}

}  // namespace kesto
