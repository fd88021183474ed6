// Texts of widgets without mnemonics, and the assignment of mnemonics.
#pragma once

#include <QtCore/QString>

class QWidget;

namespace kesto {

/// Shows `text` on a label, button or group box as it is, "&" included and in one line (`shownText`). An
/// unchanged text keeps its mnemonic.
void setPlainText(QWidget& widget, const QString& text);
/// The text that `setPlainText` showed last.
QString plainText(const QWidget& widget);

/// A label's text followed by a colon, as the user's language writes it.
QString withColon(const QString& text);
/// The text without a colon and spaces at its end.
QString withoutColon(const QString& text);

/// Gives each button, each label with a buddy and each tab in `window` a mnemonic: a letter of its own text
/// if one is left, else a letter in brackets after it. Letters are unique among everything that can be
/// visible together; the pages of one tab widget may share letters. A button without a text beside such a
/// field (dynamic property "companionOf") gets the field's letter with Shift.
void assignMnemonics(QWidget& window);

}  // namespace kesto
