// The pages to print, as a user types them.
#pragma once

#include <QtCore/QString>
#include <optional>

namespace kesto {

/// "1-3, 5, 8-" in the form of the option "page-ranges" ("1-3,5,8-"), with the ranges in rising order as the
/// scheduler requires. None when the text is not a list of pages or ranges overlap; pages count from 1. Pages
/// beyond a document of `pageCount` pages (0: unknown) are cut off; empty when none is left.
std::optional<QString> pageRangesOf(const QString& text, int pageCount = 0);

}  // namespace kesto
