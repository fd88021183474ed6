#include "hosts/session/option_offer.h"

#include <QtCore/QCoreApplication>
#include <algorithm>

#include "hosts/session/page_range.h"

namespace kesto {
namespace {

const QString pagesKey = QStringLiteral("page-ranges");
const QString numberUpKey = QStringLiteral("number-up");

bool hasChoice(const JobOptions& options, const OptionRow& row) {
  const QString key = QLatin1String(row.key);
  if (key == bookletKey && !bookletChoice(options, true).isNull()) return false;
  if (options.isLeftToPanel(key)) return false;
  if (row.kind == OptionKind::Covers) return options.choices(key).size() > 1 || !options.isDefault(key);
  return row.kind != OptionKind::Choice || options.ofQueue().choiceCount(key) > 1;
}

// Those that only the PPD knows.
void addOthers(const JobOptions& options, std::vector<OfferedOption>* offered) {
  for (const PpdGroup& group : options.ofQueue().groups()) {
    for (const QString& key : group.options) {
      const bool isKnown = rowOf(key, options.ofQueue()) != nullptr || options.isLeftToPanel(key);
      if (!isKnown && options.ofQueue().choiceCount(key) > 1)
        offered->push_back({.key = key, .section = group.text});
    }
  }
}

QString shownCopies(const QString& count) {
  return count == u"1" ? QCoreApplication::translate("JobOptions", "1 copy")
                       : QCoreApplication::translate("JobOptions", "%n copies", nullptr, count.toInt());
}

// Pages that are not those which the application alone knows.
bool areNumbers(const JobOptions& options, const OfferedOption& option) {
  return option.kind == OptionKind::Pages && !JobOptions::areOfApplication(options.value(option.key));
}

QString shownValue(const JobOptions& options, const OfferedOption& option) {
  if (areNumbers(options, option))
    return options.pages().isNull() ? QCoreApplication::translate("JobOptions", "All pages")
                                    : options.pages();
  if (option.key == numberUpKey && isBooklet(options)) return options.text(bookletKey);
  return options.textOf(option.key, options.value(option.key));
}

bool isOther(const JobOptions& options, const QString& key) {
  return !options.isDefault(key) || (key == numberUpKey && !options.isDefault(bookletKey));
}

// A value that says by itself what it is of, such as "Long edge"; "On" and "2" do not.
QString shownShort(const JobOptions& options, const OfferedOption& option) {
  QString text = shownValue(options, option);
  if (option.kind == OptionKind::Number) return shownCopies(text);
  if (areNumbers(options, option) && !options.pages().isNull())
    return QCoreApplication::translate("JobOptions", "Pages %1").arg(text);
  bool isNumber = false;
  (void)text.toDouble(&isNumber);
  const bool saysItself = option.row != nullptr && option.row->group != OptionGroup::More &&
                          option.kind != OptionKind::Switch && !isNumber;
  if (saysItself) return text;
  const QString label = QCoreApplication::translate("PlainText", "%1:", "a label");
  return QStringLiteral("%1 %2").arg(label.arg(options.text(option.key)), text);
}

// What is said of a group whatever it is.
bool isAlwaysSaid(const QString& key) {
  static const QStringList said{QStringLiteral("copies"), pagesKey, QStringLiteral("PageSize"), numberUpKey,
                                QStringLiteral("job-hold-until")};
  return said.contains(key);
}

}  // namespace

std::vector<OfferedOption> offeredOptions(const JobOptions& options, OptionGroup group) {
  std::vector<OfferedOption> offered;
  for (const OptionRow& row : optionTable()) {
    if (row.group == group && hasChoice(options, row))
      offered.push_back({.key = QLatin1String(row.key), .kind = row.kind, .row = &row});
  }
  if (group == OptionGroup::More) addOthers(options, &offered);
  return offered;
}

QString bookletChoice(const JobOptions& options, bool isOn) {
  const auto choice = [&](bool isTrue) {
    return options.choiceFor(bookletKey, isTrue ? QStringLiteral("true") : QStringLiteral("false"));
  };
  return choice(!isOn).isNull() ? QString() : choice(isOn);
}

bool isBooklet(const JobOptions& options) {
  const QString on = bookletChoice(options, true);
  return !on.isNull() && options.value(bookletKey) == on;
}

Headline headlineOf(const JobOptions& options, OptionGroup group) {
  Headline headline;
  QStringList texts;
  for (const OfferedOption& each : offeredOptions(options, group)) {
    if (options.isIdle(each.key)) continue;
    const bool differs = isOther(options, each.key);
    if (differs || isAlwaysSaid(each.key)) texts.append(shownShort(options, each));
    headline.differs = headline.differs || differs;
  }
  headline.text = texts.join(QStringLiteral(", "));
  return headline;
}

QList<SummaryLine> summaryOf(const JobOptions& options) {
  QList<SummaryLine> lines;
  for (const OptionGroup group : optionGroups) {
    for (const OfferedOption& each : offeredOptions(options, group)) {
      const bool differs = isOther(options, each.key);
      if (options.isIdle(each.key) || (group == OptionGroup::More && !differs)) continue;
      lines.append({options.text(each.key), shownValue(options, each), differs});
    }
  }
  return lines;
}

QString faultOfPages(const JobOptions& options) {
  const QString asked = options.value(pagesKey);
  if (asked.isNull() || JobOptions::areOfApplication(asked)) return {};
  if (!pageRangesOf(asked))
    return QCoreApplication::translate("JobOptions", "Enter page numbers or ranges, for example 1-3, 5.");
  if (options.pages().isNull())
    return QCoreApplication::translate("JobOptions",
                                       "The document ends at page %1. Enter page numbers up to %1.")
        .arg(options.pageCount());
  return {};
}

}  // namespace kesto
