#include "hosts/cups/ipp_choices.h"

#include <cups/pwg.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "hosts/cups/bounds.h"

namespace kesto {
namespace {

const QString paperKey = QStringLiteral("PageSize");
constexpr double unitsPerMillimetre = 100;  // libcups counts hundredths
// The greatest difference of paper lengths that count as equal, in those units.
constexpr int paperTolerance = 70;

struct Row {
  const char* key;        // the PPD's option
  const char* attribute;  // the job's, with "-supported" and "-default" the printer's
};

constexpr std::array rows{
    Row{"PageSize", "media"},
    Row{"Duplex", "sides"},
    Row{"ColorModel", "print-color-mode"},
    Row{"cupsPrintQuality", "print-quality"},
    Row{"InputSlot", "media-source"},
    Row{"MediaType", "media-type"},
    Row{"OutputBin", "output-bin"},
    Row{"finishings", "finishings"},
    Row{"Resolution", "printer-resolution"},
};
constexpr std::array margins{"media-left-margin-supported", "media-right-margin-supported",
                             "media-top-margin-supported", "media-bottom-margin-supported"};

// What has no default of its own has one in here.
constexpr char mediaDefault[] = "media-col-default";

// "4", "600dpi", "iso_a4_210x297mm".
QString valueOf(ipp_attribute_t* attribute, int index) {
  if (ippGetValueTag(attribute) == IPP_TAG_ENUM) return QString::number(ippGetInteger(attribute, index));
  if (ippGetValueTag(attribute) != IPP_TAG_RESOLUTION)
    return QString::fromUtf8(ippGetString(attribute, index, nullptr));
  int y = 0;
  ipp_res_t unit = IPP_RES_PER_INCH;
  const int x = ippGetResolution(attribute, index, &y, &unit);
  const QString number = x == y ? QString::number(x) : QStringLiteral("%1x%2").arg(x).arg(y);
  return number + QLatin1String(unit == IPP_RES_PER_INCH ? "dpi" : "dpcm");
}

const pwg_media_t* mediaOf(const QString& name) {
  return pwgMediaForPWG(name.toUtf8().constData());
}

// What the value is called where no text is better.
QString textOf(ipp_attribute_t* attribute, const char* name, int index) {
  if (ippGetValueTag(attribute) == IPP_TAG_ENUM)
    return QString::fromUtf8(ippEnumString(name, ippGetInteger(attribute, index)));
  const QString value = valueOf(attribute, index);
  const pwg_media_t* media = qstrcmp(name, "media") == 0 ? mediaOf(value) : nullptr;
  return media != nullptr && media->ppd != nullptr ? QString::fromUtf8(media->ppd) : value;
}

bool isLimit(const QString& media) {
  return media.startsWith(u"custom_min_") || media.startsWith(u"custom_max_");
}

}  // namespace

void IppChoices::askForAttributes(ipp_t* request) {
  QByteArrayList names;
  for (const Row& row : rows) {
    names.append(QByteArray(row.attribute) + "-supported");
    names.append(QByteArray(row.attribute) + "-default");
  }
  names.append(mediaDefault);
  for (const char* margin : margins)
    names.append(margin);
  std::vector<const char*> wanted;
  for (const QByteArray& each : names)
    wanted.push_back(each.constData());
  askFor(request, wanted);
}

IppChoices::IppChoices(ipp_t* printer) {
  for (const Row& row : rows)
    addOption(printer, row.key, row.attribute);
  takeCustomLimits(printer);
  for (std::size_t side = 0; side < margins.size(); ++side) {
    ipp_attribute_t* attribute = ippFindAttribute(printer, margins.at(side), IPP_TAG_INTEGER);
    for (int i = 0; i < ippGetCount(attribute); ++i)
      m_margins[side] = std::max(m_margins[side], ippGetInteger(attribute, i) / unitsPerMillimetre);
  }
}

void IppChoices::addOption(ipp_t* printer, const char* key, const char* name) {
  const QByteArray prefix(name);
  ipp_attribute_t* supported = ippFindAttribute(printer, (prefix + "-supported").constData(), IPP_TAG_ZERO);
  Option option{.key = QLatin1String(key), .attribute = QLatin1String(name), .choices = {}, .initial = {}};
  for (int i = 0; i < qMin(ippGetCount(supported), mostChoices); ++i) {
    const QString value = valueOf(supported, i);
    if (!value.isEmpty() && !isLimit(value) && !customSizeOf(value))
      option.choices.push_back({value, textOf(supported, name, i)});
  }
  if (option.choices.empty()) return;
  ipp_attribute_t* initial = ippFindAttribute(printer, (prefix + "-default").constData(), IPP_TAG_ZERO);
  if (ipp_attribute_t* all = ippFindAttribute(printer, mediaDefault, IPP_TAG_BEGIN_COLLECTION);
      initial == nullptr && all != nullptr)
    initial = ippFindAttribute(ippGetCollection(all, 0), name, IPP_TAG_ZERO);
  if (ippGetCount(initial) > 0) option.initial = valueOf(initial, 0);
  m_options.push_back(std::move(option));
}

void IppChoices::takeCustomLimits(ipp_t* printer) {
  ipp_attribute_t* supported = ippFindAttribute(printer, "media-supported", IPP_TAG_ZERO);
  CustomLimits limits;
  for (int i = 0; i < ippGetCount(supported); ++i) {
    const QString name = valueOf(supported, i);
    const pwg_media_t* media = isLimit(name) ? mediaOf(name) : nullptr;
    if (media == nullptr) continue;
    const bool isLeast = name.startsWith(u"custom_min_");
    (isLeast ? limits.leastWidth : limits.mostWidth) = media->width / unitsPerMillimetre;
    (isLeast ? limits.leastHeight : limits.mostHeight) = media->length / unitsPerMillimetre;
  }
  if (limits.mostWidth > 0) m_custom = limits;
}

const IppChoices::Option* IppChoices::find(const QString& key) const {
  const auto found = std::ranges::find(m_options, key, &Option::key);
  return found == m_options.end() ? nullptr : &*found;
}

bool IppChoices::takesCustom(const QString& option) const {
  return option == paperKey && m_custom.has_value();
}

QString IppChoices::text(const QString& option, const QString& choice) const {
  for (const OptionChoice& each : choices(option)) {
    if (each.keyword == choice) return each.text;
  }
  return {};
}

std::vector<OptionChoice> IppChoices::choices(const QString& option) const {
  const Option* found = find(option);
  return found == nullptr ? std::vector<OptionChoice>() : found->choices;
}

QString IppChoices::defaultOf(const QString& option) const {
  const Option* found = find(option);
  return found == nullptr ? QString()
                          : findChoice(option, [&](const QString& each) { return each == found->initial; });
}

QString IppChoices::paperChoice(const QString& name) const {
  const auto isName = [&](const QString& each) { return each.compare(name, Qt::CaseInsensitive) == 0; };
  if (QString choice = findChoice(paperKey, isName); !choice.isNull()) return choice;
  const QByteArray bytes = name.toUtf8();
  const pwg_media_t* media = pwgMediaForPWG(bytes.constData());
  if (media == nullptr) media = pwgMediaForLegacy(bytes.constData());
  if (media == nullptr) media = pwgMediaForPPD(bytes.constData());
  const std::optional<CustomSize> size = customSizeOf(name);
  if (!size && media == nullptr) return {};
  const auto [width, height] =
      size ? millimetresOf(*size)
           : std::pair(media->width / unitsPerMillimetre, media->length / unitsPerMillimetre);
  const auto isAbout = [](double one, int other) {
    return std::abs(one * unitsPerMillimetre - other) <= paperTolerance;
  };
  const auto isSize = [&, width = width, height = height](const QString& each) {
    const pwg_media_t* listed = mediaOf(each);
    return listed != nullptr && isAbout(width, listed->width) && isAbout(height, listed->length);
  };
  if (QString choice = findChoice(paperKey, isSize); !choice.isNull()) return choice;
  const bool fits = m_custom && width >= m_custom->leastWidth && width <= m_custom->mostWidth &&
                    height >= m_custom->leastHeight && height <= m_custom->mostHeight;
  return fits ? customChoice(width, height) : QString();
}

std::pair<QString, QString> IppChoices::sentAs(const QString& option, const QString& choice) const {
  const Option* found = find(option);
  if (found == nullptr) return {option, choice};
  const std::optional<CustomSize> size = option == paperKey ? customSizeOf(choice) : std::nullopt;
  if (!size) return {found->attribute, choice};
  const auto [width, height] = millimetresOf(*size);
  std::array<char, 128> name{};
  pwgFormatSizeName(name.data(), name.size(), "custom", nullptr, qRound(width * unitsPerMillimetre),
                    qRound(height * unitsPerMillimetre), "mm");
  return {found->attribute, QString::fromUtf8(name.data())};
}

// A printer takes source and type as members of "media-col" alone, and the paper with them.
void IppChoices::join(QMap<QString, QString>* sent) const {
  QStringList members;
  for (const char* name : {"media-source", "media-type"}) {
    const QString member = sent->take(QLatin1String(name));
    if (!member.isEmpty()) members.append(QStringLiteral("%1=%2").arg(QLatin1String(name), member));
  }
  if (members.isEmpty()) return;
  sent->remove(QStringLiteral("media"));
  if (const std::optional<PpdPaper> paper = markedPaper()) {
    members.prepend(QStringLiteral("media-size={x-dimension=%1 y-dimension=%2}")
                        .arg(qRound(paper->width * unitsPerMillimetre))
                        .arg(qRound(paper->height * unitsPerMillimetre)));
  }
  sent->insert(QStringLiteral("media-col"), u'{' + members.join(u' ') + u'}');
}

std::optional<PpdPaper> IppChoices::markedPaper() const {
  const QString choice = m_marked.value(paperKey, defaultOf(paperKey));
  const std::optional<CustomSize> custom = customSizeOf(choice);
  const pwg_media_t* media = mediaOf(choice);
  if (!custom && media == nullptr) return {};
  const auto [width, height] =
      custom ? millimetresOf(*custom)
             : std::pair(media->width / unitsPerMillimetre, media->length / unitsPerMillimetre);
  return PpdPaper{.keyword = choice,
                  .text = media == nullptr ? choice : QString::fromUtf8(media->ppd),
                  .standardName = custom ? QString() : choice.section(u'_', 0, -2),
                  .width = width,
                  .height = height,
                  .left = m_margins[0],
                  .right = m_margins[1],
                  .top = m_margins[2],
                  .bottom = m_margins[3]};
}

}  // namespace kesto
