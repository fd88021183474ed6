#include "hosts/session/job_option_table.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>
#include <algorithm>

namespace kesto {
namespace {

using enum OptionKind;
using enum OptionGroup;

// key, text, other names, kind, group, initial value, what it needs
constexpr std::array rows{
    OptionRow{"copies", QT_TRANSLATE_NOOP("JobOptions", "Copies"), {}, Number, General, "1"},
    OptionRow{"collate", QT_TRANSLATE_NOOP("JobOptions", "Collate"), {}, Switch, General, "true", "copies"},
    OptionRow{"page-ranges", QT_TRANSLATE_NOOP("JobOptions", "Pages"), {}, Pages},
    OptionRow{"PageSize", QT_TRANSLATE_NOOP("JobOptions", "Paper size"), {"PageRegion", "media"}},
    OptionRow{"InputSlot", QT_TRANSLATE_NOOP("JobOptions", "Paper source"), {"media-source"}},
    OptionRow{"MediaType", QT_TRANSLATE_NOOP("JobOptions", "Paper type"), {"media-type"}},
    OptionRow{"Duplex", QT_TRANSLATE_NOOP("JobOptions", "Two-sided"), {"sides"}},
    OptionRow{"ColorModel", QT_TRANSLATE_NOOP("JobOptions", "Color"), {"print-color-mode"}},
    OptionRow{"cupsPrintQuality", QT_TRANSLATE_NOOP("JobOptions", "Print quality"), {"print-quality"}},
    OptionRow{"OutputMode", nullptr, {"print-quality"}},  // where a PPD has no cupsPrintQuality
    OptionRow{
        "Resolution", QT_TRANSLATE_NOOP("JobOptions", "Resolution"), {"printer-resolution", "resolution"}},
    OptionRow{"OutputBin", QT_TRANSLATE_NOOP("JobOptions", "Output tray"), {"output-bin"}},
    OptionRow{"StapleLocation", QT_TRANSLATE_NOOP("JobOptions", "Staple")},
    OptionRow{"number-up", QT_TRANSLATE_NOOP("JobOptions", "Pages per sheet"), {}, Text, Layout, "1"},
    OptionRow{"number-up-layout",
              QT_TRANSLATE_NOOP("JobOptions", "Page order"),
              {},
              Text,
              Layout,
              nullptr,
              "number-up"},
    OptionRow{"scaling", QT_TRANSLATE_NOOP("JobOptions", "Scaling"), {}, Text, Layout, "100"},
};

// A value of the standard, and what PPDs call it; the first that the PPD has is it. Values whose names differ
// in letter case and signs alone, as "tray-1" and "Tray1" do, need no line.
struct Value {
  const char* option = "";
  const char* standard = "";
  const char* choices = "";
  const char* text = nullptr;
};

constexpr std::array values{
    Value{"InputSlot", "auto", "Auto Automatic AutoSelect AutoSource Default"},
    Value{"InputSlot", "main", "Main Cassette Tray1 Upper"},
    Value{"InputSlot", "manual", "Manual ManualFeed"},
    Value{"InputSlot", "by-pass-tray", "ByPassTray Bypass MultiPurpose MPTray Manual"},
    Value{"InputSlot", "envelope", "Envelope EnvFeeder EnvManual"},
    Value{"MediaType", "auto", "Auto Any Unspecified"},
    Value{"MediaType", "stationery", "Stationery Plain PlainPaper Paper"},
    Value{"MediaType", "stationery-letterhead", "Letterhead"},
    Value{"MediaType", "stationery-recycled", "Recycled"},
    Value{"MediaType", "stationery-heavyweight", "Heavy Thick"},
    Value{"MediaType", "stationery-lightweight", "Light Thin"},
    Value{"MediaType", "cardstock", "Cardstock Card"},
    Value{"MediaType", "photographic", "Photo PhotoPaper"},
    Value{"MediaType", "photographic-glossy", "Glossy GlossyPaper PhotoGlossy"},
    Value{"Duplex", "one-sided", "None Off False Simplex", QT_TRANSLATE_NOOP("JobOptions", "Off")},
    Value{"Duplex", "two-sided-long-edge", "DuplexNoTumble", QT_TRANSLATE_NOOP("JobOptions", "Long edge")},
    Value{"Duplex", "two-sided-short-edge", "DuplexTumble", QT_TRANSLATE_NOOP("JobOptions", "Short edge")},
    Value{"ColorModel", "monochrome", "Gray Grayscale Mono Monochrome Black KGray"},
    Value{"ColorModel", "color", "RGB CMYK Color CMY sRGB"},
    Value{"cupsPrintQuality", "3", "Draft"},
    Value{"cupsPrintQuality", "4", "Normal"},
    Value{"cupsPrintQuality", "5", "High"},
    Value{"OutputMode", "3", "Draft FastDraft Fast EconoMode"},
    Value{"OutputMode", "draft", "Draft FastDraft Fast EconoMode"},
    Value{"OutputMode", "4", "Normal Standard"},
    Value{"OutputMode", "5", "High Best"},
    Value{"OutputMode", "high", "High Best"},
};

QString plain(const QString& name) {
  QString letters = name.toLower();
  return letters.remove(u'-').remove(u'_').remove(u' ');
}

bool isSame(const QString& name, const char* other) {
  return name.compare(QLatin1String(other), Qt::CaseInsensitive) == 0;
}

QStringList choicesOf(const Value& value) {
  return QString::fromLatin1(value.choices).split(u' ');
}

const Value* valueOfChoice(const QString& option, const QString& choice) {
  const auto* found = std::ranges::find_if(values, [&](const Value& each) {
    return option == QLatin1String(each.option) && choicesOf(each).contains(choice);
  });
  return found == values.end() ? nullptr : found;
}

// "600x600dpi" for "600dpi" as well.
QString bothWays(const QString& resolution) {
  const QString text = resolution.toLower();
  const QString number = text.endsWith(u"dpi") ? text.chopped(3) : QString();
  return number.isEmpty() || number.contains(u'x') ? text : QStringLiteral("%1x%1dpi").arg(number);
}

}  // namespace

std::span<const OptionRow> optionTable() {
  return rows;
}

int rankIn(const OptionRow& row, const QString& name) {
  if (isSame(name, row.key)) return 0;
  const auto* found =
      std::ranges::find_if(row.names, [&](auto* each) { return each != nullptr && isSame(name, each); });
  return found == row.names.end() ? -1 : 1 + static_cast<int>(found - row.names.begin());
}

const OptionRow* rowOf(const QString& name, const PpdChoices& choices) {
  const OptionRow* found = nullptr;
  for (const OptionRow& row : rows) {
    // "Collate" of a PPD is not the job's "collate".
    if (rankIn(row, name) < 0 || (row.kind != Choice && choices.has(name))) continue;
    if (choices.has(QLatin1String(row.key))) return &row;
    if (found == nullptr) found = &row;
  }
  return found;
}

QString choiceFor(const PpdChoices& choices, const QString& option, const QString& value) {
  if (option == u"PageSize") return choices.paperChoice(value);
  const auto find = [&](const QString& wanted, auto form) {
    return choices.findChoice(option, [&](const QString& each) { return form(each) == form(wanted); });
  };
  if (QString choice = find(value, [](const QString& each) { return each; }); !choice.isNull()) return choice;
  if (option == u"Resolution") return find(value, bothWays);
  if (QString choice = find(value, plain); !choice.isNull()) return choice;
  for (const Value& each : values) {
    if (option != QLatin1String(each.option) || !isSame(value, each.standard)) continue;
    for (const QString& name : choicesOf(each)) {
      if (QString choice = find(name, plain); !choice.isNull()) return choice;
    }
  }
  return choices.takesCustom(option) && value.startsWith(u"Custom.") ? value : QString();
}

QString standardValueOf(const QString& option, const QString& choice) {
  const Value* found = valueOfChoice(option, choice);
  return found == nullptr ? QString() : QLatin1String(found->standard);
}

const char* textOfChoice(const QString& option, const QString& choice) {
  const Value* found = valueOfChoice(option, choice);
  return found == nullptr ? nullptr : found->text;
}

}  // namespace kesto
