#include "folders/answer_limits.h"

#include <QtCore/QHash>
#include <QtCore/QRegularExpression>
#include <algorithm>

namespace kesto::answer_limits {
namespace {

// Counts what looks like the beginning of an attribute's value, from each "<" to the next. A tag cannot
// contain "<", so no comment, quotation mark or section can hide a tag's attributes from the count.
bool hasTooManyAttributes(QStringView text) {
  qsizetype count = 0;
  bool isAfterSign = false;
  for (const QChar c : text) {
    if (c == u'<') count = 0;
    if (isAfterSign && (c == u'"' || c == u'\'') && ++count > attributes) return true;
    isAfterSign = c == u'=' || (isAfterSign && c.isSpace());
  }
  return false;
}

// The entities that a document declares, and what references to them expand to.
class Entities {
 public:
  // Takes every declaration, wherever it is; one in a comment does no harm. False when one is malformed or
  // exceeds the limits.
  bool declareAll(const QString& xml) {
    constexpr QLatin1String start("<!ENTITY");
    qsizetype count = 0;
    for (qsizetype at = xml.indexOf(start); at >= 0; at = xml.indexOf(start, at + start.size())) {
      if (++count > entities || !declare(xml, at + start.size())) return false;
    }
    return true;
  }

  // The number of characters that the references in a text stand for, counting the references themselves; at
  // most one more than the limit.
  qsizetype expansionOf(QStringView text) {
    qsizetype sum = 0;
    qsizetype start = -1;
    for (qsizetype at = 0; at < text.size() && sum <= expandedText; ++at) {
      if (text[at] == u'&') start = at + 1;
      if (text[at] != u';' || start < 0) continue;
      if (at - start <= nameLength) sum += expansionOf(text.sliced(start, at - start).toString());
      start = -1;
    }
    return std::min(sum, expandedText + 1);
  }

 private:
  struct Entity {
    QString value;
    qsizetype expansion = -1;  // not yet known
  };

  bool declare(const QString& xml, qsizetype at) {
    static const QRegularExpression declaration(
        QStringLiteral(
            "\\s++([^\\s%]\\S{0,%1}+)\\s++(?:SYSTEM\\b|PUBLIC\\b|\"([^\"]{0,%2}+)\"|'([^']{0,%2}+)')")
            .arg(nameLength)
            .arg(entityValue));
    const QRegularExpressionMatch match = declaration.match(xml, at, QRegularExpression::NormalMatch,
                                                            QRegularExpression::AnchorAtOffsetMatchOption);
    if (!match.hasMatch()) return false;
    const QString value = withMarkup(match.captured(2) + match.captured(3));
    if (value.contains(QLatin1String("<!DOCTYPE")) || hasTooManyAttributes(value)) return false;
    m_entities[match.captured(1)].value += value;  // of two declarations of a name either may count
    return true;
  }

  // An entity's value as it is parsed when it is referred to, with its character references resolved.
  static QString withMarkup(QString value) {
    static const QRegularExpression ampersand(QStringLiteral("&#(?:0*+38|x0*+26);"));
    static const QRegularExpression less(QStringLiteral("&#(?:0*+60|x0*+3[Cc]);"));
    return value.replace(ampersand, QStringLiteral("&")).replace(less, QStringLiteral("<"));
  }

  qsizetype expansionOf(const QString& name) {
    const auto entity = m_entities.find(name);
    if (entity == m_entities.end()) return 0;
    if (entity->expansion < 0) {
      entity->expansion = expandedText + 1;  // while it is computed: catches an entity that refers to itself
      entity->expansion =
          std::min(1 + entity->value.size() + expansionOf(QStringView(entity->value)), expandedText + 1);
    }
    return entity->expansion;
  }

  QHash<QString, Entity> m_entities;
};

}  // namespace

bool areKeptBy(const QString& xml) {
  if (hasTooManyAttributes(xml)) return false;
  if (!xml.contains(QLatin1String("<!DOCTYPE"))) return true;
  Entities entities;
  return !xml.contains(QLatin1String("<!ATTLIST")) && entities.declareAll(xml) &&
         entities.expansionOf(QStringView(xml)) <= expandedText;
}

}  // namespace kesto::answer_limits
