#include "hosts/dialog/widgets/accent_color.h"

#include <QtWidgets/QApplication>
#include <algorithm>
#include <cmath>

namespace kesto {
namespace {

constexpr double leastContrast = 4.5;  // as WCAG asks of text
constexpr double leastContrastDimmed = 3;

double luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
  const double first = luminance(one);
  const double second = luminance(other);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QColor mixed(const QColor& one, const QColor& other, double part) {
  const auto mix = [&](double from, double to) { return static_cast<float>(from + (to - from) * part); };
  return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                          mix(one.blueF(), other.blueF()));
}

// A color as near to `wanted` as reaches the contrast, towards the color of usual text.
QColor reaching(double least, const QColor& wanted, const QColor& behind, const QColor& text) {
  QColor color = wanted;
  for (double part = 0.1; contrast(color, behind) < least && part < 1; part += 0.1)
    color = mixed(wanted, text, part);
  return color;
}

}  // namespace

QColor legible(const QColor& wanted, const QPalette& palette) {
  return reaching(leastContrast, wanted, palette.color(QPalette::Window),
                  palette.color(QPalette::WindowText));
}

QColor accentColor(const QPalette& palette) {
  return legible(palette.color(QPalette::Link), palette);
}

QColor quietColor(const QPalette& palette) {
  return legible(mixed(palette.color(QPalette::WindowText), palette.color(QPalette::Window), 0.4), palette);
}

void makeTextsLegible() {
  const QPalette palette = QApplication::palette();
  QPalette changed = palette;
  const auto change = [&](QPalette::ColorGroup group, QPalette::ColorRole role, QPalette::ColorRole usual,
                          QPalette::ColorRole back, double least) {
    const QColor behind = palette.color(group, back);
    const QColor given = palette.color(group, role);
    const QColor seen = mixed(behind, QColor::fromRgb(given.rgb()), given.alphaF());
    if (contrast(seen, behind) < least)
      changed.setColor(group, role, reaching(least, seen, behind, palette.color(QPalette::Active, usual)));
  };
  using enum QPalette::ColorRole;
  for (const auto group : {QPalette::Active, QPalette::Inactive})
    change(group, PlaceholderText, Text, Base, leastContrast);
  for (const auto& [role, back] : {std::pair(WindowText, Window), {Text, Base}, {ButtonText, Button}})
    change(QPalette::Disabled, role, role, back, leastContrastDimmed);
  if (changed != palette) QApplication::setPalette(changed);
}

}  // namespace kesto
