#include "demo/demo_printer.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

#include "demo/log.h"

namespace kesto {

namespace {

QString absolute(const QString& path) {
  return QDir::cleanPath(QDir(path).absolutePath());
}

}  // namespace

QString controlPath(const QString& directory) {
  return QDir(directory).absoluteFilePath(QStringLiteral("control"));
}

DemoPrinter::DemoPrinter(const DemoSetup& setup)
    : m_setup(setup), m_folderService(setup.folders, setup.behaviour) {}

Outcome DemoPrinter::start() {
  if (Outcome listening = m_folderService.listen(m_setup.folderPort); !listening) return listening;
  return m_setup.foldersOnly ? Outcome::done() : startPrinting();
}

Outcome DemoPrinter::startPrinting() {
  if (!m_setup.output.isNull()) {
    m_setup.output = absolute(m_setup.output);
    if ((m_setup.output + u'/').startsWith(absolute(m_setup.directory) + u'/')) {
      return Outcome::failed(m_setup.output +
                             QStringLiteral(": goes with the run folder; name another folder"));
    }
  }
  if (Outcome taken = m_runFolder.take(m_setup.directory); !taken) return taken;
  constexpr unsigned int ownerOnly = 0700;
  if (Outcome made = m_runFolder.makeFolder(QStringLiteral("held"), ownerOnly); !made) return made;
  if (m_setup.output.isNull()) {
    m_setup.output = m_runFolder.path(QStringLiteral("output"));
    if (Outcome made = m_runFolder.makeFolder(QStringLiteral("output"), ownerOnly); !made) return made;
  }
  if (!QDir().mkpath(m_setup.output))
    return Outcome::failed(m_setup.output + QStringLiteral(": cannot create the folder"));

  m_store.emplace(m_runFolder.path(QStringLiteral("held")), m_setup.output);
  m_printer.emplace(*m_store);
  const QString printerSocket = m_runFolder.socketPath(QStringLiteral("printer"));
  if (Outcome listening = m_printer->listen(printerSocket); !listening) return listening;
  m_control.emplace(*m_store, [this](const PrinterFault* fault) { return setFault(fault); });
  if (Outcome listening = m_control->listen(controlPath(m_setup.directory)); !listening) return listening;
  m_scheduler.emplace(m_runFolder);
  QObject::connect(&*m_scheduler, &Scheduler::died, qApp, [] {
    logLine(QStringLiteral("the scheduler has exited"));
    QCoreApplication::exit(1);
  });
  m_printer->setPassword(m_setup.password);
  Outcome started = m_scheduler->start({.printerSocket = printerSocket,
                                        .queues = m_setup.queues,
                                        .port = m_setup.port,
                                        .asksForPassword = !m_setup.password.isEmpty()});
  return started && m_setup.fault != nullptr ? setFault(m_setup.fault) : started;
}

Outcome DemoPrinter::setFault(const PrinterFault* fault) {
  const bool isPrinters = fault != nullptr && fault->reason != nullptr;
  m_printer->setFault(isPrinters ? fault : nullptr);
  return m_scheduler->pause(fault == nullptr || isPrinters ? nullptr : fault->message);
}

QJsonObject DemoPrinter::whereabouts() const {
  QJsonObject places{{QStringLiteral("folders"), m_folderService.address()}};
  if (m_scheduler) {
    places.insert(QStringLiteral("server"), m_scheduler->address());
    if (m_setup.port) places.insert(QStringLiteral("port"), m_scheduler->portAddress());
    places.insert(QStringLiteral("queue"), QLatin1String(demoQueue));
    places.insert(QStringLiteral("output"), m_setup.output);
  }
  return places;
}

}  // namespace kesto
