// The dialog of kesto-print --portal: what ends it, and what its service is told then.
#include <QtCore/QTemporaryFile>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

#include "hosts/dialog/panes/general_pane.h"
#include "hosts/dialog/portal_print.h"
#include "support/printing.h"

namespace kesto::test {
namespace {

TEST(PortalDialog, EndsWithItsServiceOrItsDocument) {
  QApplication::setQuitOnLastWindowClosed(false);
  QTemporaryFile empty;
  ASSERT_TRUE(empty.open());
  for (const auto& [command, told] : Cases{{"close", nullptr}, {"print", "failed"}, {nullptr, nullptr}}) {
    Descriptor ours;
    Descriptor theirs;
    ASSERT_TRUE(PrintChannel::makePair(&ours, &theirs));
    PrintOptions options;
    options.channel = theirs.release();
    options.server.address = u"127.0.0.1:9"_s;
    const PortalPrint print(options);
    auto service = std::make_unique<PrintChannel>(std::move(ours));
    QString answers;
    QObject::connect(service.get(), &PrintChannel::received,
                     [&](const QJsonObject& message) { answers += message.value(u"answer"_s).toString(); });
    const QJsonObject settings{{u"n-copies"_s, u"2"_s}, {u"collate"_s, u"false"_s}};
    ASSERT_TRUE(service->send({{u"do"_s, u"open"_s}, {u"document"_s, true}, {u"settings"_s, settings}}));
    if (command.isNull()) {
      service.reset();
    } else {
      ASSERT_TRUE(service->send({{u"do"_s, command}}, empty.handle()));
    }
    QTimer::singleShot(30000, &print, [] { QApplication::exit(1); });
    EXPECT_EQ(QApplication::exec(), 0) << command;
    QCoreApplication::processEvents();
    EXPECT_EQ(answers, told) << command;
    int dialogs = 0;
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* dialog = qobject_cast<PrintDialog*>(window);
      if (dialog == nullptr) continue;
      ++dialogs;
      EXPECT_EQ(dialog->general().jobOptions(),
                (QMap<QString, QString>{{u"copies"_s, u"2"_s}, {u"collate"_s, u"false"_s}}));
    }
    EXPECT_EQ(dialogs, 1) << command;
  }
}

}  // namespace
}  // namespace kesto::test
