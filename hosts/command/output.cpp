#include "hosts/command/output.h"

#include <cstdio>
#include <iostream>

#include "hosts/command/command_texts.h"
#include "platform/shown_text.h"

namespace kesto {

void ignoreMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*message*/) {}

QByteArray printableJson(const QJsonDocument& json, QJsonDocument::JsonFormat format) {
  QString printable;
  for (const QChar each : QString::fromUtf8(json.toJson(format)))
    each != u'\n' && isObeyed(each)
        ? printable += QStringLiteral("\\u%1").arg(each.unicode(), 4, 16, QLatin1Char('0'))
        : printable += each;
  return printable.toUtf8();
}

Outcome flushOutput() {
  std::cout.flush();
  const bool isFlushed = std::fflush(stdout) == 0;
  return std::cout && isFlushed && std::ferror(stdout) == 0
             ? Outcome::done()
             : Outcome::failed(CommandTexts::tr("cannot write standard output"));
}

int endOfOutput(const char* program, int code) {
  const Outcome written = flushOutput();
  if (written || code != 0) return code;
  std::cerr << program << ": " << written.reason().toStdString() << '\n';
  return 1;
}

}  // namespace kesto
