#include <QtCore/QCoreApplication>

#include "tests/support/warnings.h"

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);  // for files that are found beside the program
  testing::InitGoogleTest(&argc, argv);
  qInstallMessageHandler(kesto::test::ExpectedWarning::handleMessage);
  return RUN_ALL_TESTS();
}
