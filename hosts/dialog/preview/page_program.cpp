#include "hosts/dialog/preview/page_program.h"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QtCore/QProcess>
#include <csignal>

namespace kesto {
namespace {

constexpr qsizetype longestOutput = qsizetype{64} << 20;
constexpr qsizetype mostErrors = qsizetype{64} << 10;
constexpr rlim_t largestFile = rlim_t{4} << 30;
#ifdef __SANITIZE_ADDRESS__
constexpr rlim_t largestMemory = RLIM_INFINITY;  // the address sanitizer reserves far more
#else
constexpr rlim_t largestMemory = rlim_t{1} << 30;
#endif

void limit(__rlimit_resource resource, rlim_t most) {
  const rlimit limits{.rlim_cur = most, .rlim_max = most};
  (void)::setrlimit(resource, &limits);
}

// Runs in the child before the program, so it makes only calls that are safe there.
void confine(pid_t parent, std::chrono::milliseconds longest) {
  (void)::setpgid(0, 0);
  (void)::prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (::getppid() != parent) ::_exit(EXIT_FAILURE);  // it has ended already
  limit(RLIMIT_CPU, static_cast<rlim_t>(longest.count() / 1000 + 1));
  limit(RLIMIT_CORE, 0);
  limit(RLIMIT_FSIZE, largestFile);
  limit(RLIMIT_AS, largestMemory);
}

void end(QProcess& process) {
  process.disconnect();
  if (process.processId() > 0) (void)::kill(-static_cast<pid_t>(process.processId()), SIGKILL);
  process.kill();
  process.waitForFinished();
}

}  // namespace

PageProgram::PageProgram(std::chrono::milliseconds limit) {
  m_limit.setSingleShot(true);
  m_limit.setInterval(limit);
  connect(&m_limit, &QTimer::timeout, this, [this] { finish(End::Late); });
}

PageProgram::~PageProgram() {
  stop();
}

void PageProgram::start(const Work& work) {
  stop();
  m_process = std::make_unique<QProcess>();
  // In some locales the page's fonts would be replaced by ones that lack its letters.
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
  m_process->setProcessEnvironment(environment);
  m_process->setStandardInputFile(work.input.isNull() ? QProcess::nullDevice() : work.input);
  if (!work.output.isNull()) m_process->setStandardOutputFile(work.output);
  m_process->setChildProcessModifier(
      [parent = ::getpid(), longest = m_limit.intervalAsDuration()] { confine(parent, longest); });
  connect(m_process.get(), &QProcess::finished, this, [this](int code, QProcess::ExitStatus status) {
    finish(code == 0 && status == QProcess::NormalExit ? End::Done : End::Failed);
  });
  connect(
      m_process.get(), &QProcess::errorOccurred, this,
      [this, process = m_process.get()](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart && process == m_process.get()) finish(End::Missing);
      },
      Qt::QueuedConnection);
  connect(m_process.get(), &QProcess::readyReadStandardOutput, this, &PageProgram::takeOutput);
  connect(m_process.get(), &QProcess::readyReadStandardError, this, &PageProgram::takeErrors);
  m_output.clear();
  m_errors.clear();
  m_limit.start();
  m_process->start(work.program, work.arguments);
}

void PageProgram::finish(End outcome) {
  m_limit.stop();
  m_output += m_process->readAllStandardOutput();
  takeErrors();
  end(*m_process);
  m_process.release()->deleteLater();  // it may be the sender of this signal
  Q_EMIT ended(outcome);
}

void PageProgram::takeOutput() {
  m_output += m_process->readAllStandardOutput();
  if (m_output.size() > longestOutput) finish(End::Failed);
}

// A program may complain about each object of a document.
void PageProgram::takeErrors() {
  const QByteArray more = m_process->readAllStandardError();
  m_errors += more.first(qMin(more.size(), mostErrors - m_errors.size()));
}

void PageProgram::stop() {
  m_limit.stop();
  if (!m_process) return;
  end(*m_process);
  m_process.reset();
}

}  // namespace kesto
