// The demo printer's own print scheduler: the real cupsd, separate from the system's.
#pragma once

#include <QtCore/QProcess>
#include <QtNetwork/QTcpSocket>
#include <optional>

#include "demo/run_folder.h"
#include "demo/scheduler_configuration.h"
#include "platform/outcome.h"

namespace kesto {

/// How to set up the scheduler.
struct SchedulerSetup {
  QString printerSocket;         ///< Where its queues print.
  int queues = 1;                ///< How many there are.
  std::optional<quint16> port;   ///< Of loopback, where cupsd also listens; 0 for any free one.
  bool asksForPassword = false;  ///< Whether jobs need a user name and a password for the printer.
};

/// Runs cupsd in a run folder: as root with jobs as "lp" when root starts it, else as the user. cupsd ends
/// with this object, or with the process, however that ends.
class Scheduler : public QObject {
  Q_OBJECT

 public:
  /// `folder` outlives the scheduler.
  explicit Scheduler(const RunFolder& folder);
  ~Scheduler() override;

  /// Sets everything up in the folder and returns when cupsd answers on its socket.
  Outcome start(const SchedulerSetup& setup);
  /// Pauses all queues with a message, or resumes them (null).
  Outcome pause(const char* message);
  /// The path of its socket, which only its owner can reach.
  QString address() const;
  /// "127.0.0.1:PORT", null without a port.
  QString portAddress() const;

 Q_SIGNALS:
  /// cupsd ended unexpectedly.
  void died();

 private:
  struct Identity;

  Outcome reservePort(quint16 port);
  Outcome makeFolders() const;
  Outcome copyPrograms() const;
  Outcome writeConfiguration(const Identity& identity) const;
  Outcome startServer();
  bool waitUntilItAnswers();
  QString lastFault() const;
  QString path(const char* name) const;

  const RunFolder& m_folder;
  SchedulerSetup m_setup;
  QTcpSocket m_reservation;  // bound to cupsd's port until cupsd listens there
  quint16 m_port = 0;        // 0 without one
  bool m_isPaused = false;
  QProcess m_server;
};

}  // namespace kesto
