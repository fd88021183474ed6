#include "panel/input_filters.h"

#include "platform/surrogates.h"

namespace kesto {

bool LengthLimitedFilter::isPartialStringValid(QString& partialString, TextRange& proposedSelectedRange,
                                               const QString& originalString, TextRange originalSelectedRange,
                                               QString* /*errorDescription*/) const {
  // All comparisons are unsigned, so a negative limit is a very large one.
  const auto limit = static_cast<std::uint64_t>(maxValue);
  const auto caret = static_cast<std::uint64_t>(proposedSelectedRange.location);
  if (caret > limit) {
    qsizetype length = qMin(static_cast<qsizetype>(limit), partialString.size());
    if (isWithinPair(partialString, length)) {
      --length;
    }
    partialString.truncate(length);
    proposedSelectedRange = {0, length};
    return false;
  }
  const qsizetype start = originalSelectedRange.location;
  if (proposedSelectedRange.location <= start) return true;
  const QString inserted = partialString.mid(start, proposedSelectedRange.location - start);
  if (inserted.isEmpty()) return true;
  return mayBeginInsertion(inserted.front()) && static_cast<std::uint64_t>(originalString.size()) < limit;
}

bool LoginnameInputFilter::isPartialStringValid(QString& /*partialString*/,
                                                TextRange& /*proposedSelectedRange*/,
                                                const QString& /*originalString*/,
                                                TextRange /*originalSelectedRange*/,
                                                QString* /*errorDescription*/) const {
  return true;
}

}  // namespace kesto
