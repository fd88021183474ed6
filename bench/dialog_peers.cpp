// kesto-bench-dialog: the peers of kesto-print's first painting. Shows an empty dialog ("empty") or the
// toolkit's own print dialog ("print"), prints "paint_ms=N work_ms=N" and exits: the milliseconds from the
// beginning of main to the end of the first painting, and the thread's work in the longest pass of the event
// loop until then.
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrinter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QVBoxLayout>
#include <algorithm>
#include <chrono>
#include <ctime>
#include <iostream>
#include <memory>
#include <utility>

namespace {

using Clock = std::chrono::steady_clock;

double workedMilliseconds() {
  timespec worked{};
  ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &worked);
  return static_cast<double>(worked.tv_sec) * 1e3 + static_cast<double>(worked.tv_nsec) / 1e6;
}

class PaintClock : public QApplication {
 public:
  PaintClock(int& argc, char** argv, Clock::time_point begin) : QApplication(argc, argv), m_begin(begin) {}

  void watch(QWidget* window) { m_window = window; }

  bool notify(QObject* receiver, QEvent* event) override {
    if (receiver == m_window && event->type() == QEvent::Paint) m_hasPainted = true;
    const double worked = workedMilliseconds();
    ++m_depth;
    const bool handled = QApplication::notify(receiver, event);
    if (--m_depth > 0) return handled;
    m_work = std::max(m_work, workedMilliseconds() - worked);
    if (std::exchange(m_hasPainted, false)) {
      std::cout << "paint_ms="
                << std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - m_begin).count()
                << " work_ms=" << qRound(m_work) << '\n';
      quit();
    }
    return handled;
  }

 private:
  Clock::time_point m_begin;
  QWidget* m_window = nullptr;
  int m_depth = 0;
  bool m_hasPainted = false;
  double m_work = 0;
};

// As large as kesto-print's: much of a first painting is the memory of its picture.
std::unique_ptr<QDialog> makeEmpty() {
  auto dialog = std::make_unique<QDialog>();
  auto* layout = new QVBoxLayout(dialog.get());
  layout->addStretch();
  layout->addWidget(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel));
  dialog->resize(dialog->fontMetrics().horizontalAdvance(QLatin1Char('0')) * 130,
                 dialog->fontMetrics().height() * 46);
  return dialog;
}

}  // namespace

int main(int argc, char** argv) {
  const auto begin = Clock::now();
  PaintClock application(argc, argv, begin);
  const bool isPrint = QCoreApplication::arguments().value(1) == QLatin1String("print");
  std::unique_ptr<QPrinter> printer;
  std::unique_ptr<QDialog> dialog;
  if (isPrint) {
    printer = std::make_unique<QPrinter>();
    dialog = std::make_unique<QPrintDialog>(printer.get());
  } else {
    dialog = makeEmpty();
  }
  application.watch(dialog.get());
  dialog->show();
  return QApplication::exec();
}
