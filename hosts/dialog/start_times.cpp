#include "hosts/dialog/start_times.h"

#include <ctime>

#include <QtCore/QEvent>
#include <QtCore/QThread>

#include "hosts/dialog/print_dialog.h"
#include "hosts/dialog/widgets/queue_list_model.h"

namespace kesto {
namespace {

// What this thread has worked, whatever else the machine did.
double workedMilliseconds() {
  timespec worked{};
  ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &worked);
  return static_cast<double>(worked.tv_sec) * 1e3 + static_cast<double>(worked.tv_nsec) / 1e6;
}

}  // namespace

TimedApplication::TimedApplication(int& argc, char** argv, Clock::time_point begin)
    : QApplication(argc, argv), m_begin(begin) {}

double TimedApplication::sinceBegin(Clock::time_point moment) const {
  return std::chrono::duration<double, std::milli>(moment - m_begin).count();
}

bool TimedApplication::notify(QObject* receiver, QEvent* event) {
  // Other threads hand their events to this function as well.
  if (QThread::currentThread() != thread() || m_dialog == nullptr)
    return QApplication::notify(receiver, event);
  if (receiver == m_dialog && event->type() == QEvent::Paint) m_hasPainted = true;
  const Clock::time_point begin = Clock::now();
  const double worked = workedMilliseconds();
  ++m_depth;
  const bool handled = QApplication::notify(receiver, event);
  if (--m_depth > 0) return handled;
  m_work = std::max(m_work, workedMilliseconds() - worked);
  takeEnd(begin);
  return handled;
}

// An event is handled, and what it painted is on the screen.
void TimedApplication::takeEnd(Clock::time_point begin) {
  const Clock::time_point end = Clock::now();
  m_stall = std::max(m_stall, std::chrono::duration<double, std::milli>(end - begin).count());
  if (m_hasPainted && !m_paint) m_paint = sinceBegin(end);
  if (m_hasPainted && m_isListed && !m_list) m_list = sinceBegin(end);
  if (m_isReady && !m_ready) m_ready = sinceBegin(end);
  m_hasPainted = false;
  report();
}

void TimedApplication::watch(PrintDialog& dialog) {
  m_dialog = &dialog;
  connect(&dialog, &PrintDialog::listed, this, [this] {
    m_isListed = true;
    m_dialog->update();
  });
  connect(&dialog, &PrintDialog::settled, this, [this] {
    if (!m_dialog->isQueueReady()) {
      Q_EMIT failed();
    } else {
      m_isReady = true;
    }
  });
}

void TimedApplication::report() {
  if (!m_paint || !m_list || !m_ready) return;
  const auto whole = [](double value) { return QString::number(qRound(value)); };
  const auto queues = m_dialog->queues().queues().size();
  m_dialog = nullptr;
  Q_EMIT started(QStringLiteral("paint_ms=%1 list_ms=%2 ready_ms=%3 stall_ms=%4 work_ms=%5 queues=%6")
                     .arg(whole(*m_paint), whole(*m_list), whole(*m_ready), whole(m_stall), whole(m_work))
                     .arg(queues));
}

}  // namespace kesto
