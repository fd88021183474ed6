// What becomes of options as they are given on one queue.
#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "hosts/session/job_option_table.h"

namespace kesto {

/// One option has several names: those of the print system's standard, such as "media" and "sides", and those
/// of a PPD, such as "PageSize" and "Duplex". The key under which all of them are one option on the queue.
QString keyOf(const QString& name, const QueueChoices& choices);

/// An option with the one name under which it travels.
struct NamedValue {
  QString name;
  QString value;
};

/// Options as they come to a queue.
struct ResolvedOptions {
  QMap<QString, NamedValue> options;  ///< By key.
  QStringList refused;                ///< "name=value" as given, for what is no value on the queue.
};

/// Each choice once, by the PPD's names and values where the PPD has the option; else as it was given. Of
/// several names of one option the PPD's counts over the standard's, as in the print system. A "media" of
/// several parts and a "media-col" are paper, source and type. Unknown options stay.
ResolvedOptions resolveOptions(const QMap<QString, QString>& given, const QueueChoices& choices);

}  // namespace kesto
