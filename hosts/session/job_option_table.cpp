#include "hosts/session/job_option_table.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <algorithm>

namespace kesto {
namespace {

using enum OptionKind;
using enum OptionGroup;

// key, text, other names, kind, group, initial value, what it needs
constexpr std::array rows{
    OptionRow{"copies", QT_TRANSLATE_NOOP("JobOptions", "Copies"), {}, Number, General, "1"},
    OptionRow{"collate", QT_TRANSLATE_NOOP("JobOptions", "Collate"), {}, Switch, General, "true", "copies"},
    OptionRow{"outputorder", QT_TRANSLATE_NOOP("JobOptions", "Reverse"), {}, Switch, General, "normal"},
    OptionRow{"page-ranges", QT_TRANSLATE_NOOP("JobOptions", "Pages"), {}, Pages},
    OptionRow{"page-set", QT_TRANSLATE_NOOP("JobOptions", "Only print"), {}, Keyword, General, "all"},
    OptionRow{"PageSize", QT_TRANSLATE_NOOP("JobOptions", "Paper size"), {"PageRegion", "media"}},
    OptionRow{"Duplex", QT_TRANSLATE_NOOP("JobOptions", "Two-sided"), {"sides"}},
    OptionRow{"ColorModel", QT_TRANSLATE_NOOP("JobOptions", "Color"), {"print-color-mode"}},
    OptionRow{"cupsPrintQuality", QT_TRANSLATE_NOOP("JobOptions", "Quality"), {"print-quality"}},
    OptionRow{"OutputMode", nullptr, {"print-quality"}},  // where a PPD has no cupsPrintQuality
    OptionRow{"InputSlot", QT_TRANSLATE_NOOP("JobOptions", "Paper source"), {"media-source"}},
    OptionRow{"MediaType", QT_TRANSLATE_NOOP("JobOptions", "Paper type"), {"media-type"}},
    OptionRow{"OutputBin", QT_TRANSLATE_NOOP("JobOptions", "Output tray"), {"output-bin"}},
    OptionRow{"StapleLocation", QT_TRANSLATE_NOOP("JobOptions", "Staple")},
    OptionRow{"PunchMedia", QT_TRANSLATE_NOOP("JobOptions", "Punch")},
    OptionRow{"FoldType", QT_TRANSLATE_NOOP("JobOptions", "Fold")},
    // Of a printer without a PPD; 3 is none.
    OptionRow{"finishings", QT_TRANSLATE_NOOP("JobOptions", "Finishing"), {}, Choice, General, "3"},

    OptionRow{"orientation-requested",
              QT_TRANSLATE_NOOP("JobOptions", "Orientation"),
              {"landscape"},
              Keyword,
              Layout},
    OptionRow{"number-up", QT_TRANSLATE_NOOP("JobOptions", "Pages per sheet"), {}, Keyword, Layout, "1"},
    OptionRow{"Booklet", QT_TRANSLATE_NOOP("JobOptions", "Booklet"), {}, Choice, Layout},
    OptionRow{"number-up-layout",
              QT_TRANSLATE_NOOP("JobOptions", "Page order"),
              {},
              Keyword,
              Layout,
              "lrtb",
              "number-up"},
    OptionRow{"page-border", QT_TRANSLATE_NOOP("JobOptions", "Border"), {}, Keyword, Layout, "none"},
    OptionRow{"print-scaling",
              QT_TRANSLATE_NOOP("JobOptions", "Scaling"),
              {"scaling", "fitplot", "fit-to-page"},
              Scaling,
              Layout,
              "auto"},

    OptionRow{"job-hold-until", QT_TRANSLATE_NOOP("JobOptions", "Print"), {}, Hold, Job, "no-hold"},
    OptionRow{"job-priority", QT_TRANSLATE_NOOP("JobOptions", "Priority"), {}, Keyword, Job, "50"},
    OptionRow{"job-billing", QT_TRANSLATE_NOOP("JobOptions", "Billing information"), {}, Text, Job, ""},
    OptionRow{"job-sheets", QT_TRANSLATE_NOOP("JobOptions", "Cover sheets"), {}, Covers, Job, "none,none"},

    OptionRow{"Resolution",
              QT_TRANSLATE_NOOP("JobOptions", "Resolution"),
              {"printer-resolution", "resolution"},
              Choice,
              More},
};

bool isSame(const QString& name, const char* other) {
  return name.compare(QLatin1String(other), Qt::CaseInsensitive) == 0;
}

// The rows by their names in lower case; those that share a name in the table's order.
QHash<QString, QList<const OptionRow*>> indexOfRows() {
  QHash<QString, QList<const OptionRow*>> index;
  for (const OptionRow& row : rows) {
    index[QString::fromLatin1(row.key).toLower()].append(&row);
    for (const char* each : row.names)
      if (each != nullptr) index[QString::fromLatin1(each).toLower()].append(&row);
  }
  return index;
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

const OptionRow* rowOf(const QString& name, const QueueChoices& choices) {
  static const auto index = indexOfRows();
  const OptionRow* found = nullptr;
  for (const OptionRow* row : index.value(name.toLower())) {
    // "Collate" of a PPD is not the job's "collate".
    if (row->kind != Choice && choices.has(name)) continue;
    if (choices.has(QLatin1String(row->key))) return row;
    if (found == nullptr) found = row;
  }
  return found;
}

QString travellingName(const OptionRow& row, const QString& value) {
  const bool isPercent = row.kind == Scaling && value.toInt() > 0;
  return QLatin1String(isPercent ? "scaling" : row.key);
}

}  // namespace kesto
