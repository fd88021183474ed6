#include "hosts/session/sheet_settings.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace kesto {
namespace {

constexpr std::array grids{SheetGrid{1, 1}, SheetGrid{2, 1}, SheetGrid{3, 1}, SheetGrid{2, 2},
                           SheetGrid{3, 2}, SheetGrid{4, 2}, SheetGrid{3, 3}, SheetGrid{5, 2},
                           SheetGrid{3, 4}, SheetGrid{5, 3}, SheetGrid{4, 4}};

SheetGrid gridOf(int count) {
  const auto* found =
      std::ranges::find(grids, count, [](const SheetGrid& grid) { return grid.columns * grid.rows; });
  return found == grids.end() ? SheetGrid{} : *found;
}

constexpr std::array borders{SheetBorder{"none", 0, 0}, SheetBorder{"single", 0.24, 1},
                             SheetBorder{"single-thick", 0.5, 1}, SheetBorder{"double", 0.24, 2},
                             SheetBorder{"double-thick", 0.5, 2}};

bool isOneOf(const char* value, std::initializer_list<const char*> values) {
  return value != nullptr &&
         std::ranges::any_of(values, [&](auto* each) { return qstricmp(value, each) == 0; });
}

// By the names that PPDs and the standard have for it: "KGray", "Black", "monochrome".
bool isGrayName(const char* value) {
  const QByteArray name = QByteArray(value).toLower();
  return name.contains("gray") || name.contains("grey") || name.contains("mono") || name == "black";
}

SheetScaling scalingOf(const OptionArray& options) {
  if (const char* value = options.value("print-scaling")) {
    if (isOneOf(value, {"auto"})) return SheetScaling::Auto;
    if (isOneOf(value, {"auto-fit"})) return SheetScaling::AutoFit;
    if (isOneOf(value, {"fit"})) return SheetScaling::Fit;
    return isOneOf(value, {"fill"}) ? SheetScaling::Fill : SheetScaling::None;
  }
  const char* fit = options.value("fitplot");
  if (fit == nullptr) fit = options.value("fit-to-page");
  return fit == nullptr || isOneOf(fit, {"no", "off", "false"}) ? SheetScaling::Auto : SheetScaling::Fit;
}

// By the values of orientation-requested, which begin at 3: portrait, landscape, and each of them reversed.
constexpr std::array turnsOfOrientations{0, 3, 1, 2};

}  // namespace

SheetSettings::SheetSettings(const OptionArray& options)
    : grid(gridOf(QByteArray(options.value("number-up")).toInt())),
      isBooklet(isOneOf(options.value("booklet"), {"yes", "on", "true"})),
      isGray(isGrayName(options.value("ColorModel")) || isGrayName(options.value("print-color-mode"))),
      isReversed(isOneOf(options.value("outputorder"), {"reverse", "reverse-order"})),
      isShortEdge(isOneOf(options.value("sides"), {"two-sided-short-edge"}) ||
                  isOneOf(options.value("Duplex"), {"DuplexTumble"})),
      isTwoSided(isShortEdge || isOneOf(options.value("sides"), {"two-sided-long-edge"}) ||
                 isOneOf(options.value("Duplex"), {"DuplexNoTumble"})),
      hasOdd(!isOneOf(options.value("page-set"), {"even"})),
      hasEven(!isOneOf(options.value("page-set"), {"odd"})),
      scaling(scalingOf(options)),
      ranges(rangesOf(QString::fromLatin1(options.value("page-ranges"))).value_or(std::vector<PageRange>())) {
  const QByteArray layout = QByteArray(options.value("number-up-layout")).toLower();
  if (isOneOf(layout, {"lrtb", "lrbt", "rltb", "rlbt", "tblr", "tbrl", "btlr", "btrl"})) {
    isDownFirst = layout.startsWith('t') || layout.startsWith('b');
    isFromRight = layout.contains("rl");
    isFromBottom = layout.contains("bt");
  }
  const auto orientation = QByteArray(options.value("orientation-requested")).toUInt();
  if (orientation >= 3 && orientation - 3 < turnsOfOrientations.size())
    turn = turnsOfOrientations.at(orientation - 3);
  hasTurn = options.has("orientation-requested");
  if (options.has("print-scaling")) {
    imageScaling = scaling;
  } else if (const double percent = QByteArray(options.value("scaling")).toDouble(); percent > 0) {
    imageZoom = percent / 100;
  }
  for (const SheetBorder& each : borders)
    if (isOneOf(options.value("page-border"), {each.name})) border = each;
}

bool SheetSettings::isSelected(int side) const {
  if (!(side % 2 == 0 ? hasEven : hasOdd)) return false;
  return ranges.empty() || std::ranges::any_of(ranges, [side](const PageRange& range) {
           return side >= range.first && side <= range.last;
         });
}

std::pair<int, int> SheetSettings::columnAndRow(const SheetGrid& in, int page) const {
  const int column = isDownFirst ? page / in.rows : page % in.columns;
  const int row = isDownFirst ? page % in.rows : page / in.columns;
  return {isFromRight ? in.columns - 1 - column : column, isFromBottom ? in.rows - 1 - row : row};
}

}  // namespace kesto
