#include "demo/log.h"

#include <cstdio>

namespace kesto {

QString shownText(QString text) {
  for (QChar& c : text) {
    if (c.category() == QChar::Other_Control || c.category() == QChar::Other_Format) c = QLatin1Char('?');
  }
  return text;
}

void logLine(const QString& line) {
  std::fprintf(stderr, "%s\n", shownText(line).toUtf8().constData());
}

}  // namespace kesto
