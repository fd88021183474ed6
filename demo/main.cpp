// kesto-demo-printer: a printer to try the Job Handling panel on, and the commands for its jobs.
#include <QtCore/QCoreApplication>
#include <QtCore/QJsonDocument>
#include <cstdio>

#include "demo/command_line.h"
#include "demo/log.h"
#include "demo/stop_signal.h"
#include "hosts/command/output.h"
#include "platform/shown_text.h"

namespace {

using kesto::DemoCommand;
using kesto::Outcome;

constexpr int exitFailed = 1;
constexpr int exitRefused = 3;

void print(const QString& line) {
  std::printf("%s\n", line.toUtf8().constData());
  std::fflush(stdout);
}

void printJson(const QJsonDocument& document) {
  print(QString::fromUtf8(kesto::printableJson(document)));
}

int fail(const QString& reason) {
  std::fprintf(stderr, "kesto-demo-printer: %s\n", kesto::shownText(reason).toUtf8().constData());
  return exitFailed;
}

int listMisbehaviours() {
  for (const kesto::Misbehaviour& row : kesto::misbehaviours()) {
    print(QStringLiteral("%1  %2").arg(QLatin1String(row.name), -16).arg(QLatin1String(row.description)));
  }
  return 0;
}

void printWhereabouts(const QJsonObject& places, bool json) {
  if (json) return printJson(QJsonDocument(places));
  if (places.size() == 1) return print(places.value(QStringLiteral("folders")).toString());
  for (const char* name : {"server", "port", "queue", "folders", "output"}) {
    if (!places.contains(QLatin1String(name))) continue;
    print(QStringLiteral("%1  %2")
              .arg(QLatin1String(name), -7)
              .arg(places.value(QLatin1String(name)).toString()));
  }
}

int run(const DemoCommand& command) {
  const kesto::StopSignal stop;
  kesto::DemoPrinter printer(command.setup);
  if (Outcome started = printer.start(); !started) return fail(started.reason());
  printWhereabouts(printer.whereabouts(), command.json);
  if (Outcome written = kesto::flushOutput(); !written) return fail(written.reason());
  return QCoreApplication::exec();
}

int listJobs(const DemoCommand& command) {
  QJsonObject answer;
  const Outcome asked = kesto::askPrinter(kesto::controlPath(command.setup.directory),
                                          {{QStringLiteral("do"), QStringLiteral("jobs")}}, &answer);
  if (!asked) return fail(asked.reason());
  const QJsonArray jobs = answer.value(QStringLiteral("jobs")).toArray();
  if (command.json) {
    printJson(QJsonDocument(jobs));
    return 0;
  }
  for (const QJsonValue job : jobs) {
    print(QStringLiteral("%1  %2  %3  %4")
              .arg(job[QStringLiteral("job")].toInt(), 4)
              .arg(job[QStringLiteral("state")].toString(), -7)
              .arg(kesto::shownText(job[QStringLiteral("user")].toString()), -12)
              .arg(kesto::shownText(job[QStringLiteral("name")].toString())));
  }
  return 0;
}

int release(const DemoCommand& command) {
  QJsonObject answer;
  const Outcome asked = kesto::askPrinter(kesto::controlPath(command.setup.directory),
                                          {{QStringLiteral("do"), QStringLiteral("release")},
                                           {QStringLiteral("job"), command.job},
                                           {QStringLiteral("passCode"), command.passCode}},
                                          &answer);
  if (!asked) return fail(asked.reason());
  const QString word = answer.value(QStringLiteral("release")).toString();
  if (word == kesto::wordOf(kesto::Release::Printed)) return 0;
  fail(QStringLiteral("job %1: %2").arg(command.job).arg(word));
  return word == kesto::wordOf(kesto::Release::Refused) ? exitRefused : exitFailed;
}

int setFault(const DemoCommand& command) {
  const kesto::PrinterFault* fault = command.setup.fault;
  QJsonObject answer;
  const Outcome asked =
      kesto::askPrinter(kesto::controlPath(command.setup.directory),
                        {{QStringLiteral("do"), QStringLiteral("fault")},
                         {QStringLiteral("fault"), QLatin1String(fault == nullptr ? "" : fault->name)}},
                        &answer);
  if (!asked) return fail(asked.reason());
  const QJsonValue error = answer.value(QStringLiteral("error"));
  return error.isString() ? fail(error.toString()) : 0;
}

int perform(const DemoCommand& command) {
  switch (command.kind) {
    case DemoCommand::Kind::Run:
      return run(command);
    case DemoCommand::Kind::ListMisbehaviours:
      return listMisbehaviours();
    case DemoCommand::Kind::Jobs:
      return listJobs(command);
    case DemoCommand::Kind::Fault:
      return setFault(command);
    case DemoCommand::Kind::Release:
      break;
  }
  return release(command);
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  DemoCommand command;
  const std::optional<int> ended = kesto::parseDemoCommand(argc, argv, &command);
  return kesto::endOfOutput("kesto-demo-printer", ended ? *ended : perform(command));
}
