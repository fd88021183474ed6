#include "hosts/dialog/options.h"

#include <fcntl.h>

#include <iostream>

#include "hosts/command/arguments.h"
#include "hosts/command/server_options.h"
#include "hosts/cups/print_job.h"

namespace kesto {
namespace {

constexpr char help[] = R"(usage: kesto-print [OPTION]... [FILE]...
Shows the print dialog for the files, or for a document in standard input.

  -d QUEUE                  the queue; without it the default queue
  -t TITLE                  the job's title; without it the document's name
  -n COPIES                 copies to start with
  -o NAME=VALUE             an option of the job, again for more
  -h HOST[:PORT]            the print server        -U NAME  the user to be
  -E                        encrypt                 --timeout SECONDS  (5) wait no longer
  --pane NAME               open this section: general, layout, job-handling, job, more or summary
  --screenshot FILE         write a picture of the dialog, and end
  --timings                 print how long the start took, and end
  --help, --version         this text, or the version

Ends with 0 when the job was sent, 1 when it was not, 2 for a wrong command line.
)";

std::string faultOfDescriptor(const std::string& number) {
  return ::fcntl(std::stoi(number), F_GETFD) < 0 ? "must be an open descriptor" : "";
}

class CommandLine {
 public:
  explicit CommandLine(PrintOptions* options) : m_options(*options) {
    m_app.set_help_flag("--help");
    addText("-d", &m_options.queue);
    addText("-t", &m_options.title);
    addServerOptions(m_app, &m_options.server);
    addText("--screenshot", &m_options.screenshot);
    addText("--pane", &m_options.pane)
        ->check(oneOf({"general", "layout", "job-handling", "job", "more", "summary"}));
    m_app.add_flag("--timings", m_options.timings);
    const auto setCopies = [this](const std::string& copies) {
      m_options.jobOptions.insert(QStringLiteral("copies"), QString::fromStdString(copies));
    };
    m_app.add_option_function<std::string>("-n", setCopies)
        ->transform(wholeNumber("copies must be between %1 and %2", 1, 9999));
    m_app.add_option("--portal", m_options.channel)
        ->transform(wholeNumber("the descriptor must be between %1 and %2", 3, 1 << 20))
        ->check(faultOfDescriptor);
    const auto addOption = [this](const std::vector<std::string>& texts) {
      for (const std::string& text : texts)
        m_options.jobOptions.insert(parseJobOptions(QString::fromStdString(text)));
    };
    m_app.add_option_function<std::vector<std::string>>("-o", addOption)->allow_extra_args(false);
    const auto addFiles = [this](const std::vector<std::string>& files) {
      for (const std::string& file : files)
        m_options.files.append(QByteArray::fromStdString(file));
    };
    m_app.add_option_function<std::vector<std::string>>("files", addFiles);
    addVersion(m_app, "kesto-print");
    refuseFlagValues(m_app);
  }

  std::optional<int> parse(int argc, char** argv) {
    try {
      m_app.parse(argc, argv);
      return std::nullopt;
    } catch (const CLI::CallForHelp&) {
      std::cout << help;
      return 0;
    } catch (const CLI::CallForVersion& version) {
      return m_app.exit(version);
    } catch (const CLI::ParseError& error) {
      return failUsage("kesto-print", faultOf(m_app, error));
    }
  }

 private:
  CLI::Option* addText(const std::string& name, QString* value) {
    return m_app.add_option_function<std::string>(
        name, [value](const std::string& text) { *value = QString::fromStdString(text); });
  }

  PrintOptions& m_options;
  CLI::App m_app;
};

}  // namespace

std::optional<int> parsePrintOptions(int argc, char** argv, PrintOptions* options) {
  return CommandLine(options).parse(argc, argv);
}

}  // namespace kesto
