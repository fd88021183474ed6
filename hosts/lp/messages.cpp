#include "hosts/lp/messages.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <iostream>

#include "platform/shown_text.h"

namespace kesto {
namespace {

void printObject(const char* member, const QString& text) {
  const QJsonObject object{{QLatin1String(member), text}};
  std::cerr << QJsonDocument(object).toJson(QJsonDocument::Compact).constData() << '\n';
}

}  // namespace

void Messages::alert(const QString& text) const {
  if (m_json) return printObject("alert", text);
  for (const QString& line : text.split(u'\n'))
    std::cerr << shownText(line).toStdString() << '\n';
}

void Messages::say(const char* member, const QString& start, const QString& text) const {
  if (m_json) return printObject(member, text);
  std::cerr << "kesto-lp: " << start.toStdString() << shownText(text).toStdString() << '\n';
}

}  // namespace kesto
