#include "hosts/lp/option_faults.h"

#include <algorithm>

#include "hosts/command/command_texts.h"
#include "hosts/lp/lp_texts.h"

namespace kesto {
namespace {

QString lack(const char* option, const char* other) {
  return CommandTexts::lack(QLatin1String(option), QLatin1String(other));
}

// What a job that is sent cannot be given any more.
QString faultOfChange(const Options& options) {
  if (!options.files.isEmpty())
    return LpTexts::tr("-i changes a job that was already sent; leave out the files");
  if (options.queue || options.ppd)
    return LpTexts::tr("-i changes a job where it is; leave out -d and --ppd");
  if (options.wantsPanel())
    return LpTexts::tr("-i cannot change the Job Handling of a job that was already sent");
  return {};
}

QString faultOfTask(const Options& options) {
  const Task task = options.task;
  if (options.jobHandlingOnly && task != Task::ListQueues) return lack("--job-handling", "--list");
  if (options.network && task != Task::ListQueues) return lack("--network", "--list");
  if (options.address && task != Task::ListFolders) return lack("--address", "--folders");
  if (options.summary && task != Task::DryRun) return lack("--summary", "--dry-run");
  if (options.restart && task != Task::Change) return lack("-H restart", "-i JOB");
  if (options.wait && task != Task::Print) return LpTexts::tr("--wait requires a job to print");
  if (task == Task::Change) return faultOfChange(options);
  if (task == Task::Print || task == Task::DryRun) return {};
  const bool hasJob =
      options.wantsPanel() || options.title || !options.files.isEmpty() || !options.jobOptions.isEmpty();
  return hasJob ? LpTexts::tr("a list cannot be combined with a job's options") : QString();
}

QString faultOfQueue(const Options& options) {
  const Task task = options.task;
  if (task == Task::ListPresets || task == Task::DeletePreset) {
    return options.queue || options.ppd ? QString()
                                        : LpTexts::tr("no printer is given; set it with -d or --ppd");
  }
  if (options.deviceUri && !options.ppd) return lack("--device-uri", "--ppd");
  if (!options.ppd) return {};
  if (!options.deviceUri) return lack("--ppd", "--device-uri");
  if (task == Task::DryRun || task == Task::ListFolders) return {};
  return LpTexts::tr("--ppd requires --dry-run or --folders");
}

QString faultOfInput(const Options& options) {
  const auto isInput = [](const std::optional<QString>& file) { return file == QLatin1String("-"); };
  const auto readers = std::ranges::count_if(options.secrets, isInput, &SecretSource::file) +
                       (isInput(options.serverPassword) ? 1 : 0);
  return readers < 2 ? QString() : LpTexts::tr("only one entry can be read from standard input");
}

}  // namespace

QString faultOfOptions(const Options& options) {
  for (const auto faultOf : {faultOfTask, faultOfQueue, faultOfInput}) {
    if (QString fault = faultOf(options); !fault.isNull()) return fault;
  }
  return {};
}

}  // namespace kesto
