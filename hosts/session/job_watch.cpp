#include "hosts/session/job_watch.h"

#include <QtCore/QRegularExpression>
#include <algorithm>

#include "hosts/session/printer_reasons.h"
#include "platform/job_keys.h"
#include "platform/panel_choices.h"
#include "platform/print_settings.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

using State = JobFate::State;

JobFate waiting(const JobReport& report) {
  const QString text = report.jobsAhead == 0 ? JobWatch::tr("Waiting for the printer")
                       : report.jobsAhead == 1
                           ? JobWatch::tr("Waiting for 1 other job")
                           : JobWatch::tr("Waiting for %n other jobs", nullptr, report.jobsAhead);
  return {.state = State::Waiting, .text = text};
}

JobFate held(const JobReport& report) {
  if (report.reasons.contains(QStringLiteral("cups-held-for-authentication")))
    return {.state = State::Held, .text = JobWatch::tr("Held: the printer asks for a password")};
  const bool hasTime = report.holdUntil != u"indefinite";
  return {.state = State::Held,
          .text = hasTime ? JobWatch::tr("Held until its time to print")
                          : JobWatch::tr("Held until it is released")};
}

QString progressOf(const JobReport& report) {
  if (report.page > 0 && report.pages > 0)
    return JobWatch::tr("Printing page %1 of %2").arg(report.page).arg(report.pages);
  if (report.page > 0) return JobWatch::tr("Printing page %1").arg(report.page);
  if (report.printerReasons.contains(QStringLiteral("connecting-to-device")))
    return JobWatch::tr("Connecting to the printer");
  return JobWatch::tr("Printing");
}

// The first keyword for which the printer prints nothing; null for none.
QString stoppingReason(const QStringList& keywords) {
  const auto stops = [](const QString& keyword) {
    const std::vector<PrinterReason> reason = printerReasons({keyword});
    return !reason.empty() && reason.front().severity == Severity::Error;
  };
  const auto found = std::ranges::find_if(keywords, stops);
  return found == keywords.end() ? QString() : *found;
}

// A printer that is paused may still have the reasons of an earlier job.
JobFate stoppedByPrinter(const JobReport& report, const QString& reason) {
  const QString paused = QStringLiteral("paused");
  JobFate fate{.state = State::Stopped, .message = report.printerMessage, .reason = reason};
  if (report.isPrinterStopped && report.printerReasons.contains(paused)) {
    fate.reason = paused;
    fate.text = JobWatch::tr("Stopped: the printer is paused");
  } else if (!reason.isNull()) {
    fate.text = JobWatch::tr("Stopped: %1").arg(printerReasons({reason}).front().text);
  } else {
    fate.text = JobWatch::tr("Stopped");
  }
  return fate;
}

// Before its end the job stands and falls with its printer.
JobFate unfinished(const JobReport& report) {
  if (report.state == IPP_JSTATE_HELD) return held(report);
  const bool isPrinting = report.state == IPP_JSTATE_PROCESSING;
  const QString reason = stoppingReason(report.printerReasons);
  if (report.isPrinterStopped || (isPrinting && !reason.isNull())) return stoppedByPrinter(report, reason);
  if (!isPrinting) return waiting(report);
  return {.state = State::Printing, .text = progressOf(report)};
}

JobFate printed(const QString& queue, const PrinterHold& hold) {
  QString text = hold.hasPassCode ? JobWatch::tr("Waits at %1 until you enter your pass code there")
                                  : JobWatch::tr("Waits at %1 until you release it there");
  if (hold.mode == PrinterHold::Mode::None) return {.state = State::Printed, .text = JobWatch::tr("Printed")};
  if (hold.mode == PrinterHold::Mode::AfterPrinting)
    text = JobWatch::tr("Printed, and kept at %1 for printing again");
  if (hold.mode == PrinterHold::Mode::AfterSample)
    text = JobWatch::tr("One copy is printed, the others wait at %1");
  return {.state = State::Retained, .text = text.arg(queue)};
}

// The scheduler names who has done it at the end of its words.
JobFate canceled(const JobReport& report) {
  static const QRegularExpression inQuotes(QStringLiteral(R"re("([^"]+)"[^"]*$)re"));
  const QString who = inQuotes.match(report.message).captured(1);
  const QString text = !who.isEmpty() ? JobWatch::tr("Canceled by %1").arg(who)
                       : report.reasons.contains(QStringLiteral("job-canceled-at-device"))
                           ? JobWatch::tr("Canceled at the printer")
                           : JobWatch::tr("Canceled");
  // A printer that cancels by itself says why.
  return {
      .state = State::Canceled, .text = text, .message = who.isEmpty() ? report.driverMessage : QString()};
}

JobFate givenUp(const JobReport& report, State state) {
  QStringList words{report.message, report.driverMessage};
  words.removeAll(QString());
  words.removeDuplicates();
  const QString text =
      state == State::Stopped ? JobWatch::tr("Stopped by the print server") : JobWatch::tr("Not printed");
  return {.state = state,
          .text = text,
          .message = words.join(QStringLiteral(" ")),
          .reason = report.reasons.value(0)};
}

JobFate ended(const JobReport& report, const QString& queue, const PrinterHold& hold) {
  switch (report.state) {
    case IPP_JSTATE_COMPLETED:
      return printed(queue, hold);
    case IPP_JSTATE_CANCELED:
      return canceled(report);
    case IPP_JSTATE_STOPPED:
      return givenUp(report, State::Stopped);
    default:
      return givenUp(report, State::Failed);
  }
}

}  // namespace

PrinterHold PrinterHold::of(const QMap<QString, QString>& settings) {
  const auto value = [&](const char* key) {
    return settings.value(QLatin1String(printSettingsPrefix) + QLatin1String(key));
  };
  const QString digit = value(job_keys::jobSuspend);
  const auto isDigitOf = [&](HoldRow row) { return digit == QLatin1Char(job_keys::holdDigits.at(row)); };
  const Mode mode = isDigitOf(HoldOnly)         ? Mode::Unprinted
                    : isDigitOf(HoldAfterPrint) ? Mode::AfterPrinting
                    : isDigitOf(SamplePrint)    ? Mode::AfterSample
                                                : Mode::None;
  return {.mode = mode, .hasPassCode = !value(job_keys::jobSuspendKey).isEmpty()};
}

QString JobFate::line() const {
  return message.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, message);
}

JobFate fateOf(const JobReport& report, const QString& queue, const PrinterHold& hold) {
  const bool isEnd = report.isFinished() || report.state == IPP_JSTATE_STOPPED;
  JobFate fate = isEnd ? ended(report, queue, hold) : unfinished(report);
  fate.isEnd = isEnd;
  fate.jobsAhead = report.jobsAhead;
  fate.page = report.page;
  fate.pages = report.pages;
  fate.text = shownText(fate.text);
  fate.message = shownText(fate.message.trimmed());
  return fate;
}

JobWatch::JobWatch(const ServerAddress& server, const SentJob& job, const PrinterHold& hold)
    : m_job(job), m_hold(hold), m_follower(server, job) {
  connect(&m_follower, &JobFollower::reported, this,
          [this](const JobReport& report) { take(fateOf(report, m_job.queue, m_hold)); });
  connect(&m_follower, &JobFollower::lost, this, [this](const QString& reason) {
    take({.state = State::Unknown,
          .isEnd = true,
          .text = tr("It is not known whether the job is printed"),
          .message = reason});
  });
  connect(&m_follower, &JobFollower::cancelFailed, this, &JobWatch::cancelFailed);
}

void JobWatch::take(const JobFate& fate) {
  if (fate == m_fate) return;
  m_fate = fate;
  Q_EMIT changed();
}

}  // namespace kesto
