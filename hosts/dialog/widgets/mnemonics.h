// The letters that reach controls with Alt.
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

class QWidget;

namespace kesto {

/// Gives the buttons and the labels with a buddy in `window` a letter of their own text each, first one that
/// begins a word; a text of which no letter is left has none. A text in a script without such
/// letters has the one of the English text in brackets. The window's own letters differ from all others;
/// those in the widgets of `setMnemonicTexts` may be shared between them, and go to one after the other. A
/// button without a text beside such a field (dynamic property "companionOf") gets the field's letter with
/// Shift.
void assignMnemonics(QWidget& window);

/// Names all texts that `part` can ever show, the important ones first, so that each keeps its letter
/// whatever else is shown. Others get letters after them. An empty list leaves an earlier one as it is.
void setMnemonicTexts(QWidget& part, const QStringList& texts);

/// Leaves a rarely shown widget without a letter, which others need more.
void exceptFromMnemonics(QWidget& widget);

/// Remembers what a text is in English. May be called from any thread.
void rememberEnglish(const QString& text, const QString& english);

}  // namespace kesto
