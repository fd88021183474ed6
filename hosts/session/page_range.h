// The pages to print, as a user writes them.
#pragma once

#include <QtCore/QString>
#include <optional>

namespace kesto {

/// "1-3, 5, 8-" as the option "page-ranges" takes it ("1-3,5,8-"), its ranges in rising order as the
/// scheduler wants them. None when it is no list of pages, or when ranges overlap; pages count from 1. What
/// lies beyond a document of `pageCount` pages (0: not known) is cut off; empty when nothing is left.
std::optional<QString> pageRangesOf(const QString& text, int pageCount = 0);

}  // namespace kesto
