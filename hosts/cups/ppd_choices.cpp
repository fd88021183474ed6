#include "hosts/cups/ppd_choices.h"

#include <cups/pwg.h>

#include <QtCore/QMap>
#include <QtCore/QRegularExpression>
#include <algorithm>
#include <cmath>
#include <span>

namespace kesto {
namespace {

const QString pageSize = QStringLiteral("PageSize");
// The greatest difference of paper lengths that count as equal, in points.
constexpr float sizeTolerance = 2;
constexpr double pointsPerUnit = 72.0 / 2540;  // libcups's units are hundredths of a millimetre

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

QString PpdChoices::text(const QString& option) const {
  const ppd_option_t* found = find(option);
  return found == nullptr ? QString() : QString::fromUtf8(found->text);
}

std::vector<OptionChoice> PpdChoices::choices(const QString& option) const {
  std::vector<OptionChoice> choices;
  const ppd_option_t* found = find(option);
  if (found == nullptr) return choices;
  const bool isCustom = takesCustom(option);
  for (const ppd_choice_t& each : std::span(found->choices, static_cast<std::size_t>(found->num_choices))) {
    // It needs a value from the user, for which a list has no field.
    if (isCustom && QByteArrayView(each.choice) == "Custom") continue;
    choices.push_back({QString::fromUtf8(each.choice), QString::fromUtf8(each.text)});
  }
  return choices;
}

QString PpdChoices::defaultOf(const QString& option) const {
  const ppd_option_t* found = find(option);
  if (found == nullptr) return {};
  const QString choice = QString::fromUtf8(found->defchoice);
  return findChoice(option, [&](const QString& each) { return each == choice; });
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
  const auto fits = [&](int side, double value) {
    return value > 0 && value >= m_ppd->custom_min[side] &&
           (m_ppd->custom_max[side] <= 0 || value <= m_ppd->custom_max[side]);
  };
  return m_ppd->variable_sizes != 0 && fits(0, width) && fits(1, length) ? choice : QString();
}

QString PpdChoices::paperChoice(const QString& name) const {
  static const QMap<QString, double> points{
      {QStringLiteral("pt"), 1},         {QStringLiteral("in"), 72},
      {QStringLiteral("ft"), 864},       {QStringLiteral("mm"), 72 / 25.4},
      {QStringLiteral("cm"), 72 / 2.54}, {QStringLiteral("m"), 72 / 0.0254}};
  if (m_ppd == nullptr) return {};
  const auto isName = [&](const QString& each) { return each.compare(name, Qt::CaseInsensitive) == 0; };
  if (QString choice = findChoice(pageSize, isName); !choice.isNull()) return choice;
  if (const std::optional<CustomSize> size = customSizeOf(name)) {
    const double width = size->width.toDouble() * points.value(size->unit);
    const double length = size->length.toDouble() * points.value(size->unit);
    const QString choice = choiceOfSize(nullptr, width, length);
    return choice.isNull() ? customPaper(width, length, name) : choice;
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
    if (each->conflicted != 0) conflicts.append(QString::fromUtf8(each->text));
  }
  return conflicts;
}

std::optional<PpdPaper> PpdChoices::markedPaper() const {
  const ppd_choice_t* choice = m_ppd == nullptr ? nullptr : ppdFindMarkedChoice(m_ppd, "PageSize");
  const ppd_size_t* size = choice == nullptr ? nullptr : ppdPageSize(m_ppd, choice->choice);
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
      .bottom = size->bottom * perPoint,
      .isLandscapeMinus90 = m_ppd->landscape < 0,
      .isReversed = isOrderReversed(m_ppd)};
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

}  // namespace kesto
