#include <QtWidgets/QApplication>

#include "tests/support/warnings.h"

namespace {

// Messages of the offscreen platform are not about the dialog.
void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.startsWith(QLatin1String("This plugin does not support"))) return;
  kesto::test::ExpectedWarning::handleMessage(type, context, message);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  qInstallMessageHandler(handleMessage);
  return RUN_ALL_TESTS();
}
