// The whole demo printer: scheduler, printer and folder service together.
#pragma once

#include <QtCore/QJsonObject>
#include <memory>
#include <optional>

#include "demo/control.h"
#include "demo/folder_service.h"
#include "demo/printer.h"
#include "demo/run_folder.h"
#include "demo/scheduler.h"

namespace kesto {

/// How to set up a demo printer.
struct DemoSetup {
  QString directory;  ///< Its run folder.
  QString output;     ///< Where printed documents go; null for a folder in the run folder.
  DemoFolders folders = sampleFolders();
  Misbehaviour behaviour;
  std::optional<quint16> folderPort;    ///< As in `FolderService::listen`.
  std::optional<quint16> port;          ///< Of the scheduler, as in `Scheduler::start`.
  QByteArray password;                  ///< What the printer asks for with each job, empty for nothing.
  int queues = 1;                       ///< They all lead to the same printer.
  const PrinterFault* fault = nullptr;  ///< What it begins with, null for none.
  bool foldersOnly = false;             ///< Neither scheduler nor printer, and no run folder.
};

/// Name of the control socket in the run folder.
QString controlPath(const QString& directory);

/// Runs from `start` until it is destroyed, and then leaves only printed documents in a folder of the
/// caller's.
class DemoPrinter {
 public:
  explicit DemoPrinter(const DemoSetup& setup);

  /// Starts all parts. They work while the event loop runs. When the scheduler ends unexpectedly, the loop
  /// ends with code 1.
  Outcome start();
  /// Its places: "server", "queue", "folders" and "output", and "port" if there is one; "folders" alone
  /// without a scheduler.
  QJsonObject whereabouts() const;

 private:
  Outcome startPrinting();
  Outcome setFault(const PrinterFault* fault);

  DemoSetup m_setup;
  FolderService m_folderService;
  RunFolder m_runFolder;
  std::optional<JobStore> m_store;
  std::optional<RawPrinter> m_printer;
  std::optional<ControlServer> m_control;
  std::optional<Scheduler> m_scheduler;
};

}  // namespace kesto
