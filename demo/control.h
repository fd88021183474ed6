// How the other commands talk to the running printer: through a socket in its run folder, with one JSON
// object a line in each direction. {"do":"jobs"} is answered by {"jobs":[...]},
// {"do":"release","job":N,"passCode":"..."} by {"release":WORD}.
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QObject>
#include <QtNetwork/QLocalServer>

#include "demo/job_store.h"
#include "platform/outcome.h"

namespace kesto {

/// The end of the running printer.
class ControlServer : public QObject {
  Q_OBJECT

 public:
  /// `store` outlives the server.
  explicit ControlServer(JobStore& store);

  /// Listens at `path`.
  Outcome listen(const QString& path);

 private:
  void connectionArrived();
  QJsonObject answer(const QJsonObject& request);

  JobStore& m_store;
  QLocalServer m_server;
};

/// Sends a command to the printer that listens at `path`, and waits for the answer.
Outcome askPrinter(const QString& path, const QJsonObject& request, QJsonObject* answer);

/// The word for the result of a release in the answer.
QString wordOf(Release release);

}  // namespace kesto
