// The options of a job that the hosts know, one row each, and the names that their values go by.
#pragma once

#include <QtCore/QString>
#include <array>
#include <span>

#include "hosts/cups/queue_choices.h"

namespace kesto {

/// What an option takes, and so what control it has.
enum class OptionKind {
  Choice,   ///< One of the values that the queue offers, by the PPD's keyword.
  Keyword,  ///< One of the standard's values that the table lists.
  Switch,   ///< The two that the table lists, off and on.
  Number,   ///< From `leastNumber` to `mostNumber`.
  Pages,    ///< Numbers and ranges as the user writes them; null for all pages.
  Scaling,  ///< A keyword, or a percentage from `leastPercent` to `mostPercent`, which travels as "scaling".
  Hold,     ///< A keyword, or a time of day in UTC.
  Covers,   ///< The names of a cover sheet before the job and one after it, with a comma.
  Text,     ///< A line of the user's.
};

inline constexpr int leastNumber = 1;
inline constexpr int mostNumber = 9999;
inline constexpr int leastPercent = 1;
inline constexpr int mostPercent = 800;

/// Where a dialog shows it. The last group also has the PPD's options that no row knows.
enum class OptionGroup { General, Layout, Job, More };
inline constexpr std::array optionGroups{OptionGroup::General, OptionGroup::Layout, OptionGroup::Job,
                                         OptionGroup::More};

/// One option. It is the queue's own where the PPD has an option of the key, else one of the job's alone.
struct OptionRow {
  const char* key = "";        ///< The name under which it is kept and travels.
  const char* text = nullptr;  ///< For people, to be translated as of "JobOptions"; null for the PPD's.
  std::array<const char*, 3> names{};  ///< Others that it goes by; of several given, the first counts.
  OptionKind kind = OptionKind::Choice;
  OptionGroup group = OptionGroup::General;
  const char* initial = nullptr;  ///< What it is when nobody says; null when that is the queue's to know.
  const char* needs = nullptr;    ///< The option without which, at its initial value, it means nothing.
};

/// In the order in which they are shown.
std::span<const OptionRow> optionTable();

/// The row of a name; where two share it, the one whose option the queue has. Null for none.
const OptionRow* rowOf(const QString& name, const QueueChoices& choices);
/// Where a name stands in a row: 0 for the key, -1 for nowhere.
int rankIn(const OptionRow& row, const QString& name);
/// The name under which a value of an option travels.
QString travellingName(const OptionRow& row, const QString& value);

}  // namespace kesto
