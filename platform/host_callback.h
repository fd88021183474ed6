// What a host lends to its panel for the duration of one dialog.
#pragma once

#include <QtCore/QString>
#include <optional>

#include "platform/export.h"

struct ppd_file_s;  // libcups's PPD record, ppd_file_t

namespace kesto {

class Platform;
class PrintSettings;

/// A print queue as the print session names it.
struct Printer {
  QString id;         ///< The queue's identifier.
  QString deviceUri;  ///< Where the queue sends its jobs; null when it has no address.
};

/// The print session of a dialog.
struct PrintSession {
  std::optional<Printer> currentPrinter;  ///< None when no printer is chosen.
};

/// The host's callback object. The host owns it and everything that it returns; it outlives the panel.
class KESTO_EXPORT HostCallback {
 public:
  virtual ~HostCallback() = default;
  virtual const PrintSession& printSession() const = 0;
  /// The job's print settings, null when the host has none.
  virtual PrintSettings* printSettings() = 0;
  /// The opened PPD of the current printer, null when there is none.
  virtual ppd_file_s* ppdFile() = 0;
  /// Whether the host answers `willChangePPDOptionKeyValue:ppdChoice:`, that is, handles constraints.
  virtual bool answersWillChangePPDOptionKeyValue() const = 0;
  virtual Platform& platform() = 0;
};

}  // namespace kesto
