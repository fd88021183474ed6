#include "panel/trace.h"

#ifndef NDEBUG

#include <QtCore/QLoggingCategory>

namespace kesto::trace {
namespace {

// Quiet unless asked for: QT_LOGGING_RULES="kesto.pde.debug=true".
Q_LOGGING_CATEGORY(pde, "kesto.pde", QtInfoMsg)

}  // namespace

QString textOf(const QString& text) {
  return text;
}
QString textOf(const char* text) {
  return QString::fromUtf8(text);
}
QString textOf(const void* address) {
  return QStringLiteral("0x") + QString::number(reinterpret_cast<quintptr>(address), 16);
}

void log(const void* self, const char* phase, const char* format, const QStringList& arguments) {
  if (!pde().isDebugEnabled()) return;
  QString text;
  qsizetype next = 0;
  for (const char* at = format; *at != '\0'; ++at) {
    if (*at == '%' && (at[1] == '@' || at[1] == 'p' || at[1] == 's')) {
      text += arguments.value(next++);
      ++at;
    } else {
      text += QLatin1Char(*at);
    }
  }
  qCDebug(pde, "%p %s %s", self, phase, qUtf8Printable(text));
}

}  // namespace kesto::trace

#endif
