#include "hosts/session/job_option_values.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>
#include <algorithm>

#include "hosts/session/standard_texts.h"

namespace kesto {
namespace {

// A value of the standard, and its other names. Those of an option of the queue are what PPDs call it, or
// what serves in its place; the first that the PPD has is it. Names of the same thing are in
// `standard_texts.cpp`.
struct Value {
  const char* option = "";
  const char* standard = "";
  const char* names = "";
  const char* text = nullptr;
};

constexpr std::array values{
    Value{"InputSlot", "auto", "Auto Automatic AutoSelect AutoSource Default"},
    Value{"InputSlot", "main", "Main Cassette Tray1 Upper"},
    Value{"InputSlot", "manual", "Manual ManualFeed"},
    Value{"InputSlot", "by-pass-tray", "ByPassTray Bypass MultiPurpose MPTray Manual"},
    Value{"InputSlot", "envelope", "Envelope EnvFeeder EnvManual"},
    Value{"Duplex", "one-sided", "None Off False Simplex", QT_TRANSLATE_NOOP("JobOptions", "Off")},
    Value{"Duplex", "two-sided-long-edge", "DuplexNoTumble", QT_TRANSLATE_NOOP("JobOptions", "Long edge")},
    Value{"Duplex", "two-sided-short-edge", "DuplexTumble", QT_TRANSLATE_NOOP("JobOptions", "Short edge")},
    Value{"Booklet", "false", "False Off No None", QT_TRANSLATE_NOOP("JobOptions", "Off")},
    Value{"Booklet", "true", "True On Yes Booklet", QT_TRANSLATE_NOOP("JobOptions", "On")},

    Value{"collate", "false", "off no", QT_TRANSLATE_NOOP("JobOptions", "Off")},
    Value{"collate", "true", "on yes", QT_TRANSLATE_NOOP("JobOptions", "On")},
    Value{"outputorder", "normal", "same-order false off no", QT_TRANSLATE_NOOP("JobOptions", "Off")},
    Value{"outputorder", "reverse", "reverse-order true on yes", QT_TRANSLATE_NOOP("JobOptions", "On")},
    Value{"page-ranges", "\ncurrent", "", QT_TRANSLATE_NOOP("JobOptions", "Current page")},
    Value{"page-ranges", "\nselection", "", QT_TRANSLATE_NOOP("JobOptions", "Selection")},
    Value{"page-set", "all", "", QT_TRANSLATE_NOOP("JobOptions", "All pages")},
    Value{"page-set", "odd", "", QT_TRANSLATE_NOOP("JobOptions", "Odd pages")},
    Value{"page-set", "even", "", QT_TRANSLATE_NOOP("JobOptions", "Even pages")},
    Value{"orientation-requested", nullptr, "", QT_TRANSLATE_NOOP("JobOptions", "Automatic")},
    Value{"orientation-requested", "3", "portrait false off no", QT_TRANSLATE_NOOP("JobOptions", "Portrait")},
    Value{"orientation-requested", "4", "landscape true on yes",
          QT_TRANSLATE_NOOP("JobOptions", "Landscape")},
    Value{"orientation-requested", "5", "reverse-landscape",
          QT_TRANSLATE_NOOP("JobOptions", "Reverse landscape")},
    Value{"orientation-requested", "6", "reverse-portrait",
          QT_TRANSLATE_NOOP("JobOptions", "Reverse portrait")},
    Value{"number-up", "1"},
    Value{"number-up", "2"},
    Value{"number-up", "4"},
    Value{"number-up", "6"},
    Value{"number-up", "9"},
    Value{"number-up", "16"},
    Value{"number-up-layout", "lrtb", "", QT_TRANSLATE_NOOP("JobOptions", "Left to right, top to bottom")},
    Value{"number-up-layout", "lrbt", "", QT_TRANSLATE_NOOP("JobOptions", "Left to right, bottom to top")},
    Value{"number-up-layout", "rltb", "", QT_TRANSLATE_NOOP("JobOptions", "Right to left, top to bottom")},
    Value{"number-up-layout", "rlbt", "", QT_TRANSLATE_NOOP("JobOptions", "Right to left, bottom to top")},
    Value{"number-up-layout", "tblr", "", QT_TRANSLATE_NOOP("JobOptions", "Top to bottom, left to right")},
    Value{"number-up-layout", "tbrl", "", QT_TRANSLATE_NOOP("JobOptions", "Top to bottom, right to left")},
    Value{"number-up-layout", "btlr", "", QT_TRANSLATE_NOOP("JobOptions", "Bottom to top, left to right")},
    Value{"number-up-layout", "btrl", "", QT_TRANSLATE_NOOP("JobOptions", "Bottom to top, right to left")},
    Value{"page-border", "none", "", QT_TRANSLATE_NOOP("JobOptions", "None")},
    Value{"page-border", "single", "", QT_TRANSLATE_NOOP("JobOptions", "Single line")},
    Value{"page-border", "single-thick", "", QT_TRANSLATE_NOOP("JobOptions", "Thick single line")},
    Value{"page-border", "double", "", QT_TRANSLATE_NOOP("JobOptions", "Double line")},
    Value{"page-border", "double-thick", "", QT_TRANSLATE_NOOP("JobOptions", "Thick double line")},
    Value{"print-scaling", "auto", "false off no", QT_TRANSLATE_NOOP("JobOptions", "Automatic")},
    Value{"print-scaling", "fit", "true on yes", QT_TRANSLATE_NOOP("JobOptions", "Fit to paper")},
    Value{"print-scaling", "none", "", QT_TRANSLATE_NOOP("JobOptions", "Actual size")},
    Value{"print-scaling", "fill", "", QT_TRANSLATE_NOOP("JobOptions", "Fill paper")},
    Value{"job-hold-until", "no-hold", "immediate resume", QT_TRANSLATE_NOOP("JobOptions", "Now")},
    Value{"job-hold-until", "indefinite", "hold", QT_TRANSLATE_NOOP("JobOptions", "On hold")},
    Value{"job-priority", "30", "", QT_TRANSLATE_NOOP("JobOptions", "Low")},
    Value{"job-priority", "50", "", QT_TRANSLATE_NOOP("JobOptions", "Medium")},
    Value{"job-priority", "80", "", QT_TRANSLATE_NOOP("JobOptions", "High")},
    Value{"job-priority", "100", "", QT_TRANSLATE_NOOP("JobOptions", "Urgent")},
    Value{"job-sheets", "none", "", QT_TRANSLATE_NOOP("JobOptions", "None")},
    Value{"job-sheets", "standard", "", QT_TRANSLATE_NOOP("JobOptions", "Standard")},
    Value{"job-sheets", "unclassified", "", QT_TRANSLATE_NOOP("JobOptions", "Unclassified")},
    Value{"job-sheets", "classified", "", QT_TRANSLATE_NOOP("JobOptions", "Classified")},
    Value{"job-sheets", "confidential", "", QT_TRANSLATE_NOOP("JobOptions", "Confidential")},
    Value{"job-sheets", "secret", "", QT_TRANSLATE_NOOP("JobOptions", "Secret")},
    Value{"job-sheets", "topsecret", "", QT_TRANSLATE_NOOP("JobOptions", "Top secret")},
};

QStringList namesOf(const Value& value) {
  return QString::fromLatin1(value.names).split(u' ', Qt::SkipEmptyParts);
}

const Value* find(const QString& option, const QString& value) {
  const auto* found = std::ranges::find_if(values, [&](const Value& each) {
    return option == QLatin1String(each.option) &&
           (value == QLatin1String(each.standard) || namesOf(each).contains(value));
  });
  return found == values.end() ? nullptr : found;
}

// "600x600dpi" for "600dpi" as well.
QString bothWays(const QString& resolution) {
  const QString text = resolution.toLower();
  const QString number = text.endsWith(u"dpi") ? text.chopped(3) : QString();
  return number.isEmpty() || number.contains(u'x') ? text : QStringLiteral("%1x%1dpi").arg(number);
}

bool isBetween(const QString& value, int least, int most) {
  bool isNumber = false;
  const int number = value.toInt(&isNumber);
  return isNumber && number >= least && number <= most;
}

}  // namespace

QString choiceFor(const QueueChoices& choices, const QString& option, const QString& value) {
  if (option == u"PageSize") return choices.paperChoice(value);
  const auto find = [&](const QString& wanted, auto form) {
    return choices.findChoice(option, [&](const QString& each) { return form(each) == form(wanted); });
  };
  if (QString choice = find(value, [](const QString& each) { return each; }); !choice.isNull()) return choice;
  if (option == u"Resolution") return find(value, bothWays);
  if (QString choice = find(value, plainName); !choice.isNull()) return choice;
  QStringList names;
  for (const Value& each : values) {
    if (option != QLatin1String(each.option) ||
        value.compare(QLatin1String(each.standard), Qt::CaseInsensitive) != 0)
      continue;
    names += namesOf(each);
  }
  const auto findOneOf = [&](const QStringList& wanted) {
    QString choice;
    for (auto name = wanted.begin(); name != wanted.end() && choice.isNull(); ++name)
      choice = find(*name, plainName);
    return choice;
  };
  if (QString choice = findOneOf(names); !choice.isNull()) return choice;
  if (QString choice = findOneOf(standardNames(option, value)); !choice.isNull()) return choice;
  // A PPD's name for a value of a printer without a PPD.
  const QString standard = standardValueOf(option, value);
  if (QString choice = standard.isNull() ? QString() : find(standard, plainName); !choice.isNull())
    return choice;
  return choices.takesCustom(option) && value.startsWith(u"Custom.") ? value : QString();
}

QString standardValueOf(const QString& option, const QString& choice) {
  const Value* found = find(option, choice);
  return found == nullptr ? QString() : QLatin1String(found->standard);
}

const char* textOfValue(const QString& option, const QString& value) {
  const Value* found = find(option, value);
  return found == nullptr ? nullptr : found->text;
}

QString valueFor(const OptionRow& row, const QString& value) {
  if (row.kind == OptionKind::Number)
    return isBetween(value, leastNumber, mostNumber) ? QString::number(value.toInt()) : QString();
  if (row.kind == OptionKind::Covers)
    return value.isEmpty() || value.contains(u',') ? value : value + QStringLiteral(",none");
  if (const Value* found = find(QLatin1String(row.key), value.toLower()); found != nullptr && !value.isNull())
    return QLatin1String(found->standard);
  bool isNumber = false;
  const double percent = row.kind == OptionKind::Scaling ? value.toDouble(&isNumber) : 0;
  if (isNumber) {
    const bool isInRange = percent >= leastPercent && percent <= mostPercent;
    return isInRange ? QString::number(qRound(percent)) : QString();
  }
  return row.kind == OptionKind::Switch ? QString() : value;
}

std::vector<QString> listedValues(const OptionRow& row) {
  std::vector<QString> listed;
  for (const Value& each : values) {
    if (qstrcmp(each.option, row.key) == 0)
      listed.push_back(each.standard == nullptr ? QString() : QLatin1String(each.standard));
  }
  return listed;
}

}  // namespace kesto
