#include "hosts/dialog/options.h"

#include <fcntl.h>

#include <iostream>

#include "hosts/command/arguments.h"
#include "hosts/command/help_lines.h"
#include "hosts/command/server_options.h"
#include "hosts/cups/print_job.h"
#include "hosts/texts/terminal_texts.h"

namespace kesto {
namespace {

// The texts of this command line.
struct PrintTexts {
  Q_DECLARE_TR_FUNCTIONS(PrintTexts)
};

constexpr HelpRow helpOfJob[] = {{"-n COPIES -o NAME=VALUE -t TITLE", asUsual}};

constexpr HelpRow helpOfDialog[] = {
    {"--pane general|layout|job-handling|job|more|summary",
     QT_TRANSLATE_NOOP("PrintTexts", "open this section")},
    {"--screenshot FILE", QT_TRANSLATE_NOOP("PrintTexts", "save a picture of the dialog, and exit")},
    {"--timings", QT_TRANSLATE_NOOP("PrintTexts", "print how long the start took, and exit")},
};

std::string helpText() {
  const QString text =
      helpUsage(QStringLiteral("kesto-print")) +
      helpParagraph(PrintTexts::tr("Shows the print dialog for files, or for standard input.")) + u'\n' +
      helpOfServer() + helpLines(helpOfJob, &CommandTexts::tr) + helpLines(helpOfDialog, &PrintTexts::tr) +
      helpOfHelp() + helpParagraph(PrintTexts::tr("Ends with 0 sent, 1 not sent, 2 wrong usage."));
  return text.toStdString();
}

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
        ->transform(
            wholeNumber(QT_TRANSLATE_NOOP("CommandTexts", "copies must be between %1 and %2"), 1, 9999));
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

  /// Throws what ends the program without a dialog.
  void parse(int argc, char** argv) { m_app.parse(argc, argv); }

  /// Prints why the program ends. Answers its exit code.
  int finish(int argc, char** argv) {
    try {
      parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
      std::cout << helpText();
    } catch (const CLI::CallForVersion& version) {
      return m_app.exit(version);
    } catch (const CLI::ParseError& error) {
      return failUsage("kesto-print", faultOf(m_app, error));
    }
    return 0;
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
  try {
    CommandLine(options).parse(argc, argv);
    return std::nullopt;
  } catch (const CLI::Error&) {
    // Texts in the user's language take an application object, which is too slow to make ahead of each
    // dialog.
    int countForQt = 1;
    const QCoreApplication application(countForQt, argv);
    installTerminalTexts();
    return CommandLine(options).finish(argc, argv);
  }
}

}  // namespace kesto
