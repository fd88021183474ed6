#include "hosts/session/standard_texts.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>
#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

namespace kesto {
namespace {

// A value: the PPD options that have it, its names there, among them the standard's without its signs, and
// our text. "#" at the end of a name stands for a number, "*" for any option.
struct StandardValue {
  const char* options = nullptr;
  const char* names = nullptr;
  const char* text = nullptr;
  const char* part = nullptr;  // what "%1" in the text stands for, unless that is a number
};

constexpr const char* anyOption = "*";

constexpr std::array standardValues{
    // Paper sizes; the names of the others, such as A4, are the same in all languages.
    StandardValue{"PageSize", "Letter na_letter", QT_TRANSLATE_NOOP("StandardTexts", "Letter")},
    StandardValue{"PageSize", "Legal na_legal", QT_TRANSLATE_NOOP("StandardTexts", "Legal")},
    StandardValue{"PageSize", "Executive na_executive", QT_TRANSLATE_NOOP("StandardTexts", "Executive")},
    StandardValue{"PageSize", "Tabloid na_ledger", QT_TRANSLATE_NOOP("StandardTexts", "Tabloid")},
    StandardValue{"PageSize", "Ledger 11x17", QT_TRANSLATE_NOOP("StandardTexts", "Ledger")},
    StandardValue{"PageSize", "Statement HalfLetter na_invoice",
                  QT_TRANSLATE_NOOP("StandardTexts", "Statement")},
    StandardValue{"PageSize", "Postcard jpn_hagaki", QT_TRANSLATE_NOOP("StandardTexts", "Postcard")},
    StandardValue{"PageSize", "DoublePostcardRotated DoublePostcard jpn_oufuku",
                  QT_TRANSLATE_NOOP("StandardTexts", "Double postcard")},
    StandardValue{"PageSize", "EnvMonarch na_monarch",
                  QT_TRANSLATE_NOOP("StandardTexts", "Envelope Monarch")},
    StandardValue{"PageSize", "EnvDL iso_dl", QT_TRANSLATE_NOOP("StandardTexts", "Envelope %1"), "DL"},
    StandardValue{"PageSize", "EnvC4 iso_c4", QT_TRANSLATE_NOOP("StandardTexts", "Envelope %1"), "C4"},
    StandardValue{"PageSize", "EnvC5 iso_c5", QT_TRANSLATE_NOOP("StandardTexts", "Envelope %1"), "C5"},
    StandardValue{"PageSize", "EnvC6 iso_c6", QT_TRANSLATE_NOOP("StandardTexts", "Envelope %1"), "C6"},
    StandardValue{"PageSize", "EnvISOB5 EnvB5", QT_TRANSLATE_NOOP("StandardTexts", "Envelope %1"), "B5"},
    StandardValue{"PageSize", "Env# na_number#", QT_TRANSLATE_NOOP("StandardTexts", "Envelope #%1")},
    // Paper sources.
    StandardValue{"InputSlot MediaType OutputBin ColorModel Duplex",
                  "Auto Automatic AutoSelect AutoSource Any Unspecified",
                  QT_TRANSLATE_NOOP("StandardTexts", "Automatic")},
    StandardValue{"InputSlot", "Main MainTray", QT_TRANSLATE_NOOP("StandardTexts", "Main tray")},
    StandardValue{"InputSlot", "Alternate", QT_TRANSLATE_NOOP("StandardTexts", "Alternate tray")},
    StandardValue{"InputSlot", "Cassette", QT_TRANSLATE_NOOP("StandardTexts", "Cassette")},
    StandardValue{"InputSlot", "Cassette#", QT_TRANSLATE_NOOP("StandardTexts", "Cassette %1")},
    StandardValue{"InputSlot OutputBin", "Tray#", QT_TRANSLATE_NOOP("StandardTexts", "Tray %1")},
    StandardValue{"InputSlot", "Manual ManualFeed ManualTray",
                  QT_TRANSLATE_NOOP("StandardTexts", "Manual feed")},
    StandardValue{"InputSlot", "ByPassTray ByPass MultiPurpose MultiPurposeTray MPTray Multi",
                  QT_TRANSLATE_NOOP("StandardTexts", "Multi-purpose tray")},
    StandardValue{"InputSlot", "Envelope EnvFeeder EnvelopeFeeder",
                  QT_TRANSLATE_NOOP("StandardTexts", "Envelope feeder")},
    StandardValue{"InputSlot", "EnvManual ManualEnvelope EnvelopeManual",
                  QT_TRANSLATE_NOOP("StandardTexts", "Manual envelope feed")},
    StandardValue{"InputSlot OutputBin", "LargeCapacity LargeCapacityTray",
                  QT_TRANSLATE_NOOP("StandardTexts", "Large-capacity tray")},
    StandardValue{"InputSlot", "Upper Top TopTray", QT_TRANSLATE_NOOP("StandardTexts", "Upper tray")},
    StandardValue{"InputSlot", "Middle", QT_TRANSLATE_NOOP("StandardTexts", "Middle tray")},
    StandardValue{"InputSlot", "Lower Bottom BottomTray", QT_TRANSLATE_NOOP("StandardTexts", "Lower tray")},
    StandardValue{"InputSlot", "Left", QT_TRANSLATE_NOOP("StandardTexts", "Left tray")},
    StandardValue{"InputSlot", "Right", QT_TRANSLATE_NOOP("StandardTexts", "Right tray")},
    StandardValue{"InputSlot", "Side", QT_TRANSLATE_NOOP("StandardTexts", "Side tray")},
    StandardValue{"InputSlot", "Rear", QT_TRANSLATE_NOOP("StandardTexts", "Rear tray")},
    StandardValue{"InputSlot", "Center", QT_TRANSLATE_NOOP("StandardTexts", "Center tray")},
    StandardValue{"InputSlot", "Photo", QT_TRANSLATE_NOOP("StandardTexts", "Photo tray")},
    StandardValue{"InputSlot", "Disc", QT_TRANSLATE_NOOP("StandardTexts", "Disc tray")},
    StandardValue{"InputSlot", "Hagaki", QT_TRANSLATE_NOOP("StandardTexts", "Postcard tray")},
    StandardValue{"InputSlot", "MainRoll Roll", QT_TRANSLATE_NOOP("StandardTexts", "Paper roll")},
    StandardValue{"InputSlot", "AlternateRoll", QT_TRANSLATE_NOOP("StandardTexts", "Alternate paper roll")},
    StandardValue{"InputSlot", "Roll#", QT_TRANSLATE_NOOP("StandardTexts", "Roll %1")},
    // Paper types.
    StandardValue{"MediaType", "Stationery Plain PlainPaper Paper",
                  QT_TRANSLATE_NOOP("StandardTexts", "Plain")},
    StandardValue{"MediaType", "StationeryLetterhead Letterhead",
                  QT_TRANSLATE_NOOP("StandardTexts", "Letterhead")},
    StandardValue{"MediaType", "StationeryPreprinted Preprinted",
                  QT_TRANSLATE_NOOP("StandardTexts", "Preprinted")},
    StandardValue{"MediaType", "StationeryPrepunched Prepunched",
                  QT_TRANSLATE_NOOP("StandardTexts", "Prepunched")},
    StandardValue{"MediaType", "StationeryRecycled Recycled", QT_TRANSLATE_NOOP("StandardTexts", "Recycled")},
    StandardValue{"MediaType", "StationeryBond Bond", QT_TRANSLATE_NOOP("StandardTexts", "Bond")},
    StandardValue{"MediaType", "StationeryHeavyweight Heavyweight Heavy Thick",
                  QT_TRANSLATE_NOOP("StandardTexts", "Heavyweight")},
    StandardValue{"MediaType", "StationeryLightweight Lightweight Light Thin",
                  QT_TRANSLATE_NOOP("StandardTexts", "Lightweight")},
    StandardValue{"MediaType", "StationeryCoated Coated", QT_TRANSLATE_NOOP("StandardTexts", "Coated")},
    StandardValue{"MediaType", "StationeryInkjet Inkjet", QT_TRANSLATE_NOOP("StandardTexts", "Inkjet paper")},
    StandardValue{"MediaType", "StationeryFine Fine", QT_TRANSLATE_NOOP("StandardTexts", "Fine paper")},
    StandardValue{"MediaType", "StationeryColored Colored Color",
                  QT_TRANSLATE_NOOP("StandardTexts", "Colored")},
    StandardValue{"MediaType", "StationeryCotton Cotton", QT_TRANSLATE_NOOP("StandardTexts", "Cotton")},
    StandardValue{"MediaType", "Cardstock Card", QT_TRANSLATE_NOOP("StandardTexts", "Cardstock")},
    StandardValue{"MediaType", "Transparency Transparencies",
                  QT_TRANSLATE_NOOP("StandardTexts", "Transparency")},
    StandardValue{"MediaType", "Envelope", QT_TRANSLATE_NOOP("StandardTexts", "Envelope")},
    StandardValue{"MediaType", "Labels Label", QT_TRANSLATE_NOOP("StandardTexts", "Labels")},
    StandardValue{"MediaType", "Photographic Photo PhotoPaper",
                  QT_TRANSLATE_NOOP("StandardTexts", "Photo paper")},
    StandardValue{"MediaType", "PhotographicGlossy Glossy GlossyPaper PhotoGlossy",
                  QT_TRANSLATE_NOOP("StandardTexts", "Glossy photo paper")},
    StandardValue{"MediaType", "PhotographicHighGloss HighGloss",
                  QT_TRANSLATE_NOOP("StandardTexts", "High-gloss photo paper")},
    StandardValue{"MediaType", "PhotographicSemiGloss SemiGloss",
                  QT_TRANSLATE_NOOP("StandardTexts", "Semi-gloss photo paper")},
    StandardValue{"MediaType", "PhotographicSatin Satin",
                  QT_TRANSLATE_NOOP("StandardTexts", "Satin photo paper")},
    StandardValue{"MediaType", "PhotographicMatte Matte",
                  QT_TRANSLATE_NOOP("StandardTexts", "Matte photo paper")},
    StandardValue{"MediaType", "Continuous", QT_TRANSLATE_NOOP("StandardTexts", "Continuous paper")},
    StandardValue{"MediaType", "TabStock Tabs", QT_TRANSLATE_NOOP("StandardTexts", "Tab stock")},
    StandardValue{"MediaType", "Film", QT_TRANSLATE_NOOP("StandardTexts", "Film")},
    StandardValue{"MediaType", "Disc", QT_TRANSLATE_NOOP("StandardTexts", "Disc")},
    // Output trays.
    StandardValue{"OutputBin", "Top Upper TopBin", QT_TRANSLATE_NOOP("StandardTexts", "Upper output tray")},
    StandardValue{"OutputBin", "Middle MiddleBin", QT_TRANSLATE_NOOP("StandardTexts", "Middle output tray")},
    StandardValue{"OutputBin", "Bottom Lower BottomBin",
                  QT_TRANSLATE_NOOP("StandardTexts", "Lower output tray")},
    StandardValue{"OutputBin", "Left LeftBin", QT_TRANSLATE_NOOP("StandardTexts", "Left output tray")},
    StandardValue{"OutputBin", "Right RightBin", QT_TRANSLATE_NOOP("StandardTexts", "Right output tray")},
    StandardValue{"OutputBin", "Center CenterBin", QT_TRANSLATE_NOOP("StandardTexts", "Center output tray")},
    StandardValue{"OutputBin", "Side SideBin", QT_TRANSLATE_NOOP("StandardTexts", "Side output tray")},
    StandardValue{"OutputBin", "Rear RearBin", QT_TRANSLATE_NOOP("StandardTexts", "Rear output tray")},
    StandardValue{"OutputBin", "FaceUp", QT_TRANSLATE_NOOP("StandardTexts", "Face up")},
    StandardValue{"OutputBin", "FaceDown", QT_TRANSLATE_NOOP("StandardTexts", "Face down")},
    StandardValue{"OutputBin", "Stacker#", QT_TRANSLATE_NOOP("StandardTexts", "Stacker %1")},
    StandardValue{"OutputBin", "Stacker", QT_TRANSLATE_NOOP("StandardTexts", "Stacker")},
    StandardValue{"OutputBin", "MailBox#", QT_TRANSLATE_NOOP("StandardTexts", "Mailbox %1")},
    StandardValue{"OutputBin", "MyMailbox", QT_TRANSLATE_NOOP("StandardTexts", "My mailbox")},
    // Color.
    StandardValue{"ColorModel", "RGB CMYK Color CMY sRGB DeviceRGB DeviceCMYK AdobeRGB",
                  QT_TRANSLATE_NOOP("StandardTexts", "Color")},
    StandardValue{"ColorModel",
                  "Gray Grayscale Mono Monochrome Black KGray DeviceGray FastGray BlackAndWhite "
                  "ProcessMonochrome AutoMonochrome",
                  QT_TRANSLATE_NOOP("StandardTexts", "Black and white")},
    StandardValue{"ColorModel", "BiLevel ProcessBiLevel",
                  QT_TRANSLATE_NOOP("StandardTexts", "Black only, no grays")},
    // Quality.
    StandardValue{"cupsPrintQuality OutputMode", "Draft FastDraft Fast EconoMode 3",
                  QT_TRANSLATE_NOOP("StandardTexts", "Draft")},
    StandardValue{"cupsPrintQuality OutputMode", "Normal Standard 4",
                  QT_TRANSLATE_NOOP("StandardTexts", "Normal")},
    StandardValue{"cupsPrintQuality OutputMode", "High Best 5", QT_TRANSLATE_NOOP("StandardTexts", "High")},
    // Finishings.
    StandardValue{anyOption, "None", QT_TRANSLATE_NOOP("StandardTexts", "None")},
    StandardValue{anyOption, "Staple", QT_TRANSLATE_NOOP("StandardTexts", "Staple")},
    StandardValue{anyOption, "StapleDual", QT_TRANSLATE_NOOP("StandardTexts", "Two staples")},
    StandardValue{anyOption, "StapleTriple", QT_TRANSLATE_NOOP("StandardTexts", "Three staples")},
    StandardValue{anyOption, "EdgeStitch", QT_TRANSLATE_NOOP("StandardTexts", "Edge stitch")},
    StandardValue{anyOption, "SaddleStitch", QT_TRANSLATE_NOOP("StandardTexts", "Saddle stitch")},
    StandardValue{anyOption, "BookletMaker Booklet", QT_TRANSLATE_NOOP("StandardTexts", "Booklet")},
    StandardValue{anyOption, "Punch", QT_TRANSLATE_NOOP("StandardTexts", "Punch")},
    StandardValue{anyOption, "PunchDual", QT_TRANSLATE_NOOP("StandardTexts", "Punch two holes")},
    StandardValue{anyOption, "PunchTriple", QT_TRANSLATE_NOOP("StandardTexts", "Punch three holes")},
    StandardValue{anyOption, "PunchQuad", QT_TRANSLATE_NOOP("StandardTexts", "Punch four holes")},
    StandardValue{anyOption, "PunchMultiple", QT_TRANSLATE_NOOP("StandardTexts", "Punch many holes")},
    StandardValue{anyOption, "Bind", QT_TRANSLATE_NOOP("StandardTexts", "Bind")},
    StandardValue{anyOption, "Trim", QT_TRANSLATE_NOOP("StandardTexts", "Trim")},
    StandardValue{anyOption, "Cover", QT_TRANSLATE_NOOP("StandardTexts", "Add a cover")},
    StandardValue{anyOption, "JogOffset", QT_TRANSLATE_NOOP("StandardTexts", "Offset jobs")},
    StandardValue{anyOption, "Laminate", QT_TRANSLATE_NOOP("StandardTexts", "Laminate")},
    StandardValue{anyOption, "Fold", QT_TRANSLATE_NOOP("StandardTexts", "Fold")},
    StandardValue{anyOption, "FoldHalf", QT_TRANSLATE_NOOP("StandardTexts", "Fold in half")},
    StandardValue{anyOption, "FoldLetter", QT_TRANSLATE_NOOP("StandardTexts", "Letter fold")},
    StandardValue{anyOption, "FoldZ", QT_TRANSLATE_NOOP("StandardTexts", "Z fold")},
    StandardValue{anyOption, "FoldHalfZ", QT_TRANSLATE_NOOP("StandardTexts", "Half Z fold")},
    StandardValue{anyOption, "FoldAccordion", QT_TRANSLATE_NOOP("StandardTexts", "Accordion fold")},
    StandardValue{anyOption, "FoldGate", QT_TRANSLATE_NOOP("StandardTexts", "Gate fold")},
    StandardValue{anyOption, "FoldDoubleGate", QT_TRANSLATE_NOOP("StandardTexts", "Double gate fold")},
    StandardValue{anyOption, "FoldParallel", QT_TRANSLATE_NOOP("StandardTexts", "Parallel fold")},
};

// Where a finishing is made.
constexpr std::array places{
    StandardValue{anyOption, "TopLeft", QT_TRANSLATE_NOOP("StandardTexts", "top left")},
    StandardValue{anyOption, "BottomLeft", QT_TRANSLATE_NOOP("StandardTexts", "bottom left")},
    StandardValue{anyOption, "TopRight", QT_TRANSLATE_NOOP("StandardTexts", "top right")},
    StandardValue{anyOption, "BottomRight", QT_TRANSLATE_NOOP("StandardTexts", "bottom right")},
    StandardValue{anyOption, "Left", QT_TRANSLATE_NOOP("StandardTexts", "left")},
    StandardValue{anyOption, "Top", QT_TRANSLATE_NOOP("StandardTexts", "top")},
    StandardValue{anyOption, "Right", QT_TRANSLATE_NOOP("StandardTexts", "right")},
    StandardValue{anyOption, "Bottom", QT_TRANSLATE_NOOP("StandardTexts", "bottom")},
};

QString translated(const char* text) {
  return QCoreApplication::translate("StandardTexts", text);
}

// The dimensions of "na_letter_8.5x11in" do not matter.
QString plainValue(const QString& option, const QString& value) {
  return plainName(option == u"PageSize" && value.count(u'_') > 1 ? value.section(u'_', 0, 1) : value);
}

// The values of one option by plain name.
using Index = std::unordered_map<std::string, const StandardValue*>;

// Takes a list of words apart.
template <class Take>
void forEachWord(std::string_view words, Take take) {
  while (!words.empty()) {
    const std::size_t end = std::min(words.find(' '), words.size());
    take(words.substr(0, end));
    words.remove_prefix(std::min(end + 1, words.size()));
  }
}

Index indexOf(std::span<const StandardValue> table, std::string_view wanted) {
  Index index;
  for (const StandardValue& each : table) {
    forEachWord(each.options, [&](std::string_view option) {
      if (option != wanted) return;
      forEachWord(each.names, [&](std::string_view name) {
        const QString word = QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
        index[plainName(word).toStdString()] = &each;
      });
    });
  }
  return index;
}

const StandardValue* find(const Index& index, const QString& name) {
  const auto found = index.find(name.toStdString());
  return found == index.end() ? nullptr : found->second;
}

// Made for the options that are asked for: a print mostly needs one of them, and a dialog all.
const StandardValue* valueNamed(const QString& option, const QString& name) {
  static thread_local std::unordered_map<std::string, Index> indexes;
  for (const std::string& each : {option.toStdString(), std::string(anyOption)}) {
    const auto [index, isNew] = indexes.try_emplace(each);
    if (isNew) index->second = indexOf(standardValues, each);
    if (const StandardValue* found = find(index->second, name); found != nullptr) return found;
  }
  return nullptr;
}

struct Found {
  const StandardValue* value = nullptr;
  QString part;
};

Found findValue(const QString& option, const QString& value) {
  const QString name = plainValue(option, value);
  if (const StandardValue* found = valueNamed(option, name)) return {found, QLatin1String(found->part)};
  qsizetype digits = name.size();
  while (digits > 0 && name[digits - 1].isDigit())
    --digits;
  if (digits == name.size()) return {};
  return {valueNamed(option, name.first(digits) + u'#'), name.sliced(digits)};
}

QString textOf(const Found& found) {
  const QString text = translated(found.value->text);
  return found.part.isEmpty() ? text : text.arg(found.part);
}

// "staple-top-left" is a finishing and its place.
QString placedFinishing(const QString& value) {
  static const Index index = indexOf(places, anyOption);
  const QString name = plainName(value);
  for (qsizetype length = name.size() - 1; length > 0; --length) {
    const StandardValue* finishing = valueNamed(QLatin1String(anyOption), name.first(length));
    const StandardValue* place = find(index, name.sliced(length));
    if (finishing == nullptr || place == nullptr) continue;
    return translated(QT_TRANSLATE_NOOP("StandardTexts", "%1, %2"))
        .arg(translated(finishing->text), translated(place->text));
  }
  return {};
}

QString borderless(const QString& option, const QString& value) {
  const QString size = value.section(u'.', 0, 0);
  const QString text = standardText(option, size);
  return translated(QT_TRANSLATE_NOOP("StandardTexts", "%1, borderless")).arg(text.isNull() ? size : text);
}

}  // namespace

QString standardText(const QString& option, const QString& value) {
  if (option == u"PageSize" && (value.endsWith(u".Fullbleed") || value.endsWith(u".Borderless")))
    return borderless(option, value);
  const Found found = findValue(option, value);
  return found.value != nullptr ? textOf(found) : placedFinishing(value);
}

QString plainName(const QString& name) {
  QString plain;
  plain.reserve(name.size());
  for (const QChar each : name) {
    if (each != u'-' && each != u'_' && each != u' ') plain.append(each.toLower());
  }
  return plain;
}

QStringList standardNames(const QString& option, const QString& value) {
  const StandardValue* found = valueNamed(option, plainValue(option, value));
  return found == nullptr ? QStringList() : QString::fromLatin1(found->names).split(u' ');
}

bool isStandardText(const QString& option, const QString& value, const QString& text) {
  if (plainName(text) == plainName(value)) return true;
  const Found found = findValue(option, text);
  return found.value != nullptr && found.value == findValue(option, value).value;
}

}  // namespace kesto
