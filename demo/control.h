// How the other commands talk to the running printer: through a socket in its run folder, with one JSON
// object a line in each direction. {"do":"jobs"} is answered by {"jobs":[...]},
// {"do":"release","job":N,"passCode":"..."} by {"release":WORD}, {"do":"fault","fault":NAME} by {} or, when
// it cannot be done, by {"error":REASON}; no NAME clears the fault.
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QObject>
#include <QtNetwork/QLocalServer>
#include <functional>

#include "demo/job_store.h"
#include "demo/printer_fault.h"
#include "platform/outcome.h"

namespace kesto {

/// The end of the running printer.
class ControlServer : public QObject {
  Q_OBJECT

 public:
  /// Gives the printer a fault, or clears it (null).
  using SetFault = std::function<Outcome(const PrinterFault* fault)>;

  /// `store` outlives the server.
  ControlServer(JobStore& store, SetFault setFault);

  /// Listens at `path`.
  Outcome listen(const QString& path);

 private:
  void connectionArrived();
  QJsonObject answer(const QJsonObject& request);

  JobStore& m_store;
  SetFault m_setFault;
  QLocalServer m_server;
};

/// Sends a command to the printer that listens at `path`, and waits for the answer.
Outcome askPrinter(const QString& path, const QJsonObject& request, QJsonObject* answer);

/// The word for the result of a release in the answer.
QString wordOf(Release release);

}  // namespace kesto
