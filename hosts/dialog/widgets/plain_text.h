// Texts of widgets, apart from their mnemonics.
#pragma once

#include <QtCore/QString>
#include <QtGui/QFont>

class QWidget;

namespace kesto {

/// Shows `text` on a label, button or group box as it is, "&" and "<" included and in one line (`shownText`).
/// An unchanged text keeps its mnemonic.
void setPlainText(QWidget& widget, const QString& text);
/// The font in bold, for titles.
QFont boldOf(QFont font);
/// The text that `setPlainText` showed last.
QString plainText(const QWidget& widget);
/// Shows that text with its mnemonic marked by "&".
void showMarkedText(QWidget& widget, const QString& text);
/// The text for a tool tip, which would take some texts for HTML; null for none.
QString tipOf(const QString& text);
/// The text with each "&" doubled, for labels and menus that take a single one as the mark of a mnemonic.
QString withPlainAmpersands(QString text);

/// A label's text followed by a colon, as the user's language writes it.
QString withColon(const QString& text);
/// A fault as a window shows it: with a capital letter first, and a full stop last.
QString asSentence(const QString& fault);
/// The text without a colon and spaces at its end.
QString withoutColon(const QString& text);

}  // namespace kesto
