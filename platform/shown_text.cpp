#include "platform/shown_text.h"

namespace kesto {
namespace {

QString escapeOf(QChar c) {
  switch (c.unicode()) {
    case '\n':
      return QStringLiteral("\\n");
    case '\r':
      return QStringLiteral("\\r");
    case '\t':
      return QStringLiteral("\\t");
    default:
      break;
  }
  const bool isByte = c.unicode() < 0x100;
  return QLatin1String(isByte ? "\\x" : "\\u") +
         QString::number(c.unicode(), 16).rightJustified(isByte ? 2 : 4, u'0');
}

// The number of bytes at `start` that form one character in UTF-8; 0 when they do not form one.
qsizetype lengthOfCharacter(const QByteArray& bytes, qsizetype start) {
  constexpr qsizetype longest = 4;
  for (qsizetype length = 1; length <= qMin(longest, bytes.size() - start); ++length) {
    if (bytes.sliced(start, length).isValidUtf8()) return length;
  }
  return 0;
}

}  // namespace

bool isObeyed(QChar character) {
  // Joiners stay, because several scripts need them within words.
  constexpr char16_t nonJoiner = 0x200C;
  constexpr char16_t joiner = 0x200D;
  switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
      return true;
    case QChar::Other_Format:
      return character != nonJoiner && character != joiner;
    default:
      return false;
  }
}

QString shownText(const QString& text) {
  QString shown;
  shown.reserve(text.size());
  for (const QChar c : text)
    isObeyed(c) ? shown += escapeOf(c) : shown += c;
  return shown;
}

QString shownPath(const QByteArray& path) {
  if (path.isValidUtf8()) return shownText(QString::fromUtf8(path));
  QString shown;
  for (qsizetype i = 0; i < path.size();) {
    const qsizetype length = lengthOfCharacter(path, i);
    shown +=
        length == 0 ? escapeOf(QLatin1Char(path[i])) : shownText(QString::fromUtf8(path.sliced(i, length)));
    i += qMax(qsizetype{1}, length);
  }
  return shown;
}

QString shownFileName(const QByteArray& path) {
  return shownPath(path.sliced(path.lastIndexOf('/') + 1));
}

}  // namespace kesto
