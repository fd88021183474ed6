// The help of a command line: options at the left, and beside them what they do, in the user's language.
#pragma once

#include <QtCore/QString>
#include <span>

#include "hosts/command/command_texts.h"

namespace kesto {

struct HelpRow {
  const char* options;
  const char* text;
};

/// How a context, such as `CommandTexts`, translates its texts.
using Translate = QString (*)(const char* text, const char* comment, int count);

/// Of programs that take options of the usual print command.
inline constexpr char asUsual[] = QT_TRANSLATE_NOOP("CommandTexts", "as of the usual print command");

/// What these give is broken into lines of at most 80 columns, and ends with a line break.
QString helpUsage(const QString& program);
QString helpParagraph(const QString& text);
QString helpLine(const QString& options, const QString& text);
QString helpLines(std::span<const HelpRow> rows, Translate translate);

/// The options that name the print server and the queue, and what comes last in each list of options.
QString helpOfServer();
QString helpOfHelp();

}  // namespace kesto
