// kesto-print-tour: a simulated user works through the print dialog, for a machine without a display. The
// first line of standard input is the pass code, the second the address of the printer's folders.
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <array>
#include <iostream>
#include <string>

#include "hosts/command/output.h"
#include "hosts/dialog/options.h"
#include "hosts/dialog/preview/preview.h"
#include "hosts/dialog/print_dialog.h"
#include "hosts/dialog/translations.h"
#include "hosts/dialog/user/dialog_user.h"
#include "hosts/dialog/widgets/accent_color.h"
#include "hosts/dialog/widgets/queue_list_model.h"

namespace kesto {
namespace {

// One step of the tour.
struct Step {
  const char* told;
  std::function<Outcome()> take;
};

bool isReady(const PrintDialog& dialog) {
  return dialog.isQueueReady() && dialog.preview().isSettled() && dialog.queues().rowCount() > 0;
}

Outcome saveScreenshot(PrintDialog& dialog, const QString& path) {
  const auto isDrawn = [&] { return dialog.preview().isSettled(); };
  if (Outcome drawn = DialogUser::waitUntil(isDrawn, QStringLiteral("the preview")); !drawn) return drawn;
  return dialog.grab().save(path) ? Outcome::done()
                                  : Outcome::failed(path + QStringLiteral(" cannot be written"));
}

Outcome takeTour(PrintDialog& dialog, const QString& passCode, const QString& folders,
                 const QString& screenshot) {
  DialogUser user(dialog);
  const auto hasFolders = [&] {
    return dialog.findChild<QComboBox*>(QStringLiteral("folderSelectionPopup"))->count() > 2;
  };
  const std::array steps{
      Step{"opens the dialog",
           [&] {
             return DialogUser::waitUntil([&] { return isReady(dialog); }, QStringLiteral("the queue"));
           }},
      Step{"chooses User number", [&] { return user.click(QStringLiteral("userNumberRadioButton")); }},
      Step{"types the user number 42",
           [&] { return user.type(QStringLiteral("userNumberEditText"), QStringLiteral("42")); }},
      Step{"turns Retention on", [&] { return user.click(QStringLiteral("retentionCheckBox")); }},
      Step{"chooses Hold after printing", [&] { return user.click(QStringLiteral("holdAfterRadioButton")); }},
      Step{"types a pass code", [&] { return user.type(QStringLiteral("suspendKeyEditText"), passCode); }},
      Step{"types the printer's address",
           [&] { return user.replace(QStringLiteral("printersAddressEditText"), folders); }},
      Step{"gets the folder names", [&] { return user.click(QStringLiteral("getFolderNameButton")); }},
      Step{"sees the printer's folders",
           [&] { return DialogUser::waitUntil(hasFolders, QStringLiteral("the folders")); }},
      Step{"takes a screenshot", [&] { return saveScreenshot(dialog, screenshot); }},
      Step{"presses Print", [&] { return user.click(QStringLiteral("print")); }},
      Step{
          "waits for the job",
          [&] { return DialogUser::waitUntil([&] { return dialog.job() > 0; }, QStringLiteral("the job")); }},
  };
  for (const Step& step : steps) {
    std::cout << "  " << step.told << std::endl;
    if (Outcome taken = step.take(); !taken) return taken;
  }
  return Outcome::done();
}

void printSettings(const PrintDialog& dialog) {
  std::cout << "The job's settings:\n";
  const QMap<QString, QString> settings = dialog.jobSettings();
  for (auto it = settings.begin(); it != settings.end(); ++it)
    std::cout << "  " << it.key().toStdString() << '=' << it.value().toStdString() << '\n';
  std::cout << "request id is " << dialog.queueName().toStdString() << '-' << dialog.job() << std::endl;
}

int run(const PrintOptions& options) {
  std::string passCode;
  std::string folders;
  std::getline(std::cin, passCode);
  std::getline(std::cin, folders);
  Document document;
  document.openFiles(options.files);
  PrintDialog dialog(options, document);
  dialog.show();
  if (Outcome taken = takeTour(dialog, QString::fromStdString(passCode), QString::fromStdString(folders),
                               options.screenshot);
      !taken) {
    std::cerr << "kesto-print-tour: " << taken.reason().toStdString() << '\n';
    return 1;
  }
  printSettings(dialog);
  return 0;
}

}  // namespace
}  // namespace kesto

int main(int argc, char** argv) {
  kesto::PrintOptions options;
  if (const auto end = kesto::parsePrintOptions(argc, argv, &options))
    return kesto::endOfOutput("kesto-print-tour", *end);
  const QApplication application(argc, argv);
  kesto::installTranslations();
  kesto::makeTextsLegible();
  return kesto::endOfOutput("kesto-print-tour", kesto::run(options));
}
