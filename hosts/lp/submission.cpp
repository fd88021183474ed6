#include "hosts/lp/submission.h"

#include <unistd.h>

#include <QtCore/QJsonDocument>
#include <QtCore/QSysInfo>
#include <algorithm>
#include <iostream>

#include "hosts/command/held_signals.h"
#include "hosts/command/output.h"
#include "hosts/cups/option_array.h"
#include "hosts/lp/lp_texts.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

// An upload below this is over before a person has read a line about it.
constexpr qint64 longUpload = qint64{4} * 1024 * 1024;

// Shows how far an upload is, on one line of the terminal.
class ProgressLine {
 public:
  ~ProgressLine() {
    if (m_isShown) std::cerr << "\r\033[K" << std::flush;
  }

  void show(int document, qint64 sent, qint64 total) {
    if (sent < longUpload || sent - m_last < longUpload / 4) return;
    m_last = sent;
    m_isShown = true;
    QString text = total > 0 ? LpTexts::tr("sending document %1: %2 MiB, %3 %")
                             : LpTexts::tr("sending document %1: %2 MiB");
    text = text.arg(document).arg(sent / 1048576);
    if (total > 0) text = text.arg(100 * sent / total);
    std::cerr << "\r\033[K" << text.toStdString() << std::flush;
  }

 private:
  qint64 m_last = 0;
  bool m_isShown = false;
};

// A printer that is its own server knows the standard's names alone.
PrintJob jobOf(const Options& options, const QString& queue, const JobOptions& given,
               const QMap<QString, QString>& settings) {
  PrintJob job{.title = titleOf(options),
               .files = {},
               .options = isPrinterUri(queue) ? given.travelling() : given.asGiven()};
  job.isRaw = given.goesRaw();
  for (const QByteArray& file : options.files)
    job.files.push_back({.path = file});
  if (options.mail) {
    job.options.insert(
        QStringLiteral("notify-recipient-uri"),
        QStringLiteral("mailto:%1@%2").arg(QString::fromUtf8(cupsUser()), QSysInfo::machineHostName()));
  }
  // The panel's word is the last on its own keys.
  job.options.insert(settings);
  return job;
}

}  // namespace

QString titleOf(const Options& options) {
  if (options.title) return *options.title;
  const QByteArray first = options.files.value(0, "-");
  return first == "-" ? QStringLiteral("(stdin)") : shownFileName(first);
}

Outcome submit(PrintServer& server, const QString& queue, const Options& options, const JobOptions& given,
               const QMap<QString, QString>& settings, int* id, QJsonObject facts) {
  const PrintJob job = jobOf(options, queue, given, settings);
  {
    // Ctrl-C cancels a job that is not whole; a second one does not wait for that.
    HeldSignals signals(SA_RESETHAND);
    ProgressLine line;
    const bool isWatched = ::isatty(STDERR_FILENO) != 0 && !options.silent;
    const auto progress = [&](int document, qint64 sent, qint64 total) {
      if (isWatched) line.show(document, sent, total);
      return !signals.hasCome();
    };
    if (Outcome sent = sendJob(server, queue, job, progress, id); !sent) return sent;
    signals.drop();
  }
  if (options.silent) return Outcome::done();
  if (options.json) {
    facts.insert(QStringLiteral("job"), *id);
    std::cout << printableJson(QJsonDocument(facts)).constData() << '\n';
  } else {
    const std::size_t files = std::max(std::size_t{1}, job.files.size());
    std::cout << "request id is " << shownText(queue).toStdString() << '-' << *id << " (" << files
              << " file(s))\n";
  }
  return Outcome::done();
}

}  // namespace kesto
