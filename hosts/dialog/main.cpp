// kesto-print: the print dialog.
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QtGui/QIcon>
#include <iostream>

#include "hosts/command/output.h"
#include "hosts/dialog/options.h"
#include "hosts/dialog/portal_print.h"
#include "hosts/dialog/preview/preview.h"
#include "hosts/dialog/print_dialog.h"
#include "hosts/dialog/start_times.h"
#include "hosts/dialog/translations.h"
#include "hosts/dialog/widgets/accent_color.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

enum ExitCode { ExitDone = 0, ExitFailed = 1 };

void complain(const QString& fault) {
  std::cerr << "kesto-print: " << fault.toStdString() << '\n';
}

// Whether somebody hands a document over: a pipe or a file, not a terminal or nothing.
bool hasStandardInput() {
  struct stat status {};
  return ::fstat(STDIN_FILENO, &status) == 0 && (S_ISFIFO(status.st_mode) || S_ISREG(status.st_mode));
}

void openDocument(const PrintOptions& options, Document& document) {
  const bool isOnlyLooking = options.timings || !options.screenshot.isNull();
  const bool isInput = options.files.isEmpty() && !isOnlyLooking && hasStandardInput();
  document.openFiles(isInput ? QByteArrayList{"-"} : options.files);
}

void timeStart(TimedApplication& application, PrintDialog& dialog) {
  application.watch(dialog);
  QObject::connect(&application, &TimedApplication::started, &dialog, [&dialog](const QString& line) {
    std::cout << line.toStdString() << std::endl;
    dialog.done(QDialog::Accepted);
  });
  QObject::connect(&application, &TimedApplication::failed, &dialog, [&dialog] {
    complain(QCoreApplication::translate("PrintTexts", "no printer is available"));
    dialog.done(QDialog::Rejected);
  });
}

void takeScreenshot(PrintDialog& dialog, const QString& path) {
  const auto take = [&dialog, path] {
    // Where there is no room for the preview, it is folded away.
    const bool isDrawn = dialog.preview().isHidden() || dialog.preview().isSettled();
    if (!dialog.isSettled() || !isDrawn) return;
    const bool isSaved = dialog.grab().save(path);
    if (!isSaved)
      complain(QCoreApplication::translate("PrintTexts", "%1 cannot be written").arg(shownText(path)));
    dialog.done(isSaved ? QDialog::Accepted : QDialog::Rejected);
  };
  // What was laid out for the news is painted first.
  QObject::connect(&dialog, &PrintDialog::settled, &dialog, take, Qt::QueuedConnection);
  QObject::connect(&dialog.preview(), &Preview::shown, &dialog, take, Qt::QueuedConnection);
}

// Each file stays open from its choice until it is sent.
void allowManyFiles() {
  rlimit limit{};
  if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) return;
  limit.rlim_cur = limit.rlim_max;
  ::setrlimit(RLIMIT_NOFILE, &limit);
}

int runForPortal(const PrintOptions& options) {
  QApplication::setQuitOnLastWindowClosed(false);
  const PortalPrint print(options);
  return QApplication::exec();
}

int run(TimedApplication& application, const PrintOptions& options) {
  Document document;
  openDocument(options, document);
  for (const QString& fault : document.faults())
    complain(fault);
  PrintDialog dialog(options, document);
  if (options.timings) timeStart(application, dialog);
  if (!options.screenshot.isNull()) takeScreenshot(dialog, options.screenshot);
  if (dialog.exec() != QDialog::Accepted) return ExitFailed;
  if (dialog.job() > 0) {
    std::cout << "request id is " << shownText(dialog.queueName()).toStdString() << '-' << dialog.job()
              << std::endl;
  }
  return ExitDone;
}

}  // namespace
}  // namespace kesto

int main(int argc, char** argv) {
  const auto begin = kesto::TimedApplication::Clock::now();
  kesto::PrintOptions options;
  if (const auto end = kesto::parsePrintOptions(argc, argv, &options))
    return kesto::endOfOutput("kesto-print", *end);
  kesto::TimedApplication application(argc, argv, begin);
  QApplication::setApplicationName(QStringLiteral("kesto-print"));
  QApplication::setDesktopFileName(QStringLiteral("kesto-print"));
  kesto::installTranslations();
  kesto::makeTextsLegible();
  kesto::allowManyFiles();
  kesto::removeLeftCopies();
  const int code = options.channel >= 0 ? kesto::runForPortal(options) : kesto::run(application, options);
  return kesto::endOfOutput("kesto-print", code);
}
