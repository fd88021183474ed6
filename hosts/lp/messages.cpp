#include "hosts/lp/messages.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <iostream>

#include "hosts/command/output.h"
#include "hosts/lp/lp_texts.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

void printObject(const char* member, const QString& text) {
  const QJsonObject object{{QLatin1String(member), text}};
  std::cerr << printableJson(QJsonDocument(object)).constData() << '\n';
}

}  // namespace

void Messages::alert(const QString& text) const {
  if (m_json) return printObject("alert", text);
  for (const QString& line : text.split(u'\n'))
    std::cerr << shownText(line).toStdString() << '\n';
}

void Messages::warning(const QString& text) const {
  say("warning", text, LpTexts::tr("warning: %1").arg(text));
}

// JSON has the text, and a person reads the line.
void Messages::say(const char* member, const QString& text, const QString& line) const {
  if (m_json) return printObject(member, text);
  std::cerr << "kesto-lp: " << shownText(line).toStdString() << '\n';
}

}  // namespace kesto
