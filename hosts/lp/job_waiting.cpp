#include "hosts/lp/job_waiting.h"

#include <QtCore/QEventLoop>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <iostream>

#include "hosts/command/output.h"
#include "hosts/lp/lp_texts.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

// The states in JSON.
QString wordOf(JobFate::State state) {
  switch (state) {
    case JobFate::State::Waiting:
      return QStringLiteral("waiting");
    case JobFate::State::Held:
      return QStringLiteral("held");
    case JobFate::State::Printing:
      return QStringLiteral("printing");
    case JobFate::State::Stopped:
      return QStringLiteral("stopped");
    case JobFate::State::Printed:
      return QStringLiteral("printed");
    case JobFate::State::Retained:
      return QStringLiteral("retained");
    case JobFate::State::Canceled:
      return QStringLiteral("canceled");
    case JobFate::State::Failed:
      return QStringLiteral("failed");
    case JobFate::State::Unknown:
      break;
  }
  return QStringLiteral("unknown");
}

QJsonObject objectOf(int job, const JobFate& fate) {
  QJsonObject object{{QStringLiteral("job"), job},
                     {QStringLiteral("state"), wordOf(fate.state)},
                     {QStringLiteral("end"), fate.isEnd},
                     {QStringLiteral("text"), fate.text}};
  const auto insert = [&](const char* member, const QJsonValue& value, bool isKnown) {
    if (isKnown) object.insert(QLatin1String(member), value);
  };
  insert("message", fate.message, !fate.message.isEmpty());
  insert("reason", fate.reason, !fate.reason.isEmpty());
  insert("jobsAhead", fate.jobsAhead, fate.state == JobFate::State::Waiting);
  insert("page", fate.page, fate.page > 0);
  insert("pages", fate.pages, fate.pages > 0);
  return object;
}

QString nameOf(const SentJob& job) {
  return QStringLiteral("%1-%2").arg(shownText(job.queue)).arg(job.number);
}

// A line that is an error's goes there alone.
void print(const Options& options, const SentJob& job, const JobFate& fate) {
  if (options.silent) return;
  if (options.json) {
    std::cout << printableJson(QJsonDocument(objectOf(job.number, fate))).constData() << std::endl;
  } else if (!fate.isEnd || fate.isSuccess()) {
    std::cout << nameOf(job).toStdString() << ": " << fate.line().toStdString() << std::endl;
  }
}

}  // namespace

ExitCode waitForJob(const Options& options, const SentJob& job, const PrinterHold& hold) {
  QEventLoop loop;
  JobWatch watch(options.server, job, hold);
  QObject::connect(&watch, &JobWatch::changed, &loop, [&] {
    print(options, job, watch.fate());
    if (watch.fate().isEnd) loop.quit();
  });
  if (options.waitLimit) QTimer::singleShot(*options.waitLimit, &loop, &QEventLoop::quit);
  loop.exec();
  const JobFate& fate = watch.fate();
  if (fate.isSuccess()) return ExitDone;
  const QString line = nameOf(job) + QStringLiteral(": ") + fate.line();
  options.messages().error(fate.isEnd ? line : LpTexts::tr("not waiting any longer: %1").arg(line));
  return fate.isEnd ? ExitFailed : ExitWaiting;
}

}  // namespace kesto
