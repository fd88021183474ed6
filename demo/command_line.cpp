#include "demo/command_line.h"

#include <QtCore/QFile>
#include <algorithm>
#include <iostream>
#include <limits>
#include <string>

#include "hosts/command/arguments.h"
#include "hosts/command/secret_arguments.h"
#include "hosts/command/secret_input.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

constexpr int exitFailed = 1;
constexpr qsizetype longestPassCode = 8;

struct Arguments {
  std::string directory;
  std::string output;
  std::string folders;
  std::string misbehave;
  int folderPort = 0;
  int port = 0;
  std::string passCode;
  std::string passCodeFile;
  std::string passwordFile;
};

QString textOf(const std::string& argument) {
  return QFile::decodeName(argument.c_str());
}

bool isPassCode(const std::string& text) {
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  return !text.empty() && text.size() <= longestPassCode && std::all_of(text.begin(), text.end(), isDigit);
}

// The error message for a text that is not a pass code; it does not repeat the text.
std::string faultOfPassCode(const std::string& text) {
  return isPassCode(text) ? "" : "must be 1 to 8 digits";
}

std::string faultOfMisbehaviour(const std::string& name) {
  if (name == "list" || misbehaviourNamed(QString::fromStdString(name)) != nullptr) return "";
  return "unknown misbehaviour " + name + "; --misbehave list shows all";
}

void addPlace(CLI::App& app, Arguments& arguments) {
  app.add_option("--dir", arguments.directory, "the printer's run folder, which it creates and removes")
      ->type_name("FOLDER");
}

void addJson(CLI::App& app, DemoCommand& command) {
  app.add_flag("--json", command.json, "print one line of JSON");
}

void addRun(CLI::App& app, Arguments& arguments, DemoCommand& command) {
  addPlace(app, arguments);
  addJson(app, command);
  app.add_option("--output", arguments.output,
                 "folder for printed documents, kept at the end (default: the run folder)")
      ->type_name("FOLDER");
  app.add_option("--folders", arguments.folders,
                 "the printer's folders, one name a line; a locked one is followed by a tab and \"locked\"")
      ->type_name("FILE");
  app.add_option(
         "--port", arguments.port,
         "also let the print server listen on this port of 127.0.0.1, 0 for any free one, for programs "
         "that cannot use its socket. Every user of the machine can then send jobs to it")
      ->type_name("PORT")
      ->transform(wholeNumber("the port must be between %1 and %2", 0, 65535));
  app.add_option("--folder-port", arguments.folderPort,
                 "port of the folder service, 0 for any free one (default: 80 if possible, else any)")
      ->type_name("PORT")
      ->transform(wholeNumber("the port must be between %1 and %2", 0, 65535));
  app.add_option("--misbehave", arguments.misbehave, "make the folder service misbehave; \"list\" shows how")
      ->type_name("NAME")
      ->check(faultOfMisbehaviour);
  app.add_option("--password-file", arguments.passwordFile,
                 "ask for a user name and the password in this file's first line with every job")
      ->type_name("FILE");
  app.add_option("--queues", command.setup.queues, "create this many queues, to try long lists")
      ->transform(wholeNumber("the number must be between %1 and %2", 1, 9999));
  for (const PrinterFault& fault : printerFaults()) {
    app.add_flag_callback(
        "--" + std::string(fault.name), [&command, &fault] { command.setup.fault = &fault; },
        "begin with a fault: " + std::string(fault.description));
  }
  app.add_flag("--folders-only", command.setup.foldersOnly, "run only the folder service");
}

void addFault(CLI::App& app, Arguments& arguments, DemoCommand& command) {
  std::vector<std::string> names;
  for (const PrinterFault& fault : printerFaults())
    names.emplace_back(fault.name);
  names.emplace_back("none");
  CLI::App* fault =
      app.add_subcommand("fault", "give the running printer a fault, or clear it with \"none\"");
  addPlace(*fault, arguments);
  const auto take = [&command](const std::string& name) {
    command.kind = DemoCommand::Kind::Fault;
    command.setup.fault = printerFaultNamed(QString::fromStdString(name));
  };
  fault->add_option_function<std::string>("FAULT", take)->required()->check(oneOf(names));
}

void addCommands(CLI::App& app, Arguments& arguments, DemoCommand& command) {
  app.require_subcommand(0, 1);
  CLI::App* jobs = app.add_subcommand("jobs", "list what the running printer holds and has printed");
  addPlace(*jobs, arguments);
  addJson(*jobs, command);
  jobs->callback([&command] { command.kind = DemoCommand::Kind::Jobs; });
  addFault(app, arguments, command);
  CLI::App* release =
      app.add_subcommand("release", "print a held job; exits with 3 if the pass code is wrong");
  addPlace(*release, arguments);
  release->add_option("JOB", command.job, "the job's number")
      ->required()
      ->transform(wholeNumber("the number must be between %1 and %2", 1, std::numeric_limits<int>::max()));
  CLI::Option* pin = release
                         ->add_option("--pin", arguments.passCode,
                                      "the job's pass code; other users may see it on the command line")
                         ->type_name("N")
                         ->check(faultOfPassCode);
  release
      ->add_option("--pin-file", arguments.passCodeFile,
                   "file with the pass code in its first line, \"-\" for standard input")
      ->type_name("FILE")
      ->excludes(pin);
  release->callback([&command] { command.kind = DemoCommand::Kind::Release; });
}

Outcome readPassCode(const QString& path, QString* passCode) {
  QFile file(path);
  const bool isOpen = path == u"-" ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
  if (!isOpen) return Outcome::failed(path + QStringLiteral(": ") + file.errorString());
  const QByteArray line = file.readLine().trimmed();
  if (!isPassCode(line.toStdString()))
    return Outcome::failed(path + QStringLiteral(": the first line must be 1 to 8 digits"));
  *passCode = QString::fromLatin1(line);
  return Outcome::done();
}

// The exit status when the program is to end, after the help or a fault has been printed.
std::optional<int> parse(CLI::App& app, int argc, char** argv) {
  try {
    app.parse(argc, argv);
    return std::nullopt;
  } catch (const CLI::Success& help) {
    return app.exit(help);
  } catch (const CLI::ParseError& error) {
    return failUsage("kesto-demo-printer", faultOf(app, error));
  }
}

// Converts the arguments, and reads the files that they name.
Outcome complete(const Arguments& arguments, DemoCommand* command) {
  DemoSetup& setup = command->setup;
  setup.directory = arguments.directory.empty() ? RunFolder::standardPath() : textOf(arguments.directory);
  if (!arguments.output.empty()) setup.output = textOf(arguments.output);
  if (arguments.misbehave == "list") {
    command->kind = DemoCommand::Kind::ListMisbehaviours;
  } else if (!arguments.misbehave.empty()) {
    setup.behaviour = *misbehaviourNamed(QString::fromStdString(arguments.misbehave));
  }
  command->passCode = QString::fromStdString(arguments.passCode);
  if (!arguments.passwordFile.empty()) {
    QString password;
    if (Outcome read = readSecretLine(textOf(arguments.passwordFile), &password); !read) return read;
    setup.password = password.toUtf8();
  }
  if (!arguments.passCodeFile.empty())
    return readPassCode(textOf(arguments.passCodeFile), &command->passCode);
  return arguments.folders.empty() ? Outcome::done() : readFolders(textOf(arguments.folders), &setup.folders);
}

}  // namespace

std::optional<int> parseDemoCommand(int argc, char** argv, DemoCommand* command) {
  Arguments arguments;
  CLI::App app("Runs a simulated Kesto VQ-250n with a private print scheduler until Ctrl-C.",
               "kesto-demo-printer");
  addRun(app, arguments, *command);
  addCommands(app, arguments, *command);
  addVersion(app, "kesto-demo-printer");
  refuseFlagValues(app);
  const std::optional<int> ended = parse(app, argc, argv);
  wipeSecretArguments(argc, argv);
  if (ended) return ended;
  if (app.count("--folder-port") > 0) command->setup.folderPort = static_cast<quint16>(arguments.folderPort);
  if (app.count("--port") > 0) command->setup.port = static_cast<quint16>(arguments.port);
  const Outcome completed = complete(arguments, command);
  if (completed) return std::nullopt;
  std::cerr << "kesto-demo-printer: " << shownText(completed.reason()).toStdString() << '\n';
  return exitFailed;
}

}  // namespace kesto
