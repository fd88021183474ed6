#include "hosts/portal/dialog_process.h"

#include <spawn.h>
#include <sys/wait.h>

#include <QtCore/QFile>
#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <vector>

extern "C" {  // the header of glibc 2.36 lacks this
#include <sys/pidfd.h>
}

namespace kesto {
namespace {

// The descriptor of the dialog's end of the channel: the first after the standard streams.
constexpr int dialogsDescriptor = 3;

// Leaves out themes that hand a program's dialogs to the portal. A theme may have arguments after a colon.
QStringList withoutPortalThemes(const QStringList& themes) {
  QStringList kept;
  for (const QString& theme : themes) {
    static constexpr std::array portals{"xdgdesktopportal", "flatpak", "snap"};
    const bool isPortal = std::any_of(portals.begin(), portals.end(), [&](const char* name) {
      return theme.trimmed().compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
    });
    if (!isPortal) kept.append(theme);
  }
  return kept;
}

// A list of C strings that ends with a null pointer, as the system requires. Valid as long as `texts`.
std::vector<char*> pointersTo(std::vector<QByteArray>* texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts->size() + 1);
  for (QByteArray& text : *texts)
    pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

std::vector<QByteArray> textsOf(const QProcessEnvironment& environment) {
  std::vector<QByteArray> texts;
  for (const QString& variable : environment.toStringList())
    texts.push_back(QFile::encodeName(variable));
  return texts;
}

// Starts a program with its end of the channel and an empty signal mask. Returns the error number.
int spawn(const QString& program, int channel, pid_t* process) {
  std::vector<QByteArray> arguments{QFile::encodeName(program), "--portal",
                                    QByteArray::number(dialogsDescriptor)};
  std::vector<QByteArray> environment = textsOf(dialogEnvironment(QProcessEnvironment::systemEnvironment()));
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, channel, dialogsDescriptor);
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  sigset_t none;
  sigemptyset(&none);
  posix_spawnattr_setsigmask(&attributes, &none);
  // The dialog gets its own process group, so that ending the service from a terminal does not lose a
  // document.
  posix_spawnattr_setpgroup(&attributes, 0);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETPGROUP);
  const int error = posix_spawn(process, arguments.front().constData(), &actions, &attributes,
                                pointersTo(&arguments).data(), pointersTo(&environment).data());
  posix_spawnattr_destroy(&attributes);
  posix_spawn_file_actions_destroy(&actions);
  return error;
}

}  // namespace

QProcessEnvironment dialogEnvironment(QProcessEnvironment environment) {
  environment.remove(QStringLiteral("GTK_USE_PORTAL"));
  const QString variable = QStringLiteral("QT_QPA_PLATFORMTHEME");
  if (!environment.contains(variable)) return environment;
  const QStringList themes = withoutPortalThemes(environment.value(variable).split(u':'));
  if (themes.isEmpty()) {
    environment.remove(variable);
  } else {
    environment.insert(variable, themes.join(u':'));
  }
  return environment;
}

Outcome DialogProcess::start(const QString& program) {
  Descriptor ours;
  Descriptor theirs;
  if (Outcome made = PrintChannel::makePair(&ours, &theirs); !made) return made;
  pid_t process = 0;
  if (const int error = spawn(program, theirs.get(), &process); error != 0)
    return Outcome::failed(program + QStringLiteral(": ") + qt_error_string(error));
  // The process number stays valid here, because nobody waits for the process before its descriptor exists.
  m_processDescriptor.reset(::pidfd_open(process, 0));
  if (!m_processDescriptor) {
    Outcome failed = Outcome::failed(program + QStringLiteral(": ") + qt_error_string(errno));
    ::kill(process, SIGTERM);
    ::waitpid(process, nullptr, 0);
    return failed;
  }
  m_channel = std::make_unique<PrintChannel>(std::move(ours));
  connect(m_channel.get(), &PrintChannel::received, this,
          [this](const QJsonObject& message) { Q_EMIT received(message); });
  connect(m_channel.get(), &PrintChannel::closed, this, [this] {
    m_isClosed = true;
    finishWhenBothEnded();
  });
  m_endNotifier = std::make_unique<QSocketNotifier>(m_processDescriptor.get(), QSocketNotifier::Read);
  connect(m_endNotifier.get(), &QSocketNotifier::activated, this, &DialogProcess::reap);
  return Outcome::done();
}

Outcome DialogProcess::send(const QJsonObject& message, int attached) {
  if (!m_channel) return Outcome::failed(QStringLiteral("no dialog was started"));
  return m_channel->send(message, attached);
}

void DialogProcess::reap() {
  m_endNotifier->setEnabled(false);
  siginfo_t end{};
  ::waitid(P_PIDFD, static_cast<id_t>(m_processDescriptor.get()), &end, WEXITED);
  m_isReaped = true;
  m_isNormal = end.si_code == CLD_EXITED && end.si_status == 0;
  finishWhenBothEnded();
}

// The end of the process and the end of its messages can arrive in any order.
void DialogProcess::finishWhenBothEnded() {
  if (m_isClosed && m_isReaped) Q_EMIT finished(m_isNormal);
}

}  // namespace kesto
