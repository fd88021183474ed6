#include "hosts/lp/help_text.h"

#include "hosts/command/help_lines.h"
#include "hosts/lp/entries.h"
#include "hosts/lp/lp_texts.h"

namespace kesto {
namespace {

constexpr HelpRow helpOfPassword[] = {
    {"--server-password-file FILE",
     QT_TRANSLATE_NOOP("LpTexts", "the password that the server or printer asks for")},
};

constexpr HelpRow helpOfUsual[] = {
    {"-n COPIES -P PAGES -o NAME=VALUE", asUsual},
    {"-t TITLE -q PRIORITY -H WHEN -m -s", asUsual},
};

constexpr HelpRow helpOfJob[] = {
    {"-p -w -c -f -y -S -T",
     QT_TRANSLATE_NOOP("LpTexts", "-p is -q, and -w is -m; the others have no effect")},
    {"--wait[=SECONDS]", QT_TRANSLATE_NOOP("LpTexts",
                                           "print what becomes of the job until it is printed or held at the "
                                           "printer; ends with 1 if it is not, or with 4 if it still waits "
                                           "after SECONDS")},
    {"-i JOB", QT_TRANSLATE_NOOP("LpTexts", "change a job that was sent: -H, -n, -o, -P, -q, -t")},
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
};

constexpr HelpRow helpOfLists[] = {
    {"--list [--job-handling] [--network]",
     QT_TRANSLATE_NOOP("LpTexts",
                       "list the queues, or those that offer Job Handling, and the "
                       "printers on the network")},
    {"--folders [--address A]", QT_TRANSLATE_NOOP("LpTexts", "fetch, keep and list the printer's folders")},
    {"--check QUEUE", QT_TRANSLATE_NOOP("LpTexts",
                                        "show what other users of the server see of a job's options, and "
                                        "how to hide it")},
    {"--dry-run", QT_TRANSLATE_NOOP("LpTexts",
                                    "print the job's settings and send nothing; keep only what "
                                    "--remember, --forget or --save-preset ask for")},
    {"--summary", QT_TRANSLATE_NOOP("LpTexts", "print the panel's summary, not the settings")},
    {"--ppd FILE --device-uri URI", QT_TRANSLATE_NOOP("LpTexts", "stand for a queue where no job is sent")},
    {"--json", QT_TRANSLATE_NOOP("LpTexts", "print JSON")},
};

QString linesOfFields() {
  QString lines;
  for (const FieldRow& row : fieldTable()) {
    if (row.argument == nullptr) continue;
    QString text = LpTexts::tr(row.help);
    if (row.limit != nullptr)
      text = LpTexts::tr("%1, %2", "an entry and its limit").arg(text, row.limitText());
    lines += helpLine(row.option() + u' ' + QLatin1String(row.argument), text);
  }
  return lines;
}

}  // namespace

// In the order of the manual page.
std::string helpText() {
  const Translate translate = &LpTexts::tr;
  const QString text =
      helpUsage(QStringLiteral("kesto-lp")) +
      helpParagraph(LpTexts::tr("Prints files, or standard input, with a printer's Job Handling.")) + u'\n' +
      helpOfServer() + helpLines(helpOfPassword, translate) + helpLines(helpOfUsual, &CommandTexts::tr) +
      helpLines(helpOfJob, translate) + u'\n' + helpLines(helpOfHold, translate) + linesOfFields() +
      helpLines(helpOfMemory, translate) + u'\n' + helpLines(helpOfPresets, translate) +
      helpLines(helpOfLists, translate) + helpOfHelp() +
      helpParagraph(LpTexts::tr("Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, "
                                "4 waiting."));
  return text.toStdString();
}

}  // namespace kesto
