// A print scheduler of the demo printer's own: the real cupsd, away from the system's.
#pragma once

#include <QtCore/QProcess>
#include <QtNetwork/QTcpSocket>
#include <optional>

#include "demo/run_folder.h"
#include "platform/outcome.h"

namespace kesto {

/// The name of the scheduler's first queue, its default one.
inline constexpr char demoQueue[] = "Office_MFP";
/// The names of its queues, counted from 1: "Office_MFP", "Office_MFP_0002" and so on.
QString demoQueueNumbered(int number);

/// Runs cupsd in a run folder, for root as root with its jobs as "lp", else as the user alone. It ends with
/// its object, or with the process, however that ends.
class Scheduler : public QObject {
  Q_OBJECT

 public:
  /// `folder` outlives the scheduler.
  explicit Scheduler(const RunFolder& folder);
  ~Scheduler() override;

  /// Sets everything up in the folder and returns when cupsd answers. That many queues print to
  /// `printerPort` of loopback.
  Outcome start(quint16 printerPort, int queues);
  /// "127.0.0.1:PORT".
  QString address() const;

 Q_SIGNALS:
  /// cupsd ended without being asked to.
  void died();

 private:
  struct Identity;

  Outcome makeFolders() const;
  Outcome copyPrograms(int queues) const;
  Outcome writeConfiguration(const Identity& identity, quint16 printerPort, int queues) const;
  Outcome startServer();
  bool waitUntilItAnswers();
  QString lastFault() const;
  QString path(const char* name) const;

  const RunFolder& m_folder;
  QTcpSocket m_reservation;  // bound to cupsd's port until cupsd listens there
  quint16 m_port = 0;
  QProcess m_server;
};

}  // namespace kesto
