#include "demo/scheduler.h"

#include <grp.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QStandardPaths>
#include <QtCore/QThread>
#include <csignal>

#include "platform/private_file.h"

namespace kesto {

// Whom cupsd runs jobs as, and whom it takes for its administrators.
struct Scheduler::Identity {
  unsigned int user;
  unsigned int group;
  QByteArray systemGroup;

  static std::optional<Identity> ofProcess();
};

namespace {

constexpr std::chrono::seconds startLimit{15};
constexpr int stopLimitMs = 10'000;
constexpr char systemServerBin[] = "/usr/lib/cups";

constexpr char serverConfiguration[] = R"(# Written anew at every start of the demo printer.
LogLevel warn
# A failed job's history would hold its options, and its digest with them.
LogDebugHistory 0
MaxLogSize 0
Listen 127.0.0.1:@PORT@
Browsing No
WebInterface No
PreserveJobFiles No
ErrorPolicy abort-job
DefaultPolicy demo

<Location />
  Order allow,deny
  Allow from 127.0.0.1
</Location>

<Policy demo>
  # What a job's options tell, its name with them, is for its owner and for administrators.
  JobPrivateAccess @OWNER @SYSTEM
  JobPrivateValues all
  SubscriptionPrivateAccess @OWNER @SYSTEM
  SubscriptionPrivateValues all

  <Limit Send-Document Send-URI Cancel-Job Hold-Job Release-Job Restart-Job Set-Job-Attributes Cancel-My-Jobs Close-Job CUPS-Move-Job CUPS-Authenticate-Job CUPS-Get-Document>
    Require user @OWNER @SYSTEM
    Order deny,allow
  </Limit>
  <Limit Create-Job Print-Job Print-URI Validate-Job>
    Order deny,allow
  </Limit>
  # Queue and scheduler stay as they were set up.
  <Limit CUPS-Add-Modify-Printer CUPS-Delete-Printer CUPS-Add-Modify-Class CUPS-Delete-Class CUPS-Set-Default Set-Printer-Attributes Pause-Printer Resume-Printer Enable-Printer Disable-Printer Cancel-Jobs Purge-Jobs CUPS-Accept-Jobs CUPS-Reject-Jobs>
    AuthType Default
    Require user @SYSTEM
    Order deny,allow
  </Limit>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
)";

constexpr char fileConfiguration[] = R"(# Written anew at every start of the demo printer.
User @USER@
Group @GROUP@
SystemGroup @SYSTEM@
ServerRoot @ROOT@
ServerBin @ROOT@/bin
RequestRoot @ROOT@/spool
TempDir @ROOT@/spool/tmp
CacheDir @ROOT@/cache
StateDir @ROOT@/state
Printcap @ROOT@/printcap
ErrorLog @ROOT@/error_log
AccessLog @ROOT@/access_log
PageLog @ROOT@/page_log
LogFilePerm 0600
FatalErrors config listen permissions
)";

constexpr char queueConfiguration[] = R"(# Written anew at every start of the demo printer.
<DefaultPrinter @QUEUE@>
Info Kesto VQ-250n (demo)
MakeModel KESTO VQ-250n PS
DeviceURI socket://127.0.0.1:@PRINTER@
State Idle
Accepting Yes
Shared No
ErrorPolicy abort-job
OpPolicy demo
</DefaultPrinter>
)";

// Queues beside the first are like it, but for their number.
QByteArray moreQueues(int queues) {
  QByteArray text;
  for (int number = 2; number <= queues; ++number) {
    QByteArray queue = QByteArray(queueConfiguration).replace("DefaultPrinter", "Printer");
    queue.remove(0, queue.indexOf('\n') + 1);
    queue.replace("@QUEUE@", demoQueueNumbered(number).toLatin1());
    text += queue.replace("(demo)", "(demo " + QByteArray::number(number) + ')');
  }
  return text;
}

Outcome copyFile(const QString& from, const QString& to, QFile::Permissions permissions) {
  QFile source(from);
  if (!source.copy(to))
    return Outcome::failed(
        QStringLiteral("%1 cannot be copied to %2: %3").arg(from, to, source.errorString()));
  return QFile::setPermissions(to, permissions)
             ? Outcome::done()
             : Outcome::failed(to + QStringLiteral(": its mode cannot be set"));
}

// What lies beside the programs, in a build as in an installation.
QString besidePrograms(const QString& name) {
  return QCoreApplication::applicationDirPath() + QStringLiteral("/../") + name;
}

QString findServer() {
  QString onPath = QStandardPaths::findExecutable(QStringLiteral("cupsd"));
  if (!onPath.isEmpty()) return onPath;
  // An ordinary user's PATH does not lead there.
  return QStandardPaths::findExecutable(QStringLiteral("cupsd"),
                                        {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/local/sbin")});
}

// In the child, between fork and exec: it follows its parent however that ends, and a Ctrl-C at the terminal
// is not for it.
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
  const ::group* own = ::getgrgid(getgid());
  return Identity{getuid(), getgid(), own == nullptr ? "root" : own->gr_name};
}

QString demoQueueNumbered(int number) {
  const QString name = QLatin1String(demoQueue);
  return number == 1 ? name : QStringLiteral("%1_%2").arg(name).arg(number, 4, 10, QLatin1Char('0'));
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
  return QStringLiteral("127.0.0.1:%1").arg(m_port);
}

Outcome Scheduler::start(quint16 printerPort, int queues) {
  const std::optional<Identity> identity = Identity::ofProcess();
  if (!identity) return Outcome::failed(QStringLiteral("there is no account \"lp\" to run jobs as"));
  // The kernel gives a port that is bound to nobody else, and lets cupsd share it as long as nobody listens.
  if (!m_reservation.bind(QHostAddress::LocalHost, 0,
                          QAbstractSocket::ShareAddress | QAbstractSocket::ReuseAddressHint)) {
    return Outcome::failed(QStringLiteral("the scheduler has no port: ") + m_reservation.errorString());
  }
  m_port = m_reservation.localPort();
  if (Outcome made = makeFolders(); !made) return made;
  if (Outcome copied = copyPrograms(queues); !copied) return copied;
  if (Outcome written = writeConfiguration(*identity, printerPort, queues); !written) return written;
  if (getuid() == 0) {
    if (Outcome admitted = m_folder.admitGroup(identity->group); !admitted) return admitted;
  }
  return startServer();
}

Outcome Scheduler::makeFolders() const {
  // The jobs' programs, which may run as another user, pass through these; the run folder above keeps others
  // out.
  constexpr mode_t mode = 0755;
  for (const char* name : {"", "bin", "bin/daemon", "bin/filter", "bin/backend", "ppd", "spool", "spool/tmp",
                           "cache", "state"}) {
    if (Outcome made = m_folder.makeFolder(QStringLiteral("cups/") + QLatin1String(name), mode); !made)
      return made;
  }
  return Outcome::done();
}

// Where the system confines its own cupsd by path, that one may not work in this folder: a copy may.
Outcome Scheduler::copyPrograms(int queues) const {
  constexpr QFile::Permissions program = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                         QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther |
                                         QFile::ExeOther;
  constexpr QFile::Permissions data =
      QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;
  const QString server = findServer();
  const QString launcher = QLatin1String(systemServerBin) + QStringLiteral("/daemon/cups-exec");
  if (server.isEmpty() || !QFile::exists(launcher)) {
    return Outcome::failed(QStringLiteral("there is no cupsd; install the package cups-daemon"));
  }
  if (Outcome copied = copyFile(server, path("cupsd"), program); !copied) return copied;
  if (!QFile::link(launcher, path("bin/daemon/cups-exec"))) {
    return Outcome::failed(path("bin/daemon/cups-exec") + QStringLiteral(": the link cannot be made"));
  }
  for (const char* name : {"filter/kesto-demo-filter", "backend/socket"}) {
    const QString from = besidePrograms(QStringLiteral("libexec/kesto/")) + QLatin1String(name);
    if (Outcome copied = copyFile(from, path("bin/") + QLatin1String(name), program); !copied) return copied;
  }
  const QString description = besidePrograms(QStringLiteral("share/kesto/kesto-vq250n.ppd"));
  for (int number = 1; number <= queues; ++number) {
    const QString copy = path("ppd/") + demoQueueNumbered(number) + QStringLiteral(".ppd");
    if (Outcome copied = copyFile(description, copy, data); !copied) return copied;
  }
  return Outcome::done();
}

Outcome Scheduler::writeConfiguration(const Identity& identity, quint16 printerPort, int queues) const {
  const auto write = [&](const char* name, QByteArray text) {
    text.replace("@PORT@", QByteArray::number(m_port));
    text.replace("@PRINTER@", QByteArray::number(printerPort));
    text.replace("@QUEUE@", demoQueue);
    text.replace("@ROOT@", QFile::encodeName(path("")).chopped(1));
    text.replace("@USER@", QByteArray::number(identity.user));
    text.replace("@GROUP@", QByteArray::number(identity.group));
    text.replace("@SYSTEM@", identity.systemGroup);
    return writePrivateFile(path(name), text);
  };
  if (Outcome written = write("cupsd.conf", serverConfiguration); !written) return written;
  if (Outcome written = write("cups-files.conf", fileConfiguration); !written) return written;
  return write("printers.conf", queueConfiguration + moreQueues(queues));
}

Outcome Scheduler::startServer() {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  // The system's bus would tell its colour manager of the queue.
  environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"),
                     QStringLiteral("unix:path=") + path("no-bus"));
  m_server.setProcessEnvironment(environment);
  m_server.start(path("cupsd"), {QStringLiteral("-f"), QStringLiteral("-c"), path("cupsd.conf"),
                                 QStringLiteral("-s"), path("cups-files.conf")});
  if (!m_server.waitForStarted())
    return Outcome::failed(QStringLiteral("cupsd does not start: ") + m_server.errorString());
  if (!waitUntilItAnswers()) return Outcome::failed(QStringLiteral("cupsd does not answer: ") + lastFault());
  m_reservation.close();
  connect(&m_server, &QProcess::finished, this, &Scheduler::died);
  return Outcome::done();
}

bool Scheduler::waitUntilItAnswers() {
  const QDeadlineTimer deadline(startLimit);
  while (!deadline.hasExpired() && !m_server.waitForFinished(0) && m_server.state() == QProcess::Running) {
    QTcpSocket probe;
    probe.connectToHost(QHostAddress(QHostAddress::LocalHost), m_port);
    if (probe.waitForConnected()) return true;
    QThread::msleep(20);
  }
  return false;
}

QString Scheduler::lastFault() const {
  QFile log(path("error_log"));
  if (!log.open(QIODevice::ReadOnly)) return QStringLiteral("it has not said why");
  return QString::fromUtf8(log.readAll().trimmed().split('\n').last());
}

}  // namespace kesto
