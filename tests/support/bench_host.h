// The host of benchmarks and fuzz targets, on the tests' platform.
#pragma once

#include <QtCore/QCoreApplication>

#include "hosts/session/panel_host.h"
#include "tests/support/test_platform.h"

namespace kesto::bench {

/// The application object that Qt's classes need; created at first use.
inline QCoreApplication& application() {
  static int argc = 1;
  static char name[] = "kesto-bench";
  static char* argv[] = {name, nullptr};
  static QCoreApplication instance(argc, argv);
  return instance;
}

/// A host with print settings and without a printer.
class BenchHost : public PanelHost {
 public:
  BenchHost() : BenchHost(application()) {}

  test::TestPlatform ownPlatform;

 private:
  // The platform finds its bundle beside the application.
  explicit BenchHost(QCoreApplication& /*application*/) : PanelHost(ownPlatform) { settings.emplace(); }
};

}  // namespace kesto::bench
