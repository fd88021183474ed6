// What can keep the demo printer from printing, so that people and tests can see what becomes of a job.
#pragma once

#include <QtCore/QString>
#include <span>

namespace kesto {

/// One fault. It lasts until it is cleared; then the printer goes on where it stopped.
struct PrinterFault {
  const char* name = nullptr;
  const char* description = nullptr;
  const char* reason =
      nullptr;  ///< The printer-state-reason; null when the print server has it, not the printer.
  const char* message = nullptr;  ///< What printer or print server says about it.
};

/// Every fault.
std::span<const PrinterFault> printerFaults();

/// The fault of that name, null when there is none.
const PrinterFault* printerFaultNamed(const QString& name);

}  // namespace kesto
