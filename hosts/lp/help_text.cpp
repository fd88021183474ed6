#include "hosts/lp/help_text.h"

#include <QtCore/QTextBoundaryFinder>
#include <algorithm>
#include <span>

#include "hosts/lp/entries.h"
#include "hosts/lp/lp_texts.h"

namespace kesto {
namespace {

constexpr int textColumn = 28;
constexpr int lineWidth = 80;

struct HelpRow {
  const char* options;
  const char* text;
};

constexpr char usualOptions[] =
    "\n  -d QUEUE -h HOST[:PORT] -U USER -n COPIES -P PAGES -o NAME=VALUE -t TITLE\n";

constexpr HelpRow helpOfJob[] = {
    {"-q PRIORITY -H WHEN -i JOB -m -s -E", QT_TRANSLATE_NOOP("LpTexts", "as of the usual print command")},
    {"-p -w -c -f -y -S -T ",
     QT_TRANSLATE_NOOP("LpTexts", "-p is -q, and -w is -m; the others have no effect")},
    {"--ppd FILE --device-uri URI", QT_TRANSLATE_NOOP("LpTexts", "stand for a queue where no job is sent")},
    {"--dry-run", QT_TRANSLATE_NOOP("LpTexts",
                                    "print the job's settings and send nothing; keep only what "
                                    "--remember, --forget or --save-preset ask for")},
    {"--summary", QT_TRANSLATE_NOOP("LpTexts", "print the panel's summary, not the settings")},
    {"--list [--job-handling] [--network]",
     QT_TRANSLATE_NOOP("LpTexts",
                       "list the queues, or those that offer Job Handling, and the "
                       "printers on the network")},
    {"--folders [--address A]", QT_TRANSLATE_NOOP("LpTexts", "fetch, keep and list the printer's folders")},
    {"--check QUEUE", QT_TRANSLATE_NOOP("LpTexts",
                                        "show what other users of the server see of a job's options, and "
                                        "how to hide it")},
    {"--wait[=SECONDS]", QT_TRANSLATE_NOOP("LpTexts",
                                           "print what becomes of the job until it is printed or held at the "
                                           "printer; ends with 1 if it is not, or with 4 if it still waits "
                                           "after SECONDS")},
    {"--json", QT_TRANSLATE_NOOP("LpTexts", "print JSON")},
    {"--timeout SECONDS", QT_TRANSLATE_NOOP("LpTexts", "wait no longer for an answer (default: 5)")},
    {"--server-password-file FILE",
     QT_TRANSLATE_NOOP("LpTexts", "the password that the server or printer asks for")},
};

constexpr HelpRow helpOfHold[] = {
    {"--hold only|after|sample",
     QT_TRANSLATE_NOOP("LpTexts",
                       "hold the job: unprinted, after printing it, or after a sample of "
                       "it")},
    {"--no-hold", QT_TRANSLATE_NOOP("LpTexts", "do not hold the job")},
};

constexpr HelpRow helpOfMemory[] = {
    {"--X-file FILE, --ask-X",
     QT_TRANSLATE_NOOP("LpTexts",
                       "take X (pin, folder-pin, password) from the first line of a file "
                       "or of standard input, \"-\", or ask at the terminal: other users "
                       "may see a command line")},
    {"--remember X,...", QT_TRANSLATE_NOOP("LpTexts", "keep the entries X for this queue's next jobs")},
    {"--forget X,...", QT_TRANSLATE_NOOP("LpTexts", "keep them no longer")},
};

constexpr HelpRow helpOfPresets[] = {
    {"--preset NAME", QT_TRANSLATE_NOOP("LpTexts", "start from a preset of this queue")},
    {"--save-preset NAME",
     QT_TRANSLATE_NOOP("LpTexts",
                       "keep the settings as a preset; the pass codes only together with "
                       "--with-codes")},
    {"--list-presets, --delete-preset NAME", QT_TRANSLATE_NOOP("LpTexts", "do this alone, for -d or --ppd")},
    {"--help, --version", QT_TRANSLATE_NOOP("LpTexts", "print this text, or the version")},
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

QString lineOf(const QString& options, const QString& text) {
  QString line = QStringLiteral("  ") + options;
  const qsizetype gap = line.size() < textColumn - 1 ? textColumn - line.size() : 3;
  line += QString(gap, u' ');
  return line + wrapped(text, static_cast<int>(line.size()), textColumn);
}

QString linesOf(std::span<const HelpRow> rows) {
  QString lines;
  for (const HelpRow& row : rows)
    lines += lineOf(QLatin1String(row.options), LpTexts::tr(row.text));
  return lines;
}

QString linesOfFields() {
  QString lines;
  for (const FieldRow& row : fieldTable()) {
    if (row.argument == nullptr) continue;
    QString text = LpTexts::tr(row.help);
    if (row.limit != nullptr)
      text = LpTexts::tr("%1, %2", "an entry and its limit").arg(text, row.limitText());
    lines += lineOf(row.option() + u' ' + QLatin1String(row.argument), text);
  }
  return lines;
}

}  // namespace

std::string helpText() {
  const auto plain = [](const QString& text) { return wrapped(text, 0, 0); };
  const QString text = plain(LpTexts::tr("Usage: kesto-lp [OPTION]... [FILE]...")) +
                       plain(LpTexts::tr("Prints files, or standard input, with a printer's Job Handling.")) +
                       QLatin1String(usualOptions) + linesOf(helpOfJob) + u'\n' + linesOf(helpOfHold) +
                       linesOfFields() + linesOf(helpOfMemory) + u'\n' + linesOf(helpOfPresets) +
                       plain(LpTexts::tr("Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, "
                                         "4 waiting."));
  return text.toStdString();
}

}  // namespace kesto
