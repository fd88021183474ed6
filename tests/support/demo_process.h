// The real kesto-demo-printer, and the programs that use it, in a private folder of the test.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QEventLoop>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <csignal>

#include "hosts/cups/print_server.h"
#include "tests/support/printing.h"

namespace kesto::test {

using namespace Qt::StringLiterals;

/// Handles events until a condition holds, and checks it regularly, because deferred deletions and other
/// processes do not wake the event loop.
inline void waitFor(const std::function<bool()>& isSo) {
  const QDeadlineTimer deadline(std::chrono::seconds(30));
  QTimer wake;
  wake.start(20);
  while (!isSo()) {
    ASSERT_FALSE(deadline.hasExpired()) << "timed out";
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

/// A document that begins like a PDF and contains every byte value.
inline QByteArray pdfDocument() {
  QByteArray document = "%PDF-1.4\n";
  for (unsigned i = 0; i < 200'000; ++i)
    document += static_cast<char>(i * i % 251);
  return document;
}

/// A private place for everything that the programs write.
class ScratchFolder {
 public:
  ScratchFolder() {
    // A scheduler started by root runs its jobs under another account, which must reach the folders below.
    QFile::setPermissions(m_folder.path(),
                          QFile::permissions(m_folder.path()) | QFile::ExeGroup | QFile::ExeOther);
  }
  QString path(const QString& name) const { return m_folder.filePath(name); }
  void write(const QString& name, const QByteArray& bytes) const { writeFile(path(name), bytes); }
  /// Writes a script for the shell that may be run.
  void writeProgram(const QString& name, const QByteArray& script) const {
    QFile::remove(path(name));
    write(name, "#!/bin/sh\n" + script);
    QFile::setPermissions(path(name), QFile::ReadOwner | QFile::ExeOwner);
  }

 private:
  QTemporaryDir m_folder;
};

/// Makes programs find a scheduler that edits its configuration and its list of queues before it starts.
inline void changeScheduler(const ScratchFolder& folder, const QByteArray& edits) {
  QDir().mkdir(folder.path(u"bin"_s));
  folder.writeProgram(u"bin/cupsd"_s, "sed -i '" + edits +
                                          "' \"$3\" \"${3%cupsd.conf}printers.conf\"\n"
                                          "cp /usr/sbin/cupsd \"$0-copy\" && exec \"$0-copy\" \"$@\"\n");
  qputenv("PATH", QFile::encodeName(folder.path(u"bin:"_s)) + qgetenv("PATH"));
}

/// An environment in which every writable place is in this folder.
inline QProcessEnvironment environmentIn(const ScratchFolder& folder) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const auto* place : {"HOME", "TMPDIR", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
    environment.insert(QLatin1String(place), folder.path(u""_s));
  environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
  return environment;
}

inline QString builtProgram(const QString& name) {
  return QCoreApplication::applicationDirPath() + u'/' + name;
}

/// A process that the test follows by its output, and that ends with this object.
class DemoProcess : public QProcess {
 public:
  DemoProcess(const ScratchFolder& folder, const QString& program, const QStringList& arguments) {
    setProcessEnvironment(environmentIn(folder));
    start(program.startsWith(u"kesto-") ? builtProgram(program) : program, arguments);
  }
  /// `command` is split as by a shell; "%1" is the folder.
  DemoProcess(const ScratchFolder& folder, const QString& command)
      : DemoProcess(folder, splitCommand(command).value(0),
                    splitCommand(command).replaceInStrings(u"%1"_s, folder.path(u""_s)).mid(1)) {}
  ~DemoProcess() override {
    terminate();
    waitForFinished();
  }

  /// The next line on standard output; empty when the process ends first.
  QByteArray readOutLine() {
    setReadChannel(StandardOutput);
    while (!canReadLine() && waitForReadyRead()) {
    }
    return readLine();
  }
  /// The answer in JSON to a line on standard input.
  QJsonObject ask(const QByteArray& line) {
    write(line + '\n');
    return QJsonDocument::fromJson(readOutLine()).object();
  }
  /// Waits until a line on standard error contains `part`.
  void waitForLog(const QByteArray& part) {
    setReadChannel(StandardError);
    do {
      while (canReadLine()) {
        m_log += readLine();
        if (m_log.endsWith('\n') && m_log.contains(part)) return;
      }
    } while (waitForReadyRead());
    ADD_FAILURE() << part.toStdString() << " is not in the log:\n" << m_log.toStdString();
  }
  /// Waits for the end and returns the exit status.
  int code() {
    EXPECT_TRUE(waitForFinished()) << errorString().toStdString();
    return exitStatus() == NormalExit ? exitCode() : -1;
  }
  /// Everything on standard output of a program that must succeed.
  QByteArray output() {
    EXPECT_EQ(code(), 0) << program() << arguments().join(u' ') << log();
    return readAllStandardOutput();
  }
  void signal(int number) { ::kill(static_cast<pid_t>(processId()), number); }
  QByteArray log() {
    m_log += readAllStandardError();
    return m_log;
  }

 private:
  QByteArray m_log;
};

/// A running demo printer.
class RunningPrinter : public DemoProcess {
 public:
  explicit RunningPrinter(const ScratchFolder& folder, const QStringList& arguments = {})
      : DemoProcess(folder, u"kesto-demo-printer"_s,
                    QStringList{u"--dir"_s, folder.path(u"run"_s), u"--folder-port"_s, u"0"_s, u"--json"_s} +
                        arguments),
        m_folder(folder),
        m_places(QJsonDocument::fromJson(readOutLine()).object()) {
    EXPECT_FALSE(m_places.isEmpty()) << log().toStdString();
  }

  /// The places that it prints: "server", "folders" and so on.
  QString place(const QString& name) const { return m_places.value(name).toString(); }
  QStringList printouts() const { return QDir(place(u"output"_s)).entryList(QDir::Files); }
  /// Its jobs, from its list in JSON.
  QByteArray jobs() const {
    return DemoProcess(m_folder, u"kesto-demo-printer jobs --dir %1/run --json"_s).output().trimmed();
  }
  /// What a program of the print system prints.
  QString ofPrintSystem(const QString& command) const {
    const QString name = command.section(u' ', 0, 0);
    const QString server = u" -h "_s + place(u"server"_s);
    return QString::fromUtf8(DemoProcess(m_folder, name + server + command.sliced(name.size())).output());
  }
  /// What the scheduler says about a job to a user. It believes any user name that its owner's programs give.
  QMap<QString, QString> attributesOfJob(int job, const QByteArray& user) const {
    std::unique_ptr<PrintServer> server;
    EXPECT_TRUE(PrintServer::connect(place(u"server"_s), std::chrono::seconds(5), &server));
    const Ipp request(ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr,
                 "ipp://localhost/jobs/" + QByteArray::number(job));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, user);
    Ipp reply;
    EXPECT_TRUE(server->request(request.get(), &reply));
    QMap<QString, QString> attributes;
    for (auto* each = ippFirstAttribute(reply.get()); each != nullptr; each = ippNextAttribute(reply.get())) {
      std::array<char, 2048> text{};
      ippAttributeString(each, text.data(), text.size());
      attributes.insert(QString::fromUtf8(ippGetName(each)), QString::fromUtf8(text.data()));
    }
    return attributes;
  }
  /// The exit status of the program that releases a job.
  int release(const QString& arguments) const {
    return DemoProcess(m_folder, u"kesto-demo-printer release --dir %1/run "_s + arguments).code();
  }
  /// Gives the printer a fault; "none" clears it.
  void setFault(const QString& fault) const {
    DemoProcess(m_folder, u"kesto-demo-printer fault --dir %1/run "_s + fault).output();
  }

 private:
  const ScratchFolder& m_folder;
  QJsonObject m_places;
};

}  // namespace kesto::test
