// The names and values by which the options of a job go.
#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "hosts/cups/ppd_file.h"

namespace kesto {

/// Options as they come to a queue.
struct JobChoices {
  QMap<QString, QString> options;  ///< By the one name under which each travels.
  QStringList refused;             ///< "name=value" as given, for what the queue's PPD has no choice for.
};

/// One option has several names: those of the print system's standard, such as "media" and "sides", and those
/// of a PPD, such as "PageSize" and "Duplex". This is what they have to do with each other on one queue.
class JobOptionTable {
 public:
  /// The PPD, null for a queue without one, must outlive the table.
  explicit JobOptionTable(ppd_file_t* ppd) : m_ppd(ppd) {}

  /// Each choice once, by the PPD's names and values where the PPD has the option; else as it was given. Of
  /// several names of one option the PPD's counts over the standard's, as in the print system, and what is
  /// kept for the queue only where nothing is given. A "media" of several parts and a "media-col" are paper,
  /// source and type. Options that neither the table nor the PPD knows stay.
  JobChoices resolve(const QMap<QString, QString>& given, const QMap<QString, QString>& kept = {}) const;

  /// Whether the table or the PPD knows an option by this name.
  bool has(const QString& name) const;

 private:
  ppd_file_t* m_ppd;
};

}  // namespace kesto
