// What a dialog offers of a job's options, group by group.
#pragma once

#include <vector>

#include "hosts/session/job_options.h"

namespace kesto {

/// One option to choose.
struct OfferedOption {
  QString key;
  OptionKind kind = OptionKind::Choice;
  const OptionRow* row = nullptr;  ///< Null for an option that only the PPD knows.
  QString section{};               ///< The PPD's name for its part of the group "More", for people.
};

/// The options of a group that the open queue has, in the order in which they are shown. What its panel
/// handles is none of them, and what has but one value.
std::vector<OfferedOption> offeredOptions(const JobOptions& options, OptionGroup group);

/// The option of a PPD that makes booklets. Where it is just on or off, "Pages per sheet" offers it.
inline const QString bookletKey = QStringLiteral("Booklet");
/// Its choice for that; null when it is another kind of option or the queue has none.
QString bookletChoice(const JobOptions& options, bool isOn);
bool isBooklet(const JobOptions& options);

/// What is chosen in a group, in a few words.
struct Headline {
  QString text;          ///< Empty for nothing worth a word.
  bool differs = false;  ///< Whether it differs from the defaults.
  friend bool operator==(const Headline&, const Headline&) = default;
};
Headline headlineOf(const JobOptions& options, OptionGroup group);

/// A line of a summary.
struct SummaryLine {
  QString label;
  QString text;          ///< Null for a heading of the lines below it.
  bool differs = false;  ///< Whether it differs from the default.
  friend bool operator==(const SummaryLine&, const SummaryLine&) = default;
};
/// What is chosen in all groups, in their order; of the group "More" what differs from the defaults.
QList<SummaryLine> summaryOf(const JobOptions& options);

/// Why the chosen pages cannot be printed, and what would do; null when they can.
QString faultOfPages(const JobOptions& options);

}  // namespace kesto
