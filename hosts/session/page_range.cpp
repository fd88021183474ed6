#include "hosts/session/page_range.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>
#include <algorithm>
#include <limits>

namespace kesto {
namespace {

constexpr int noEnd = std::numeric_limits<int>::max();

std::optional<PageRange> rangeOf(const QString& text) {
  static const QRegularExpression form(QStringLiteral(R"(^\s*(\d{1,6})?\s*(?:([-–])\s*(\d{1,6})?)?\s*$)"));
  const QRegularExpressionMatch match = form.match(text);
  const bool hasFirst = !match.captured(1).isEmpty();
  const bool hasDash = !match.captured(2).isEmpty();
  const bool hasLast = !match.captured(3).isEmpty();
  if (!match.hasMatch() || (!hasFirst && !hasLast)) return {};
  PageRange range{.first = hasFirst ? match.captured(1).toInt() : 1, .last = noEnd};
  if (!hasDash) range.last = range.first;
  if (hasLast) range.last = match.captured(3).toInt();
  if (range.first < 1 || range.last < range.first) return {};
  return range;
}

QString textOf(const PageRange& range) {
  if (range.last == range.first) return QString::number(range.first);
  return QStringLiteral("%1-%2")
      .arg(range.first)
      .arg(range.last == noEnd ? QString() : QString::number(range.last));
}

}  // namespace

std::optional<std::vector<PageRange>> rangesOf(const QString& text) {
  std::vector<PageRange> ranges;
  for (const QString& part : text.split(u',')) {
    const std::optional<PageRange> range = rangeOf(part);
    if (!range) return {};
    ranges.push_back(*range);
  }
  std::ranges::sort(ranges, {}, &PageRange::first);
  const auto overlaps = [](const PageRange& one, const PageRange& next) { return next.first <= one.last; };
  if (std::ranges::adjacent_find(ranges, overlaps) != ranges.end()) return {};
  return ranges;
}

std::optional<QString> pageRangesOf(const QString& text, int pageCount) {
  const auto ranges = rangesOf(text);
  if (!ranges) return {};
  QStringList texts;
  for (PageRange range : *ranges) {
    if (pageCount > 0 && range.first > pageCount) break;
    if (pageCount > 0 && range.last != noEnd) range.last = std::min(range.last, pageCount);
    texts.append(textOf(range));
  }
  return texts.isEmpty() ? QStringLiteral("") : texts.join(u',');
}

}  // namespace kesto
