// The values of a job's options: what the standard, PPDs and people call them.
#pragma once

#include <vector>

#include "hosts/session/job_option_table.h"

namespace kesto {

/// What the queue calls a value of one of its options: by the PPD's keyword or the standard's name, or a
/// value of the user's own where the option takes such. Null when it has no such value.
QString choiceFor(const QueueChoices& choices, const QString& option, const QString& value);
/// What the standard calls a PPD's choice; null when it has no name for it.
QString standardValueOf(const QString& option, const QString& choice);
/// Our own text for a value, to be translated as of "JobOptions"; null when the PPD's or the value serves.
const char* textOfValue(const QString& option, const QString& value);

/// A value of one of the job's own options in its one form; null when the option cannot be that.
QString valueFor(const OptionRow& row, const QString& value);
/// The values of a job's own option that the table lists, a null one for "automatic" among them.
std::vector<QString> listedValues(const OptionRow& row);

}  // namespace kesto
