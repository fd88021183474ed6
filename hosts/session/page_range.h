// The pages to print, as a user types them.
#pragma once

#include <QtCore/QString>
#include <optional>
#include <vector>

namespace kesto {

/// First and last page, which count from 1.
struct PageRange {
  int first = 0;
  int last = 0;
};

/// The ranges of "1-3, 5, 8-", in rising order. None when the text is not a list of pages, or ranges overlap.
std::optional<std::vector<PageRange>> rangesOf(const QString& text);

/// "1-3, 5, 8-" in the form of the option "page-ranges" ("1-3,5,8-"), with the ranges in rising order as the
/// scheduler requires. None when the text has no such ranges. Pages beyond a document of `pageCount` pages
/// (0: unknown) are cut off; empty when none is left.
std::optional<QString> pageRangesOf(const QString& text, int pageCount = 0);

}  // namespace kesto
