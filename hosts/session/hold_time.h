// The time of day until which a job is held.
#pragma once

#include <QtCore/QString>
#include <QtCore/QTime>

namespace kesto {

/// The local time of a value of "job-hold-until" ("HH:MM" or "HH:MM:SS" in UTC); invalid when it is none. It
/// is the next such time after now.
QTime holdTimeFrom(const QString& value);
/// The value for a local time of day as a user writes it, such as "14:30" or as the locale has it; null when
/// it is no time. Tomorrow is meant when the time is past.
QString holdValueOf(const QString& text);
/// As the locale writes it.
QString shownHoldTime(const QTime& time);

}  // namespace kesto
