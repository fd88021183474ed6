#include "hosts/cups/queue_choices.h"

#include <QtCore/QRegularExpression>
#include <cmath>

namespace kesto {
namespace {

double pointsOf(const QString& unit) {
  static const QMap<QString, double> points{
      {QStringLiteral("pt"), 1},         {QStringLiteral("in"), 72},
      {QStringLiteral("ft"), 864},       {QStringLiteral("mm"), 72 / 25.4},
      {QStringLiteral("cm"), 72 / 2.54}, {QStringLiteral("m"), 72 / 0.0254}};
  return points.value(unit);
}

}  // namespace

std::optional<CustomSize> customSizeOf(const QString& choice) {
  // Most choices are none, and the first match of a program compiles the expression.
  if (!choice.startsWith(QLatin1String("Custom."), Qt::CaseInsensitive)) return {};
  static const QRegularExpression form(
      QStringLiteral(R"(^Custom\.(\d+(?:\.\d+)?)x(\d+(?:\.\d+)?)(pt|in|ft|mm|cm|m)?$)"),
      QRegularExpression::CaseInsensitiveOption);
  const QRegularExpressionMatch match = form.match(choice);
  if (!match.hasMatch()) return {};
  const QString unit = match.captured(3).isEmpty() ? QStringLiteral("pt") : match.captured(3).toLower();
  return CustomSize{.width = match.captured(1), .length = match.captured(2), .unit = unit};
}

QString customChoice(double width, double length) {
  // Hundredths, as the standard counts them.
  const auto text = [](double side) { return QString::number(std::round(side * 100) / 100, 'g', 8); };
  return QStringLiteral("Custom.%1x%2mm").arg(text(width), text(length));
}

std::pair<double, double> millimetresOf(const CustomSize& size) {
  const double unit = pointsOf(size.unit) * millimetresPerPoint;
  return {size.width.toDouble() * unit, size.length.toDouble() * unit};
}

}  // namespace kesto
