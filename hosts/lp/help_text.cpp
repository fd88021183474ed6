#include "hosts/lp/help_text.h"

#include "hosts/lp/entries.h"

namespace kesto {
namespace {

constexpr char helpOfJob[] =
    R"(Usage: kesto-lp [OPTION]... [FILE]...
Prints files, or standard input, with a printer's Job Handling.

  -d QUEUE -h HOST[:PORT] -U USER -n COPIES -P PAGES -o NAME=VALUE -t TITLE
  -q PRIORITY -H WHEN -i JOB -m -s -E   as of the usual print command
  -p and -w                 as -q and -m;  -c -f -y -S -T have no effect
  --ppd FILE --device-uri URI   stand for a queue where no job is sent
  --dry-run                 print the job's settings and send nothing; keep only
                            what --remember, --forget or --save-preset ask for
  --summary                 print the panel's summary, not the settings
  --list [--job-handling] [--network]   list the queues, or those that offer Job
                            Handling, and the printers on the network
  --folders [--address A]   fetch, keep and list the printer's folders
  --check QUEUE             show what other users of the server see of a job's
                            options, and how to hide it
  --wait[=SECONDS]          print what becomes of the job until it is printed or
                            held at the printer; ends with 1 if it is not, or
                            with 4 if it still waits after SECONDS
  --json                    print JSON;  --timeout SECONDS  (5) wait no longer
  --server-password-file FILE   the password that the server or printer asks for

  --hold only|after|sample  hold the job: unprinted, after printing it, or after
                            a sample of it; --no-hold does not hold it
)";

constexpr char helpOfMemory[] =
    R"(  --X-file FILE, --ask-X    take X (pin, folder-pin, password) from the first
                            line of a file or of standard input, "-", or ask at
                            the terminal: other users may see a command line
  --remember X,...          keep the value of X (pin, password or another entry)
  --forget X,...            for this queue's next jobs, or keep it no longer

  --preset NAME             start from a preset of this queue
  --save-preset NAME        keep the settings as a preset; the pass codes only
                            together with --with-codes
  --list-presets, --delete-preset NAME   do this alone, for -d or --ppd
  --help, --version         print this text, or the version
Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, 4 waiting.
)";

}  // namespace

std::string helpText() {
  std::string text = helpOfJob;
  for (const FieldRow& row : fieldTable()) {
    if (row.argument == nullptr) continue;
    std::string line = "  --" + std::string(row.name) + ' ' + row.argument;
    line.resize(28, ' ');
    text += line + row.help;
    if (row.limit != nullptr) text += std::string(", ") + row.limit;
    text += '\n';
  }
  return text + helpOfMemory;
}

}  // namespace kesto
