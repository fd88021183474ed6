#include "demo/scheduler.h"

#include <pwd.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QRegularExpression>
#include <QtCore/QStandardPaths>
#include <QtCore/QThread>
#include <QtCore/QUrl>
#include <QtNetwork/QLocalSocket>
#include <csignal>

#include "hosts/cups/print_server.h"
#include "platform/private_file.h"

namespace kesto {

// The account for cupsd's jobs, and the only one that may administer it.
struct Scheduler::Identity {
  unsigned int user;
  unsigned int group;
  QByteArray owner;

  static std::optional<Identity> ofProcess();
};

namespace {

constexpr std::chrono::seconds startLimit{15};
constexpr int stopLimitMs = 10'000;
constexpr char systemServerBin[] = "/usr/lib/cups";

Outcome copyFile(const QString& from, const QString& to, QFile::Permissions permissions) {
  QFile source(from);
  if (!source.copy(to))
    return Outcome::failed(
        QStringLiteral("%1 cannot be copied to %2: %3").arg(from, to, source.errorString()));
  return QFile::setPermissions(to, permissions)
             ? Outcome::done()
             : Outcome::failed(to + QStringLiteral(": cannot set its mode"));
}

// A file beside the programs, in a build as well as when installed.
QString besidePrograms(const QString& name) {
  return QCoreApplication::applicationDirPath() + u'/' + name;
}

QString findServer() {
  QString onPath = QStandardPaths::findExecutable(QStringLiteral("cupsd"));
  if (!onPath.isEmpty()) return onPath;
  // These folders are not in an ordinary user's PATH.
  return QStandardPaths::findExecutable(QStringLiteral("cupsd"),
                                        {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/local/sbin")});
}

// Runs in the child, between fork and exec: lets it end with its parent, however that ends, and keeps a
// Ctrl-C at the terminal from it.
void followParent() {
  ::prctl(PR_SET_PDEATHSIG, SIGTERM);
  ::setpgid(0, 0);
}

}  // namespace

std::optional<Scheduler::Identity> Scheduler::Identity::ofProcess() {
  if (getuid() == 0) {
    const passwd* lp = ::getpwnam("lp");
    if (lp == nullptr) return std::nullopt;
    return Identity{lp->pw_uid, lp->pw_gid, "root"};
  }
  const passwd* own = ::getpwuid(getuid());
  const QByteArray name = own == nullptr ? "" : own->pw_name;
  // A user whose name has a special meaning in the configuration does not become administrator.
  static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9_][A-Za-z0-9._-]*$"));
  const bool isPlain = plain.match(QString::fromLocal8Bit(name)).hasMatch();
  return Identity{getuid(), getgid(), isPlain ? name : "root"};
}

Scheduler::Scheduler(const RunFolder& folder) : m_folder(folder) {
  m_server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  m_server.setChildProcessModifier(followParent);
}

Scheduler::~Scheduler() {
  m_server.disconnect(this);
  if (m_server.state() == QProcess::NotRunning) return;
  m_server.terminate();
  if (m_server.waitForFinished(stopLimitMs)) return;
  m_server.kill();
  m_server.waitForFinished();
}

QString Scheduler::path(const char* name) const {
  return m_folder.path(QStringLiteral("cups/") + QLatin1String(name));
}

QString Scheduler::address() const {
  return m_folder.socketPath(QStringLiteral("server"));
}

QString Scheduler::portAddress() const {
  return m_port == 0 ? QString() : QStringLiteral("127.0.0.1:%1").arg(m_port);
}

Outcome Scheduler::start(const SchedulerSetup& setup) {
  m_setup = setup;
  const std::optional<Identity> identity = Identity::ofProcess();
  if (!identity) return Outcome::failed(QStringLiteral("no account \"lp\" to run jobs as"));
  if (setup.port) {
    if (Outcome reserved = reservePort(*setup.port); !reserved) return reserved;
  }
  if (Outcome made = makeFolders(); !made) return made;
  if (Outcome copied = copyPrograms(); !copied) return copied;
  if (Outcome written = writeConfiguration(*identity); !written) return written;
  if (getuid() == 0) {
    if (Outcome admitted = m_folder.admitGroup(identity->group); !admitted) return admitted;
  }
  return startServer();
}

// The kernel gives a bound port to no other process, and lets cupsd share it as long as nobody listens.
Outcome Scheduler::reservePort(quint16 port) {
  if (!m_reservation.bind(QHostAddress::LocalHost, port,
                          QAbstractSocket::ShareAddress | QAbstractSocket::ReuseAddressHint)) {
    return Outcome::failed(
        QStringLiteral("cannot listen on port %1: %2").arg(port).arg(m_reservation.errorString()));
  }
  m_port = m_reservation.localPort();
  return Outcome::done();
}

Outcome Scheduler::makeFolders() const {
  // The programs of jobs may run as another user, who must reach these folders; the run folder keeps all
  // others out.
  constexpr mode_t mode = 0755;
  for (const char* name : {"", "bin", "bin/daemon", "bin/filter", "bin/backend", "ppd", "spool", "spool/tmp",
                           "cache", "state"}) {
    if (Outcome made = m_folder.makeFolder(QStringLiteral("cups/") + QLatin1String(name), mode); !made)
      return made;
  }
  return Outcome::done();
}

// Where the system confines its own cupsd by its path, only a copy can work in this folder.
Outcome Scheduler::copyPrograms() const {
  constexpr QFile::Permissions program = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                         QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther |
                                         QFile::ExeOther;
  constexpr QFile::Permissions data =
      QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;
  const QString server = findServer();
  const QString launcher = QLatin1String(systemServerBin) + QStringLiteral("/daemon/cups-exec");
  if (server.isEmpty() || !QFile::exists(launcher)) {
    return Outcome::failed(QStringLiteral("cannot find cupsd; install the package cups-daemon"));
  }
  if (Outcome copied = copyFile(server, path("cupsd"), program); !copied) return copied;
  if (!QFile::link(launcher, path("bin/daemon/cups-exec"))) {
    return Outcome::failed(path("bin/daemon/cups-exec") + QStringLiteral(": cannot create the link"));
  }
  // The scheduler runs a backend that only its own user can execute as that user, and the printer listens to
  // nobody else.
  constexpr QFile::Permissions ownProgram = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
  for (const auto& [name, mode] :
       {std::pair("filter/kesto-demo-filter", program), std::pair("backend/socket", ownProgram)}) {
    const QString from = besidePrograms(QStringLiteral(KESTO_LIBEXEC_DIR "/")) + QLatin1String(name);
    if (Outcome copied = copyFile(from, path("bin/") + QLatin1String(name), mode); !copied) return copied;
  }
  const QString description = besidePrograms(QStringLiteral(KESTO_DATA_DIR "/kesto-vq250n.ppd"));
  for (int number = 1; number <= m_setup.queues; ++number) {
    const QString copy = path("ppd/") + demoQueueNumbered(number) + QStringLiteral(".ppd");
    if (Outcome copied = copyFile(description, copy, data); !copied) return copied;
  }
  return Outcome::done();
}

Outcome Scheduler::writeConfiguration(const Identity& identity) const {
  // The socket comes last, so that the port is ready when the socket answers.
  const QByteArray port = m_port == 0 ? "" : "Listen " + portAddress().toLatin1() + '\n';
  // The panel takes the printer's address from the URI's host, the backend its socket from the path.
  const QByteArray uri =
      "socket://127.0.0.1" + QUrl::toPercentEncoding(m_setup.printerSocket, QByteArrayLiteral("/"));
  const SchedulerValues values{.listen = port + "Listen " + QFile::encodeName(address()),
                               .root = QFile::encodeName(path("")).chopped(1),
                               .user = QByteArray::number(identity.user),
                               .group = QByteArray::number(identity.group),
                               .owner = identity.owner,
                               .printer = uri,
                               .queues = m_setup.queues,
                               .asksForPassword = m_setup.asksForPassword};
  for (const auto& [name, text] : configurationOf(values)) {
    if (Outcome written = writePrivateFile(path(name), text); !written) return written;
  }
  return Outcome::done();
}

Outcome Scheduler::startServer() {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  // On the system's bus cupsd would register the queue with the colour manager.
  environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"),
                     QStringLiteral("unix:path=") + path("no-bus"));
  m_server.setProcessEnvironment(environment);
  m_server.start(path("cupsd"), {QStringLiteral("-f"), QStringLiteral("-c"), path("cupsd.conf"),
                                 QStringLiteral("-s"), path("cups-files.conf")});
  if (!m_server.waitForStarted())
    return Outcome::failed(QStringLiteral("cannot start cupsd: ") + m_server.errorString());
  if (!waitUntilItAnswers()) return Outcome::failed(QStringLiteral("cupsd does not answer: ") + lastFault());
  m_reservation.close();
  connect(&m_server, &QProcess::finished, this, &Scheduler::died);
  return Outcome::done();
}

Outcome Scheduler::pause(const char* message) {
  const bool pauses = message != nullptr;
  if (!pauses && !m_isPaused) return Outcome::done();
  std::unique_ptr<PrintServer> server;
  Outcome done = PrintServer::connect(address(), startLimit, &server);
  for (int number = 1; done && number <= m_setup.queues; ++number) {
    const Ipp request = requestTo(pauses ? IPP_OP_PAUSE_PRINTER : IPP_OP_RESUME_PRINTER,
                                  uriOfQueue(demoQueueNumbered(number)));
    if (pauses)
      ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_TEXT, "printer-state-message", nullptr, message);
    Ipp reply;
    done = server->order(request.get(), "/admin/", &reply);
  }
  if (done) m_isPaused = pauses;
  return done;
}

bool Scheduler::waitUntilItAnswers() {
  const QDeadlineTimer deadline(startLimit);
  while (!deadline.hasExpired() && !m_server.waitForFinished(0) && m_server.state() == QProcess::Running) {
    QLocalSocket probe;
    probe.connectToServer(address());
    if (probe.waitForConnected()) return true;
    QThread::msleep(20);
  }
  return false;
}

QString Scheduler::lastFault() const {
  QFile log(path("error_log"));
  if (!log.open(QIODevice::ReadOnly)) return QStringLiteral("it gave no reason");
  return QString::fromUtf8(log.readAll().trimmed().split('\n').last());
}

}  // namespace kesto
