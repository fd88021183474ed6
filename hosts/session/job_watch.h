// What becomes of a job once it is sent, in the user's terms.
#pragma once

#include <QtCore/QMap>

#include "hosts/cups/job_follower.h"

namespace kesto {

/// How the printer holds a job, by the print settings that were sent with it.
struct PrinterHold {
  enum class Mode { None, Unprinted, AfterPrinting, AfterSample };

  Mode mode = Mode::None;
  bool hasPassCode = false;

  static PrinterHold of(const QMap<QString, QString>& settings);
};

/// What has become of a job so far.
struct JobFate {
  enum class State {
    Waiting,  ///< For other jobs, or for the scheduler.
    Held,     ///< At the print server.
    Printing,
    Stopped,  ///< By its printer or the print server; it goes on by itself unless this is its end.
    Printed,
    Retained,  ///< At the printer, which prints it, or the rest of it, when the user comes.
    Canceled,
    Failed,   ///< The print server has given it up.
    Unknown,  ///< The print server is gone, or has forgotten the job.
  };

  State state = State::Waiting;
  bool isEnd = false;  ///< Nothing changes any more unless somebody sees to it.
  QString text{};      ///< One sentence or clause for the user, without a full stop.
  QString message{};   ///< What the driver or the print server says beside it, as they have it.
  QString reason{};    ///< Why it is stopped: a standard keyword, null when there is none.
  int jobsAhead = 0;
  int page = 0;  ///< 0 when unknown, as `pages`.
  int pages = 0;

  bool operator==(const JobFate&) const = default;
  /// Whether the job is where the user wants it: printed, or held at the printer.
  bool isSuccess() const { return state == State::Printed || state == State::Retained; }
  /// The text and, in brackets, the message.
  QString line() const;
};

/// The fate that a report of the print server amounts to. `queue` is the printer's name for the user.
JobFate fateOf(const JobReport& report, const QString& queue, const PrinterHold& hold);

/// Follows one job until its end. Nothing here waits.
class JobWatch : public QObject {
  Q_OBJECT

 public:
  JobWatch(const ServerAddress& server, const SentJob& job, const PrinterHold& hold);

  const JobFate& fate() const { return m_fate; }
  const SentJob& job() const { return m_job; }
  /// Cancels the job. Its fate, or `cancelFailed`, says what comes of it.
  void cancel() { m_follower.cancel(); }

 Q_SIGNALS:
  void changed();
  void cancelFailed(const QString& reason);

 private:
  void take(const JobFate& fate);

  SentJob m_job;
  PrinterHold m_hold;
  JobFate m_fate;
  JobFollower m_follower;
};

}  // namespace kesto
