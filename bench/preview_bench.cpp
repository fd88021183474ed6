// kesto-bench-preview FILE: shows a PDF file of many pages in the preview, and prints in microseconds what a
// user waits for and the longest pass of the event loop (processor time, so that other programs do not
// count), and in KiB the memory of the process.
#include <sys/resource.h>

#include <QtCore/QFile>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <algorithm>
#include <chrono>
#include <ctime>
#include <iostream>
#include <utility>

#include "hosts/dialog/preview/preview.h"

namespace kesto {
namespace {

using Clock = std::chrono::steady_clock;

qint64 microsecondsSince(Clock::time_point begin) {
  return std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - begin).count();
}

qint64 processorMicroseconds() {
  timespec time{};
  ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return time.tv_sec * 1'000'000 + time.tv_nsec / 1000;
}

// Measures the event that takes longest.
class Application : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override {
    const qint64 begin = processorMicroseconds();
    ++m_depth;
    const bool isHandled = QApplication::notify(receiver, event);
    if (--m_depth == 0) m_longest = std::max(m_longest, processorMicroseconds() - begin);
    return isHandled;
  }
  qint64 takeLongest() { return std::exchange(m_longest, 0); }

 private:
  int m_depth = 0;
  qint64 m_longest = 0;
};

qint64 residentKilobytes() {
  QFile file(QStringLiteral("/proc/self/statm"));
  constexpr qint64 page = 4;
  return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() * page : 0;
}

void settle(const Preview& preview) {
  while (!preview.isSettled())
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void press(QWidget& preview, int key) {
  QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
  QCoreApplication::sendEvent(&preview, &event);
}

void say(const char* what, qint64 value) {
  std::cout << what << ' ' << value << '\n';
}

void run(Application& application, const QByteArray& path) {
  Preview preview(nullptr);
  preview.resize(700, 900);
  preview.QWidget::show();
  QCoreApplication::processEvents();
  const qint64 before = residentKilobytes();
  Clock::time_point begin = Clock::now();
  preview.show({{path}});
  settle(preview);
  say("show", microsecondsSince(begin));
  say("showLongest", application.takeLongest());
  // Faster than pages are drawn, as with a key that is held down.
  begin = Clock::now();
  int turns = 0;
  for (; turns + 1 < preview.pageCount(); ++turns) {
    press(preview, Qt::Key_PageDown);
    QCoreApplication::processEvents();
  }
  say("turn", microsecondsSince(begin) / qMax(turns, 1));
  settle(preview);
  for (int i = 0; i < 40; ++i) {
    press(preview, Qt::Key_PageUp);
    settle(preview);
  }
  say("turnLongest", application.takeLongest());
  for (const char* columns : {"4", "1", "16", "2"}) {
    preview.setJob({}, {{QStringLiteral("number-up"), QLatin1String(columns)}});
    begin = Clock::now();
    QCoreApplication::processEvents();
    preview.repaint();
    std::cout << "choose" << columns << ' ' << microsecondsSince(begin) << '\n';
    settle(preview);
  }
  say("chooseLongest", application.takeLongest());
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  say("memoryBefore", before);
  say("memoryMost", usage.ru_maxrss);
}

}  // namespace
}  // namespace kesto

int main(int argc, char** argv) {
  kesto::Application application(argc, argv);
  if (argc != 2) {
    std::cerr << "usage: kesto-bench-preview FILE\n";
    return 2;
  }
  kesto::run(application, argv[1]);
  return 0;
}
