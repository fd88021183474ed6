// What the options of a job mean for its sheets of paper.
#pragma once

#include <utility>

#include "hosts/cups/option_array.h"
#include "hosts/session/page_range.h"

namespace kesto {

/// How many pages lie beside and above each other on a side.
struct SheetGrid {
  int columns = 1;
  int rows = 1;
};

/// The lines around a page.
struct SheetBorder {
  const char* name = "none";
  double width = 0;  ///< Of a line, in points.
  int lines = 0;
};

/// What "print-scaling" says.
enum class SheetScaling { None, Fit, Fill, Auto, AutoFit };

/// The options, read as the print system's filters read them: in any letter case, and what has no meaning
/// counts as not given.
struct SheetSettings {
  explicit SheetSettings(const OptionArray& options);

  /// Whether a side is printed; they count from 1.
  bool isSelected(int side) const;
  /// Where the page of that number lies on its side; all count from 0, from the upper left corner.
  std::pair<int, int> columnAndRow(const SheetGrid& grid, int page) const;

  SheetGrid grid;
  bool isDownFirst = false;
  bool isFromRight = false;
  bool isFromBottom = false;
  bool isBooklet = false;
  bool isGray = false;
  bool isReversed = false;
  bool isShortEdge = false;
  bool isTwoSided = false;
  bool hasOdd = true;
  bool hasEven = true;
  int turn = 0;          ///< Of what is printed, in quarters clockwise.
  bool hasTurn = false;  ///< Whether an orientation is given.
  SheetScaling scaling = SheetScaling::Auto;
  SheetScaling imageScaling = SheetScaling::Fit;
  double imageZoom = 1;
  SheetBorder border;
  std::vector<PageRange> ranges;  ///< Of sides; none for all.
};

}  // namespace kesto
