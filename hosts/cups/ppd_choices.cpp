#include "hosts/cups/ppd_choices.h"

#include <cups/pwg.h>

#include <QtCore/QRegularExpression>
#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace kesto {
namespace {

constexpr std::array usual{"PageSize",         "InputSlot",  "MediaType",  "Duplex",    "ColorModel",
                           "cupsPrintQuality", "OutputMode", "Resolution", "OutputBin", "StapleLocation"};

// "Custom" needs a value from the user, for which a list has no field.
bool isCustomChoice(ppd_file_t& ppd, const QString& option, const char* choice) {
  return QByteArrayView(choice) == "Custom" && hasCustomChoice(ppd, option);
}

PpdOption optionOfPpd(ppd_file_t& ppd, const ppd_option_t& option) {
  PpdOption made{
      .keyword = QString::fromUtf8(option.keyword), .text = QString::fromUtf8(option.text), .choices = {}};
  for (int i = 0; i < option.num_choices; ++i) {
    const ppd_choice_t& choice = option.choices[i];
    if (isCustomChoice(ppd, made.keyword, choice.choice)) continue;
    if (choice.marked != 0) made.marked = static_cast<int>(made.choices.size());
    made.choices.push_back({QString::fromUtf8(choice.choice), QString::fromUtf8(choice.text)});
  }
  return made;
}

// The greatest difference of paper lengths that count as equal, in points.
const QString pageSize = QStringLiteral("PageSize");
constexpr float sizeTolerance = 2;
constexpr double pointsPerUnit = 72.0 / 2540;  // libcups's units are hundredths of a millimetre

bool isAbout(float one, double other) {
  return std::abs(one - other) <= sizeTolerance;
}

// The PPD's paper of that size, as a choice of PageSize; preferably the one with the size's own name.
QString choiceOfSize(ppd_file_t& ppd, const char* name, double width, double length) {
  if (name != nullptr && ppdPageSize(&ppd, name) != nullptr &&
      choicesOf(ppd, pageSize).contains(QLatin1String(name)))
    return QLatin1String(name);
  for (const ppd_size_t& size : std::span(ppd.sizes, static_cast<std::size_t>(ppd.num_sizes))) {
    QString choice = QString::fromUtf8(size.name);
    if (isAbout(size.width, width) && isAbout(size.length, length) &&
        choicesOf(ppd, pageSize).contains(choice))
      return choice;
  }
  return {};
}

// A custom size, if the printer accepts one.
QString customPaper(ppd_file_t& ppd, double width, double length, const QString& choice) {
  const auto fits = [&](int side, double value) {
    return value > 0 && value >= ppd.custom_min[side] &&
           (ppd.custom_max[side] <= 0 || value <= ppd.custom_max[side]);
  };
  return ppd.variable_sizes != 0 && fits(0, width) && fits(1, length) ? choice : QString();
}

}  // namespace

bool hasOption(ppd_file_t& ppd, const QString& option) {
  const QByteArray keyword = option.toUtf8();
  // libcups ignores letter case, but a job's "collate" is not the PPD's "Collate".
  const ppd_option_t* found = ppdFindOption(&ppd, keyword.constData());
  return found != nullptr && keyword == found->keyword;
}

bool hasCustomChoice(ppd_file_t& ppd, const QString& option) {
  return ppdFindCustomOption(&ppd, option.toUtf8().constData()) != nullptr;
}

QStringList choicesOf(ppd_file_t& ppd, const QString& option) {
  QStringList choices;
  const ppd_option_t* found = ppdFindOption(&ppd, option.toUtf8().constData());
  if (found == nullptr) return choices;
  for (const ppd_choice_t& each : std::span(found->choices, static_cast<std::size_t>(found->num_choices))) {
    if (!isCustomChoice(ppd, option, each.choice)) choices.append(QString::fromUtf8(each.choice));
  }
  return choices;
}

std::optional<CustomSize> customSizeOf(const QString& choice) {
  static const QRegularExpression form(
      QStringLiteral(R"(^Custom\.(\d+(?:\.\d+)?)x(\d+(?:\.\d+)?)(pt|in|ft|mm|cm|m)?$)"),
      QRegularExpression::CaseInsensitiveOption);
  const QRegularExpressionMatch match = form.match(choice);
  if (!match.hasMatch()) return {};
  const QString unit = match.captured(3).isEmpty() ? QStringLiteral("pt") : match.captured(3).toLower();
  return CustomSize{.width = match.captured(1), .length = match.captured(2), .unit = unit};
}

QString customChoice(double width, double length) {
  return QStringLiteral("Custom.%1x%2mm").arg(width, 0, 'f', 2).arg(length, 0, 'f', 2);
}

QString paperChoice(ppd_file_t& ppd, const QString& name) {
  static const QMap<QString, double> points{
      {QStringLiteral("pt"), 1},         {QStringLiteral("in"), 72},
      {QStringLiteral("ft"), 864},       {QStringLiteral("mm"), 72 / 25.4},
      {QStringLiteral("cm"), 72 / 2.54}, {QStringLiteral("m"), 72 / 0.0254}};
  const QStringList choices = choicesOf(ppd, pageSize);
  const auto found = std::ranges::find_if(
      choices, [&](const QString& each) { return each.compare(name, Qt::CaseInsensitive) == 0; });
  if (found != choices.end()) return *found;
  if (const std::optional<CustomSize> size = customSizeOf(name)) {
    const double width = size->width.toDouble() * points.value(size->unit);
    const double length = size->length.toDouble() * points.value(size->unit);
    const QString choice = choiceOfSize(ppd, nullptr, width, length);
    return choice.isNull() ? customPaper(ppd, width, length, name) : choice;
  }
  const QByteArray bytes = name.toUtf8();
  const pwg_media_t* media = pwgMediaForPWG(bytes.constData());
  if (media == nullptr) media = pwgMediaForLegacy(bytes.constData());
  if (media == nullptr) media = pwgMediaForPPD(bytes.constData());
  if (media == nullptr) return {};
  const double width = media->width * pointsPerUnit;
  const double length = media->length * pointsPerUnit;
  const QString choice = choiceOfSize(ppd, media->ppd, width, length);
  return choice.isNull() ? customPaper(ppd, width, length,
                                       QStringLiteral("Custom.%1x%2").arg(qRound(width)).arg(qRound(length)))
                         : choice;
}

void markDefaults(ppd_file_t& ppd, const QMap<QString, QString>& kept) {
  ppdLocalize(&ppd);
  ppdMarkDefaults(&ppd);
  for (auto it = kept.begin(); it != kept.end(); ++it)
    ppdMarkOption(&ppd, it.key().toUtf8().constData(), it.value().toUtf8().constData());
}

std::vector<PpdOption> usualOptions(ppd_file_t& ppd, const QStringList& handledByPanel) {
  std::vector<PpdOption> options;
  for (const char* keyword : usual) {
    const ppd_option_t* option = ppdFindOption(&ppd, keyword);
    if (option == nullptr || handledByPanel.contains(QLatin1String(keyword))) continue;
    if (PpdOption made = optionOfPpd(ppd, *option); made.choices.size() > 1)
      options.push_back(std::move(made));
  }
  return options;
}

QStringList markChoice(ppd_file_t& ppd, const QString& option, const QString& choice) {
  ppdMarkOption(&ppd, option.toUtf8().constData(), choice.toUtf8().constData());
  QStringList conflicts;
  if (ppdConflicts(&ppd) == 0) return conflicts;
  for (ppd_option_t* each = ppdFirstOption(&ppd); each != nullptr; each = ppdNextOption(&ppd)) {
    if (each->conflicted != 0) conflicts.append(QString::fromUtf8(each->text));
  }
  return conflicts;
}

std::optional<PpdPaper> markedPaper(ppd_file_t& ppd) {
  const ppd_choice_t* choice = ppdFindMarkedChoice(&ppd, "PageSize");
  const ppd_size_t* size = choice == nullptr ? nullptr : ppdPageSize(&ppd, choice->choice);
  if (size == nullptr) return {};
  constexpr double perPoint = 25.4 / 72;
  const pwg_media_t* media = pwgMediaForPPD(size->name);
  return PpdPaper{
      .keyword = QString::fromUtf8(size->name),
      .text = QString::fromUtf8(choice->text),
      .standardName = media == nullptr ? QString() : QString::fromUtf8(media->pwg).section(u'_', 0, -2),
      .width = size->width * perPoint,
      .height = size->length * perPoint,
      .left = size->left * perPoint,
      .right = (size->width - size->right) * perPoint,
      .top = (size->length - size->top) * perPoint,
      .bottom = size->bottom * perPoint};
}

}  // namespace kesto
