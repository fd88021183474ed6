// A queue's own options under GTK's keys of print settings, as a client of the portal gives and gets them.
#pragma once

#include <QtCore/QJsonObject>

#include "hosts/session/job_options.h"

namespace kesto {

/// Chooses what the settings ask for of the open queue's options: color, quality, source, type, output tray,
/// resolution, and every option of the PPD under "cups-" and its keyword. Passes over what the queue does not
/// have.
void chooseOptions(const QJsonObject& settings, JobOptions& options);

/// The settings with these options as they are chosen. Those under "cups-" are put in where they differ from
/// the queue's default or the settings have them.
QJsonObject withOptions(QJsonObject settings, const JobOptions& options);

}  // namespace kesto
