#include "demo/log.h"

#include <cstdio>

#include "platform/shown_text.h"

namespace kesto {

void logLine(const QString& line) {
  std::fprintf(stderr, "%s\n", shownText(line).toUtf8().constData());
}

}  // namespace kesto
