// kesto-lp with the demo printer: the real scheduler, the queue's filter and the printer.
#pragma once

#include "hosts/cups/print_job.h"
#include "tests/support/lp_program.h"

namespace kesto::test {

class PrintTest : public LpTest {
 protected:
  PrintTest() {
    m_folder.write(u"document"_s, m_document);
    m_folder.write(u"second"_s, "another\n");
    m_folder.write(u"folders"_s, "Invoices\nPlans & <Papers>\tlocked\n");
    startPrinter();
  }
  void startPrinter(const QStringList& more = {}) {
    m_printer.reset();
    m_printer.emplace(m_folder,
                      QStringList{u"--port"_s, u"0"_s, u"--folders"_s, m_folder.path(u"folders"_s)} + more);
  }

  // kesto-lp for the demo printer's server; "DOCUMENT" and "SECOND" are replaced by files.
  QString command(QString arguments) const {
    for (const QString& file : {u"DOCUMENT"_s, u"SECOND"_s})
      arguments.replace(file, m_folder.path(file.toLower()));
    return u"-h %1 -U anna "_s.arg(m_printer->place(u"server"_s)) + arguments;
  }
  LpRun lp(const QString& arguments, const QByteArray& input = {}) const {
    return run(command(arguments), input);
  }
  QJsonValue jsonOf(const QString& arguments) const {
    const auto json = QJsonDocument::fromJson(lp(arguments).out.toUtf8());
    return json.isArray() ? QJsonValue(json.array()) : QJsonValue(json.object());
  }
  void expectPrinted(const QString& arguments, const QByteArray& input = {}) const {
    const LpRun printed = lp(arguments, input);
    EXPECT_EQ(printed.code, 0) << arguments << '\n' << printed.err;
  }
  void expectRefused(const QString& arguments, int code, const QString& message) const {
    const LpRun refused = lp(arguments);
    EXPECT_EQ(refused.code, code) << arguments;
    EXPECT_EQ(refused.err.trimmed().section(u'\n', -1), u"kesto-lp: "_s + message) << arguments;
    EXPECT_EQ(refused.out, QString()) << arguments;
  }

  QString ofPrintSystem(const QString& command) const { return m_printer->ofPrintSystem(command); }
  QString schedulersJobs() const { return ofPrintSystem(u"lpstat -W all -o"_s); }
  void waitUntilListed(int job) const {
    waitFor([&] { return schedulersJobs().contains(u"Office_MFP-%1 "_s.arg(job)); });
  }
  // Adds a queue with the demo queue's PPD, one text in it replaced; without a PPD when that is empty.
  void addQueue(const QString& name, const QByteArray& before, const QByteArray& after) const {
    const QString ppd = before.isEmpty() ? QString() : u" -P "_s + m_folder.path(u"ppd"_s);
    m_folder.write(u"ppd"_s,
                   bytesOf(builtProgram(u"../share/kesto/kesto-vq250n.ppd"_s)).replace(before, after));
    ofPrintSystem(u"/usr/sbin/lpadmin -p %1 -E -v socket://127.0.0.1:9"_s.arg(name) + ppd);
  }

  // Makes the queue's filter record its arguments before it does its work.
  void recordFilter() const {
    const QString filter = m_folder.path(u"run/cups/bin/filter/kesto-demo-filter"_s);
    ASSERT_TRUE(QFile::rename(filter, m_folder.path(u"run/cups/bin/filter/recorded"_s)));
    m_folder.write(u"run/cups/bin/filter/kesto-demo-filter"_s,
                   "#!/bin/sh\nprintf '%s\\0' \"$@\" > \"$TMPDIR/arguments-$1\"\n"
                   "exec \"$CUPS_SERVERBIN/filter/recorded\" \"$@\"\n");
    const QFile::Permissions program = QFile::permissions(m_folder.path(u"run/cups/bin/filter/recorded"_s));
    ASSERT_TRUE(QFile::setPermissions(filter, program));
  }
  // The filter's arguments: job, user, title, copies, options.
  QStringList filterArguments(int job) const {
    const QByteArray bytes = bytesOf(m_folder.path(u"run/cups/spool/tmp/arguments-%1"_s.arg(job)));
    return QString::fromUtf8(bytes).split(u'\0');
  }
  QJsonObject arrivedSettings(int job) const {
    QJsonObject settings;
    const QMap<QString, QString> options = parseJobOptions(filterArguments(job).value(4));
    for (auto it = options.begin(); it != options.end(); ++it) {
      if (it.key().startsWith(QLatin1String(printSettingsPrefix))) settings.insert(it.key(), it.value());
    }
    return settings;
  }
  void waitForJob(int job, int documents = 1) {
    for (int i = 0; i < documents; ++i)
      m_printer->waitForLog("job %1 from anna: "_ba.replace("%1", QByteArray::number(job)));
  }

  const QByteArray m_document = pdfDocument();
  std::optional<RunningPrinter> m_printer;
};

}  // namespace kesto::test
