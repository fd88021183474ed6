#include "hosts/command/help_lines.h"

#include <QtCore/QTextBoundaryFinder>
#include <algorithm>

namespace kesto {
namespace {

constexpr int textColumn = 28;
constexpr int lineWidth = 80;

constexpr HelpRow serverRows[] = {
    {"-d QUEUE -h HOST[:PORT] -U USER -E", asUsual},
    {"--timeout SECONDS",
     QT_TRANSLATE_NOOP("CommandTexts", "give up on a server that is silent this long (default: 5)")},
};

constexpr HelpRow helpRows[] = {
    {"--help, --version", QT_TRANSLATE_NOOP("CommandTexts", "print this text, or the version")},
};

// Characters of East Asia take two columns.
bool isWide(QChar c) {
  return c.unicode() >= 0x2E80;
}

// Korean is broken at its spaces, as Western languages are.
bool isBreakable(QChar c) {
  return c.isSpace() || (isWide(c) && c.script() != QChar::Script_Hangul);
}

int widthOf(const QString& text) {
  return static_cast<int>(text.size() + std::ranges::count_if(text, isWide));
}

// The text as lines, of which the first begins at a column and the others are indented. Options stay whole.
QString wrapped(const QString& text, int column, int indent) {
  QString lines;
  QTextBoundaryFinder breaks(QTextBoundaryFinder::Line, text);
  qsizetype start = 0;
  for (qsizetype end = breaks.toNextBoundary(); end > 0; end = breaks.toNextBoundary()) {
    const bool isBreak = end == text.size() || isBreakable(text[end - 1]) || isBreakable(text[end]);
    if (!isBreak) continue;
    const QString piece = text.sliced(start, end - start);
    start = end;
    if (column + widthOf(piece.trimmed()) > lineWidth) {
      while (lines.endsWith(u' '))
        lines.chop(1);
      lines += u'\n' + QString(indent, u' ');
      column = indent;
    }
    lines += piece;
    column += widthOf(piece);
  }
  return lines + u'\n';
}

}  // namespace

QString helpUsage(const QString& program) {
  return helpParagraph(CommandTexts::tr("Usage: %1 [OPTION]... [FILE]...").arg(program));
}

QString helpParagraph(const QString& text) {
  return wrapped(text, 0, 0);
}

QString helpLine(const QString& options, const QString& text) {
  QString line = QStringLiteral("  ") + options;
  const qsizetype gap = line.size() < textColumn - 1 ? textColumn - line.size() : 3;
  line += QString(gap, u' ');
  return line + wrapped(text, static_cast<int>(line.size()), textColumn);
}

QString helpLines(std::span<const HelpRow> rows, Translate translate) {
  QString lines;
  for (const HelpRow& row : rows)
    lines += helpLine(QLatin1String(row.options), translate(row.text, nullptr, -1));
  return lines;
}

QString helpOfServer() {
  return helpLines(serverRows, &CommandTexts::tr);
}

QString helpOfHelp() {
  return helpLines(helpRows, &CommandTexts::tr);
}

}  // namespace kesto
