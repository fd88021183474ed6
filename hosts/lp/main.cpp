// kesto-lp: the choices of a printer's Job Handling panel on the command line.
#include <QtCore/QCoreApplication>
#include <QtCore/QLoggingCategory>

#include "hosts/command/output.h"
#include "hosts/lp/lp_run.h"

int main(int argc, char** argv) {
  kesto::Options options;
  const auto end = kesto::parseOptions(argc, argv, &options);
  const QCoreApplication application(argc, argv);
  // What could not be kept is said here, once.
  QLoggingCategory::setFilterRules(QStringLiteral("kesto.preferences.changes=false"));
  return kesto::endOfOutput("kesto-lp", end ? *end : kesto::run(options));
}
