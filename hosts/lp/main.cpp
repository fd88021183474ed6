// kesto-lp: the choices of a printer's Job Handling panel on the command line.
#include <QtCore/QCoreApplication>

#include "hosts/lp/lp_run.h"

int main(int argc, char** argv) {
  kesto::Options options;
  if (const auto end = kesto::parseOptions(argc, argv, &options)) return *end;
  const QCoreApplication application(argc, argv);
  return kesto::run(options);
}
