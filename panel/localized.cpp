#include "panel/localized.h"

namespace kesto {

QString localizedStringValue(const Bundle& bundle, const QString& source) {
  if (source.isNull()) return {};
  qsizetype start = 0;
  while (start < source.size() && source[start].isSpace())
    ++start;
  const qsizetype colon = source.indexOf(u':', start);
  const QString key = source.mid(start, colon < 0 ? -1 : colon - start);
  if (key.isEmpty()) return source;
  const QString text = bundle.localizedStringForKey(key);
  return colon < 0 ? text : text + u':';
}

Image initWithSystemIconType(const Bundle& bundle, std::uint32_t code) {
  QString name;
  for (int shift = 24; shift >= 0; shift -= 8)
    name += QLatin1Char(static_cast<char>(code >> shift));
  return {.name = name, .path = bundle.pathForResource(name, QStringLiteral("png"))};
}

std::optional<Image> imageOfResource(const Bundle& bundle, const QString& name) {
  const QString path = bundle.pathForResource(name, QStringLiteral("png"));
  if (path.isNull()) return std::nullopt;
  return Image{.name = name, .path = path};
}

}  // namespace kesto
