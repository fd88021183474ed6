#include "hosts/session/job_option_table.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "hosts/cups/ppd_choices.h"
#include "hosts/cups/print_job.h"

namespace kesto {
namespace {

// One option: its name in PPDs, others there, and those of the standard; the first that is given counts.
struct Row {
  const char* option = "";
  std::array<const char*, 3> others{};
};

constexpr std::array rows{
    Row{"PageSize", {"PageRegion", "media"}},
    Row{"InputSlot", {"media-source"}},
    Row{"MediaType", {"media-type"}},
    Row{"Duplex", {"sides"}},
    Row{"ColorModel", {"print-color-mode"}},
    Row{"OutputBin", {"output-bin"}},
    Row{"Resolution", {"printer-resolution", "resolution"}},
    Row{"cupsPrintQuality", {"print-quality"}},
    Row{"OutputMode", {"print-quality"}},  // where a PPD has no cupsPrintQuality
};

// A value of the standard, and what PPDs call it; the first that the PPD has is it. Values whose names differ
// in letter case and signs alone, as "tray-1" and "Tray1" do, need no line.
struct Value {
  const char* option;
  const char* standard;
  const char* choices;
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
    Value{"Duplex", "one-sided", "None Off False Simplex"},
    Value{"Duplex", "two-sided-long-edge", "DuplexNoTumble"},
    Value{"Duplex", "two-sided-short-edge", "DuplexTumble"},
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

// Where a name stands in a row, -1 for nowhere.
int rankIn(const Row& row, const QString& name) {
  if (isSame(name, row.option)) return 0;
  const auto* found =
      std::ranges::find_if(row.others, [&](auto* each) { return each != nullptr && isSame(name, each); });
  return found == row.others.end() ? -1 : 1 + static_cast<int>(found - row.others.begin());
}

// The row of a name; where two share it, the one whose option the PPD has.
const Row* rowOf(const QString& name, ppd_file_t* ppd) {
  const Row* found = nullptr;
  for (const Row& row : rows) {
    if (rankIn(row, name) < 0) continue;
    if (ppd != nullptr && hasOption(*ppd, QLatin1String(row.option))) return &row;
    if (found == nullptr) found = &row;
  }
  return found;
}

// "600x600dpi" for "600dpi" as well.
QString bothWays(const QString& resolution) {
  const QString text = resolution.toLower();
  const QString number = text.endsWith(u"dpi") ? text.chopped(3) : QString();
  return number.isEmpty() || number.contains(u'x') ? text : QStringLiteral("%1x%1dpi").arg(number);
}

QString choiceOf(ppd_file_t& ppd, const QString& option, const QString& value) {
  if (option == u"PageSize") return paperChoice(ppd, value);
  const QStringList choices = choicesOf(ppd, option);
  const auto find = [&](const QString& wanted, auto form) {
    const auto found = std::ranges::find(choices, form(wanted), form);
    return found == choices.end() ? QString() : *found;
  };
  if (choices.contains(value)) return value;
  if (option == u"Resolution") return find(value, bothWays);
  if (QString choice = find(value, plain); !choice.isNull()) return choice;
  for (const Value& each : values) {
    if (option != QLatin1String(each.option) || !isSame(value, each.standard)) continue;
    for (const QString& name : QString::fromLatin1(each.choices).split(u' ')) {
      if (QString choice = find(name, plain); !choice.isNull()) return choice;
    }
  }
  return hasCustomChoice(ppd, option) && value.startsWith(u"Custom.") ? value : QString();
}

// A value on its way, with the words that gave it.
struct Given {
  QString name;
  QString value;
  QString words;
  int rank = 0;  // the lowest counts
};

// What "media" says of source and type besides the paper, part by part.
void takeMedia(ppd_file_t& ppd, const Given& media, std::vector<Given>* given, QStringList* refused) {
  static constexpr std::array options{"PageSize", "InputSlot", "MediaType"};
  for (const QString& part : media.value.split(u',', Qt::SkipEmptyParts)) {
    const auto* option = std::ranges::find_if(
        options, [&](const char* each) { return !choiceOf(ppd, QLatin1String(each), part).isNull(); });
    if (option == options.end()) {
      refused->append(media.words);
    } else {
      given->push_back({QLatin1String(*option), part, media.words, media.rank});
    }
  }
}

// The members of a "media-col" that are options by themselves.
void takeMediaCol(const Given& media, std::vector<Given>* given) {
  const QMap<QString, QString> members = parseJobOptions(media.value);
  for (auto it = members.begin(); it != members.end(); ++it) {
    Given member{it.key(), it.value(), media.words, media.rank};
    if (it.key() == u"media-size-name") member.name = QStringLiteral("PageSize");
    if (it.key() == u"media-size") {
      const QMap<QString, QString> size = parseJobOptions(it.value());
      const auto length = [&](const char* side) {  // in hundredths of a millimetre
        return size.value(QLatin1String(side)).toInt() / 100.0;
      };
      member.name = QStringLiteral("PageSize");
      member.value = customChoice(length("x-dimension"), length("y-dimension"));
    }
    given->push_back(member);
  }
}

// Beyond every name of a row.
constexpr int partRank = 8;
constexpr int keptRank = 10;

// What was given, taken apart.
void take(ppd_file_t* ppd, const QMap<QString, QString>& options, int rank, std::vector<Given>* given,
          QStringList* refused) {
  for (auto it = options.begin(); it != options.end(); ++it) {
    Given each{it.key(), it.value(), it.key() + u'=' + it.value(), rank + partRank};
    if (ppd != nullptr && isSame(it.key(), "media")) {
      takeMedia(*ppd, each, given, refused);
    } else if (ppd != nullptr && isSame(it.key(), "media-col")) {
      takeMediaCol(each, given);
    } else {
      const Row* row = rowOf(it.key(), ppd);
      each.rank = rank + (row == nullptr ? 0 : rankIn(*row, it.key()));
      given->push_back(each);
    }
  }
}

}  // namespace

bool JobOptionTable::has(const QString& name) const {
  return isSame(name, "media-col") || rowOf(name, m_ppd) != nullptr ||
         (m_ppd != nullptr && hasOption(*m_ppd, name));
}

JobChoices JobOptionTable::resolve(const QMap<QString, QString>& given,
                                   const QMap<QString, QString>& kept) const {
  JobChoices choices;
  std::vector<Given> all;
  take(m_ppd, given, 0, &all, &choices.refused);
  take(m_ppd, kept, keptRank, &all, &choices.refused);
  std::ranges::stable_sort(all, {}, &Given::rank);
  QStringList taken;
  for (const Given& each : all) {
    const Row* row = rowOf(each.name, m_ppd);
    const QString option = row == nullptr ? each.name : QLatin1String(row->option);
    if (taken.contains(option)) continue;
    const bool isOfPpd = m_ppd != nullptr && hasOption(*m_ppd, option);
    const QString choice = isOfPpd ? choiceOf(*m_ppd, option, each.value) : each.value;
    if (choice.isNull()) {
      choices.refused.append(each.words);
    } else {
      choices.options.insert(isOfPpd ? option : each.name, choice);
      taken.append(option);
    }
  }
  choices.refused.removeDuplicates();
  return choices;
}

}  // namespace kesto
