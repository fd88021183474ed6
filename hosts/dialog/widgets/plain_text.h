// Texts of widgets without their mnemonics, and the mnemonics given to them.
#pragma once

#include <QtCore/QString>

class QWidget;

namespace kesto {

/// Shows `text` on a label, button or group box as it is, "&" included and in one line (`shownText`). What
/// was shown before, with the mnemonic it was given, stays when the text is the same.
void setPlainText(QWidget& widget, const QString& text);
/// The text that was shown last by `setPlainText`.
QString plainText(const QWidget& widget);

/// A label's text with the colon behind it as the user's language writes it.
QString withColon(const QString& text);
/// The text without a colon and spaces behind it.
QString withoutColon(const QString& text);

/// Gives each button, each label with a buddy and each tab in `window` a mnemonic: a letter of its own text
/// where one is left, else a letter in brackets behind it. Letters are unique among all that can be seen
/// together: the pages of one tab widget may use the same ones. A button without a text beside such a field
/// (dynamic property "companionOf") gets the field's letter with Shift.
void assignMnemonics(QWidget& window);

}  // namespace kesto
