#include "hosts/session/hold_time.h"

#include <QtCore/QDateTime>
#include <QtCore/QLocale>

namespace kesto {
namespace {

// The next moment at which it is that time, by the day of the clock of `now`; daylight saving may change
// between now and then.
QDateTime nextAt(const QTime& time, const QDateTime& now) {
  QDateTime next = now;
  next.setTime(time);
  if (next >= now) return next;
  next = now.addDays(1);
  next.setTime(time);
  return next;
}

// In one of several forms; invalid when in none.
QTime timeFrom(const QString& text, std::initializer_list<QString> forms) {
  for (const QString& form : forms) {
    if (const QTime time = QLocale::c().toTime(text.simplified(), form); time.isValid()) return time;
  }
  return {};
}

}  // namespace

QTime holdTimeFrom(const QString& value) {
  const QTime time = timeFrom(value, {QStringLiteral("H:mm"), QStringLiteral("H:mm:ss")});
  return time.isValid() ? nextAt(time, QDateTime::currentDateTimeUtc()).toLocalTime().time() : time;
}

QString holdValueOf(const QString& text) {
  QTime time = timeFrom(text, {QStringLiteral("H:mm"), QStringLiteral("H:mm:ss"), QStringLiteral("h:mm ap"),
                               QStringLiteral("h ap")});
  if (!time.isValid()) time = QLocale().toTime(text.simplified(), QLocale::ShortFormat);
  return time.isValid()
             ? nextAt(time, QDateTime::currentDateTime()).toUTC().toString(QStringLiteral("HH:mm:ss"))
             : QString();
}

QString shownHoldTime(const QTime& time) {
  return QLocale().toString(time, QLocale::ShortFormat);
}

}  // namespace kesto
