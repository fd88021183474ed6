// How long the start of a dialog takes for its user.
#pragma once

#include <QtWidgets/QApplication>
#include <chrono>
#include <optional>

namespace kesto {

class PrintDialog;

/// An application that knows the longest time it spent on one event, by the clock and in work of the thread.
class TimedApplication : public QApplication {
  Q_OBJECT

 public:
  using Clock = std::chrono::steady_clock;

  /// `begin` is the beginning of main.
  TimedApplication(int& argc, char** argv, Clock::time_point begin);
  bool notify(QObject* receiver, QEvent* event) override;

  /// Measures the start of a dialog that is about to be shown.
  void watch(PrintDialog& dialog);

 Q_SIGNALS:
  /// The list is complete and painted, and Print can be used.
  void started(const QString& line);
  /// That can no longer happen.
  void failed();

 private:
  using Moment = std::optional<double>;  // ms since main began

  double sinceBegin(Clock::time_point moment) const;
  void takeEnd(Clock::time_point begin);
  void report();

  Clock::time_point m_begin;
  PrintDialog* m_dialog = nullptr;
  int m_depth = 0;
  bool m_hasPainted = false;
  bool m_isListed = false;
  bool m_isReady = false;
  double m_stall = 0;
  double m_work = 0;
  Moment m_paint;
  Moment m_list;
  Moment m_ready;
};

}  // namespace kesto
