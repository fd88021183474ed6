#include "hosts/lp/option_faults.h"

#include <algorithm>

namespace kesto {
namespace {

// What a job that is sent cannot be given any more.
QString faultOfChange(const Options& options) {
  if (!options.files.isEmpty())
    return QStringLiteral("-i changes a job that was already sent; leave out the files");
  if (options.queue || options.ppd)
    return QStringLiteral("-i changes a job where it is; leave out -d and --ppd");
  if (options.wantsPanel())
    return QStringLiteral("-i cannot change the Job Handling of a job that was already sent");
  return {};
}

QString faultOfTask(const Options& options) {
  const Task task = options.task;
  if (options.jobHandlingOnly && task != Task::ListQueues)
    return QStringLiteral("--job-handling requires --list");
  if (options.network && task != Task::ListQueues) return QStringLiteral("--network requires --list");
  if (options.address && task != Task::ListFolders) return QStringLiteral("--address requires --folders");
  if (options.summary && task != Task::DryRun) return QStringLiteral("--summary requires --dry-run");
  if (options.restart && task != Task::Change) return QStringLiteral("-H restart requires -i JOB");
  if (options.wait && task != Task::Print) return QStringLiteral("--wait requires a job to print");
  if (task == Task::Change) return faultOfChange(options);
  if (task == Task::Print || task == Task::DryRun) return {};
  const bool hasJob =
      options.wantsPanel() || options.title || !options.files.isEmpty() || !options.jobOptions.isEmpty();
  return hasJob ? QStringLiteral("a list cannot be combined with a job's options") : QString();
}

QString faultOfQueue(const Options& options) {
  const Task task = options.task;
  if (task == Task::ListPresets || task == Task::DeletePreset) {
    return options.queue || options.ppd ? QString()
                                        : QStringLiteral("no printer is given; set it with -d or --ppd");
  }
  if (options.deviceUri && !options.ppd) return QStringLiteral("--device-uri requires --ppd");
  if (!options.ppd) return {};
  if (!options.deviceUri) return QStringLiteral("--ppd requires --device-uri");
  if (task == Task::DryRun || task == Task::ListFolders) return {};
  return QStringLiteral("--ppd requires --dry-run or --folders");
}

QString faultOfInput(const Options& options) {
  const auto isInput = [](const std::optional<QString>& file) { return file == QLatin1String("-"); };
  const auto readers = std::ranges::count_if(options.secrets, isInput, &SecretSource::file) +
                       (isInput(options.serverPassword) ? 1 : 0);
  return readers < 2 ? QString() : QStringLiteral("only one entry can be read from standard input");
}

}  // namespace

QString faultOfOptions(const Options& options) {
  for (const auto faultOf : {faultOfTask, faultOfQueue, faultOfInput}) {
    if (QString fault = faultOf(options); !fault.isNull()) return fault;
  }
  return {};
}

}  // namespace kesto
