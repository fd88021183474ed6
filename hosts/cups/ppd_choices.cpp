#include "hosts/cups/ppd_choices.h"

#include <cups/pwg.h>

#include <algorithm>
#include <cmath>
#include <span>

#include "hosts/cups/option_array.h"

namespace kesto {
namespace {

const QString pageSize = QStringLiteral("PageSize");
// The greatest difference of paper lengths that count as equal, in points.
constexpr float sizeTolerance = 2;
constexpr double pointsPerUnit = 72.0 / 2540;  // libcups's units are hundredths of a millimetre

std::span<const ppd_choice_t> choicesOf(const ppd_option_t& option) {
  return {option.choices, static_cast<std::size_t>(option.num_choices)};
}

// It needs a value from the user, for which a list has no field.
bool isCustomChoice(const ppd_choice_t& choice) {
  return QByteArrayView(choice.choice) == "Custom";
}

// With those of the groups within.
void addOptions(const ppd_group_t& group, QStringList* options) {
  for (const ppd_option_t& each : std::span(group.options, static_cast<std::size_t>(group.num_options)))
    options->append(QString::fromUtf8(each.keyword));
  for (const ppd_group_t& each : std::span(group.subgroups, static_cast<std::size_t>(group.num_subgroups)))
    addOptions(each, options);
}

bool isAbout(float one, double other) {
  return std::abs(one - other) <= sizeTolerance;
}

// The order of the marked choice, else that of the marked output tray, else that of the printer, as the print
// system's filters take it.
bool isOrderReversed(ppd_file_t* ppd) {
  const ppd_choice_t* order = ppdFindMarkedChoice(ppd, "OutputOrder");
  const ppd_choice_t* tray = ppdFindMarkedChoice(ppd, "OutputBin");
  const ppd_attr_t* attribute = tray == nullptr ? nullptr : ppdFindAttr(ppd, "PageStackOrder", tray->choice);
  if (attribute == nullptr) attribute = ppdFindAttr(ppd, "DefaultOutputOrder", nullptr);
  const char* value = order != nullptr ? order->choice : attribute != nullptr ? attribute->value : nullptr;
  return qstricmp(value, "reverse") == 0;
}

}  // namespace

PpdChoices::PpdChoices(ppd_file_t* ppd) : m_ppd(ppd) {
  if (m_ppd == nullptr) return;
  ppdLocalize(m_ppd);
  ppdMarkDefaults(m_ppd);
}

const ppd_option_t* PpdChoices::find(const QString& option) const {
  const QByteArray keyword = option.toUtf8();
  const ppd_option_t* found = m_ppd == nullptr ? nullptr : ppdFindOption(m_ppd, keyword.constData());
  return found != nullptr && keyword == found->keyword ? found : nullptr;
}

const ppd_choice_t* PpdChoices::find(const QString& option, const QString& choice) const {
  const ppd_option_t* found = find(option);
  if (found == nullptr) return nullptr;
  const QByteArray keyword = choice.toUtf8();
  for (const ppd_choice_t& each : choicesOf(*found)) {
    if (keyword == each.choice) return isCustomChoice(each) && takesCustom(option) ? nullptr : &each;
  }
  return nullptr;
}

bool PpdChoices::takesCustom(const QString& option) const {
  return m_ppd != nullptr && ppdFindCustomOption(m_ppd, option.toUtf8().constData()) != nullptr;
}

bool PpdChoices::isIn(const QLocale& language) const {
  if (m_ppd == nullptr) return false;
  const QString own = QString::fromUtf8(m_ppd->lang_version == nullptr ? "English" : m_ppd->lang_version);
  if (own.contains(QLocale::languageToString(language.language()), Qt::CaseInsensitive)) return true;
  const ppd_attr_t* others = ppdFindAttr(m_ppd, "cupsLanguages", nullptr);
  const QStringList names =
      QString::fromUtf8(others == nullptr ? nullptr : others->value).split(u' ', Qt::SkipEmptyParts);
  return std::ranges::any_of(
      names, [&](const QString& each) { return QLocale(each).language() == language.language(); });
}

std::optional<CustomLimits> PpdChoices::customLimits() const {
  if (m_ppd == nullptr || m_ppd->variable_sizes == 0 || !takesCustom(pageSize)) return {};
  return CustomLimits{.leastWidth = m_ppd->custom_min[0] * millimetresPerPoint,
                      .mostWidth = m_ppd->custom_max[0] * millimetresPerPoint,
                      .leastHeight = m_ppd->custom_min[1] * millimetresPerPoint,
                      .mostHeight = m_ppd->custom_max[1] * millimetresPerPoint};
}

std::vector<PpdGroup> PpdChoices::groups() const {
  std::vector<PpdGroup> groups;
  if (m_ppd == nullptr) return groups;
  for (const ppd_group_t& group : std::span(m_ppd->groups, static_cast<std::size_t>(m_ppd->num_groups))) {
    if (QByteArrayView(group.name).startsWith("InstallableOptions")) continue;
    groups.push_back({QString::fromUtf8(group.text), {}});
    addOptions(group, &groups.back().options);
  }
  return groups;
}

QString PpdChoices::text(const QString& option) const {
  const ppd_option_t* found = find(option);
  return found == nullptr ? QString() : QString::fromUtf8(found->text);
}

QString PpdChoices::text(const QString& option, const QString& choice) const {
  const ppd_choice_t* found = find(option, choice);
  return found == nullptr ? QString() : QString::fromUtf8(found->text);
}

std::vector<OptionChoice> PpdChoices::choices(const QString& option) const {
  std::vector<OptionChoice> choices;
  const ppd_option_t* found = find(option);
  if (found == nullptr) return choices;
  const bool isCustom = takesCustom(option);
  for (const ppd_choice_t& each : choicesOf(*found)) {
    if (isCustom && isCustomChoice(each)) continue;
    choices.push_back({QString::fromUtf8(each.choice), QString::fromUtf8(each.text)});
  }
  return choices;
}

int PpdChoices::choiceCount(const QString& option) const {
  const ppd_option_t* found = find(option);
  if (found == nullptr) return 0;
  const bool hasCustom = takesCustom(option) && std::ranges::any_of(choicesOf(*found), isCustomChoice);
  return found->num_choices - (hasCustom ? 1 : 0);
}

QString PpdChoices::defaultOf(const QString& option) const {
  const ppd_option_t* found = find(option);
  if (found == nullptr) return {};
  const QString choice = QString::fromUtf8(found->defchoice);
  return find(option, choice) == nullptr ? QString() : choice;
}

// The PPD's paper of that size, as a choice of PageSize; preferably the one with the size's own name.
QString PpdChoices::choiceOfSize(const char* name, double width, double length) const {
  const auto choiceNamed = [this](const char* size) {
    return findChoice(pageSize, [&](const QString& each) { return each == QLatin1String(size); });
  };
  if (name != nullptr && ppdPageSize(m_ppd, name) != nullptr) {
    if (QString choice = choiceNamed(name); !choice.isNull()) return choice;
  }
  for (const ppd_size_t& size : std::span(m_ppd->sizes, static_cast<std::size_t>(m_ppd->num_sizes))) {
    if (!isAbout(size.width, width) || !isAbout(size.length, length)) continue;
    if (QString choice = choiceNamed(size.name); !choice.isNull()) return choice;
  }
  return {};
}

// A custom size, if the printer accepts one.
QString PpdChoices::customPaper(double width, double length, const QString& choice) const {
  constexpr double sliver = 0.01;  // what millimetres lose on their way
  const auto fits = [&](int side, double value) {
    return value > 0 && value >= m_ppd->custom_min[side] - sliver &&
           (m_ppd->custom_max[side] <= 0 || value <= m_ppd->custom_max[side] + sliver);
  };
  return m_ppd->variable_sizes != 0 && fits(0, width) && fits(1, length) ? choice : QString();
}

QString PpdChoices::paperChoice(const QString& name) const {
  if (m_ppd == nullptr) return {};
  const auto isName = [&](const QString& each) { return each.compare(name, Qt::CaseInsensitive) == 0; };
  if (QString choice = findChoice(pageSize, isName); !choice.isNull()) return choice;
  if (const std::optional<CustomSize> size = customSizeOf(name)) {
    const auto [width, length] = millimetresOf(*size);
    const QString choice = choiceOfSize(nullptr, width / millimetresPerPoint, length / millimetresPerPoint);
    return choice.isNull() ? customPaper(width / millimetresPerPoint, length / millimetresPerPoint, name)
                           : choice;
  }
  const QByteArray bytes = name.toUtf8();
  const pwg_media_t* media = pwgMediaForPWG(bytes.constData());
  if (media == nullptr) media = pwgMediaForLegacy(bytes.constData());
  if (media == nullptr) media = pwgMediaForPPD(bytes.constData());
  if (media == nullptr) return {};
  const double width = media->width * pointsPerUnit;
  const double length = media->length * pointsPerUnit;
  const QString choice = choiceOfSize(media->ppd, width, length);
  const QString custom = QStringLiteral("Custom.%1x%2").arg(qRound(width)).arg(qRound(length));
  return choice.isNull() ? customPaper(width, length, custom) : choice;
}

void PpdChoices::mark(const QString& option, const QString& choice) {
  if (m_ppd != nullptr) ppdMarkOption(m_ppd, option.toUtf8().constData(), choice.toUtf8().constData());
}

QStringList PpdChoices::conflicts() const {
  QStringList conflicts;
  if (m_ppd == nullptr || ppdConflicts(m_ppd) == 0) return conflicts;
  for (ppd_option_t* each = ppdFirstOption(m_ppd); each != nullptr; each = ppdNextOption(m_ppd)) {
    if (each->conflicted != 0) conflicts.append(QString::fromUtf8(each->keyword));
  }
  return conflicts;
}

QString PpdChoices::marked(const QString& option) const {
  const ppd_choice_t* choice = ppdFindMarkedChoice(m_ppd, option.toUtf8().constData());
  return choice == nullptr ? QString() : QString::fromUtf8(choice->choice);
}

QStringList PpdChoices::conflictsWith(const QString& option) const {
  OptionArray found;
  found.take([&](cups_option_t** options) {
    return cupsGetConflicts(m_ppd, option.toUtf8().constData(), marked(option).toUtf8().constData(), options);
  });
  return found.all().keys();
}

QMap<QString, QString> PpdChoices::resolution(const QString& option) const {
  QStringList choosable;
  for (const PpdGroup& group : groups())
    choosable += group.options;
  OptionArray changes;
  changes.take([&](cups_option_t** options) {
    int count = 0;
    const int isResolved = cupsResolveConflicts(m_ppd, option.toUtf8().constData(),
                                                marked(option).toUtf8().constData(), &count, options);
    return isResolved == 0 ? 0 : count;
  });
  QMap<QString, QString> resolution = changes.all();
  resolution.removeIf(
      [&](const auto& each) { return each.key() == option || each.value() == marked(each.key()); });
  // What is installed in the printer cannot be chosen.
  const bool isChoosable =
      std::ranges::all_of(resolution.keys(), [&](const QString& each) { return choosable.contains(each); });
  if (!resolution.isEmpty() && isChoosable) return resolution;
  const QString initial = defaultOf(option);
  return initial.isNull() || initial == marked(option) ? QMap<QString, QString>()
                                                       : QMap<QString, QString>{{option, initial}};
}

std::optional<PpdPaper> PpdChoices::markedPaper() const {
  const ppd_choice_t* choice = m_ppd == nullptr ? nullptr : ppdFindMarkedChoice(m_ppd, "PageSize");
  const ppd_size_t* size = choice == nullptr ? nullptr : ppdPageSize(m_ppd, choice->choice);
  if (size == nullptr) return {};
  const pwg_media_t* media = pwgMediaForPPD(size->name);
  return PpdPaper{
      .keyword = QString::fromUtf8(size->name),
      .text = QString::fromUtf8(choice->text),
      .standardName = media == nullptr ? QString() : QString::fromUtf8(media->pwg).section(u'_', 0, -2),
      .width = size->width * millimetresPerPoint,
      .height = size->length * millimetresPerPoint,
      .left = size->left * millimetresPerPoint,
      .right = (size->width - size->right) * millimetresPerPoint,
      .top = (size->length - size->top) * millimetresPerPoint,
      .bottom = size->bottom * millimetresPerPoint,
      .isLandscapeMinus90 = m_ppd->landscape < 0,
      .isReversed = isOrderReversed(m_ppd)};
}

}  // namespace kesto
