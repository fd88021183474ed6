// kesto-lp: a printer's Job Handling panel on the command line.
#include <QtCore/QCoreApplication>
#include <QtCore/QLoggingCategory>

#include "hosts/command/output.h"
#include "hosts/lp/lp_run.h"
#include "hosts/texts/terminal_texts.h"

int main(int argc, char** argv) {
  // Qt keeps a copy of its arguments, and there may be secrets in these.
  int countForQt = qMin(argc, 1);
  const QtMessageHandler usual = qInstallMessageHandler(kesto::ignoreMessage);
  const QCoreApplication application(countForQt, argv);
  qInstallMessageHandler(usual);
  if (!kesto::wantsJson(argc, argv)) kesto::installTerminalTexts();
  // kesto-lp itself reports what could not be kept, so the log leaves it out.
  QLoggingCategory::setFilterRules(QStringLiteral("kesto.preferences.changes=false"));
  kesto::Options options;
  const auto end = kesto::parseOptions(argc, argv, &options);
  const kesto::ExitCode code = end ? *end : kesto::run(options);
  const kesto::Outcome written = kesto::flushOutput();
  if (written || code != kesto::ExitDone) return code;
  options.messages().error(written.reason());
  return kesto::ExitFailed;
}
