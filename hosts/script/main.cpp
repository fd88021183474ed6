// kesto-panel: a Job Handling panel driven by a script on standard input.
#include <CLI/CLI.hpp>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <iostream>
#include <string>

#include "hosts/command/arguments.h"
#include "hosts/command/output.h"
#include "hosts/script/script_session.h"
#include "platform/bundle.h"

namespace {

using kesto::Outcome;

struct Options {
  std::string ppd;
  std::string deviceUri;
  std::string queue;
  std::string settings;
  std::string jobName;
  bool noConstraintHandling = false;
  bool noPrintSettings = false;
};

Outcome readSettings(const QString& path, kesto::PrintSettings* settings) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    return Outcome::failed(path + QStringLiteral(": ") + file.errorString());
  QJsonParseError fault;
  const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &fault);
  if (!document.isObject())
    return Outcome::failed(path + QStringLiteral(": not a JSON object of print settings"));
  const QJsonObject values = document.object();
  for (auto it = values.begin(); it != values.end(); ++it) {
    if (!it.value().isString())
      return Outcome::failed(path + QStringLiteral(": the value of %1 is not a string").arg(it.key()));
    settings->setValue(it.key(), it.value().toString());
  }
  return Outcome::done();
}

Outcome prepare(const CLI::App& app, const Options& options, kesto::PpdFile* ppd, kesto::PanelHost* host) {
  host->handlesConstraints = !options.noConstraintHandling;
  if (app.count("--queue") > 0) {
    kesto::Printer printer{.id = QString::fromStdString(options.queue), .deviceUri = {}};
    if (app.count("--device-uri") > 0) printer.deviceUri = QString::fromStdString(options.deviceUri);
    host->session.currentPrinter = printer;
  }
  if (!options.noPrintSettings) {
    host->settings.emplace();
    if (app.count("--job-name") > 0) host->settings->setJobName(QString::fromStdString(options.jobName));
    if (app.count("--settings") > 0) {
      if (Outcome read = readSettings(QString::fromStdString(options.settings), &*host->settings); !read)
        return read;
    }
  }
  if (app.count("--ppd") == 0) return Outcome::done();
  Outcome opened = kesto::openPpdFile(QString::fromStdString(options.ppd), ppd);
  host->ppd = ppd->get();
  return opened;
}

int serve(kesto::ScriptSession& session) {
  for (std::string line; !session.isOver() && std::cout && std::getline(std::cin, line);) {
    const QJsonObject answer = session.answer(QByteArray::fromStdString(line));
    std::cout << QJsonDocument(answer).toJson(QJsonDocument::Compact).constData() << std::endl;
  }
  return 0;
}

int run(int argc, char** argv) {
  const QtMessageHandler usual = qInstallMessageHandler(kesto::ignoreMessage);
  const QCoreApplication application(argc, argv);
  qInstallMessageHandler(usual);
  CLI::App app("Drives a Job Handling panel with JSON commands on standard input, one object per line.",
               "kesto-panel");
  Options options;
  app.add_option("--ppd", options.ppd, "PPD file of the current printer")->type_name("FILE");
  app.add_option("--device-uri", options.deviceUri, "device URI of the current printer")->type_name("URI");
  app.add_option("--queue", options.queue,
                 "identifier of the current printer's queue (default: no current printer)")
      ->type_name("ID");
  app.add_option("--settings", options.settings, "JSON object of print settings to start from")
      ->type_name("FILE");
  app.add_option("--job-name", options.jobName, "the job's own name")->type_name("NAME");
  app.add_flag("--no-constraint-handling", options.noConstraintHandling,
               "act as a host that handles no constraints");
  app.add_flag("--no-print-settings", options.noPrintSettings, "act as a host without print settings");
  kesto::addVersion(app, "kesto-panel");
  try {
    app.parse(argc, argv);
  } catch (const CLI::Success& help) {
    return app.exit(help);
  } catch (const CLI::ParseError& error) {
    return kesto::failUsage("kesto-panel", kesto::faultOf(app, error));
  }

  kesto::AlertRecorder alerts;
  std::shared_ptr<const kesto::Bundle> bundle;
  kesto::PrintDialogPlugIn* plugIn = nullptr;
  const auto fail = [](const Outcome& outcome) {
    std::cerr << "kesto-panel: " << outcome.reason().toStdString() << '\n';
    return 1;
  };
  if (Outcome loaded = kesto::loadJobHandlingBundle(&bundle, &plugIn); !loaded) return fail(loaded);
  kesto::SystemPlatform platform(bundle, alerts);
  kesto::PpdFile ppd;
  kesto::PanelHost host(platform);
  if (Outcome prepared = prepare(app, options, &ppd, &host); !prepared) return fail(prepared);
  if (Outcome opened = host.openPanel(*plugIn); !opened) return fail(opened);
  kesto::ScriptSession session(host, *plugIn, alerts);
  return serve(session);
}

}  // namespace

int main(int argc, char** argv) {
  return kesto::endOfOutput("kesto-panel", run(argc, argv));
}
