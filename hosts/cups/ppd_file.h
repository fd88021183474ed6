// The PPD of a queue, opened through libcups.
#pragma once

#include <cups/cups.h>
#include <cups/ppd.h>

#include <QtCore/QString>
#include <memory>

#include "hosts/cups/print_server.h"
#include "platform/outcome.h"

namespace kesto {

struct ClosePpd {
  void operator()(ppd_file_t* ppd) const;
};

/// An opened PPD, closed with its owner.
using PpdFile = std::unique_ptr<ppd_file_t, ClosePpd>;

/// Opens the PPD file `path`. On failure `*ppd` is null and the outcome names the file, the line and
/// libcups's reason.
Outcome openPpdFile(const QString& path, PpdFile* ppd);

/// Fetches the PPD of a queue from a print server; null for a queue that has none.
Outcome fetchPpdFile(PrintServer& server, const QString& queue, PpdFile* ppd);

/// Whether the PPD names the bundle "JobHandling.pde" among the extensions of the print dialog.
bool offersJobHandling(ppd_file_t& ppd);

}  // namespace kesto
