// The options of a job that the hosts know, one row each, and the names that their values go by.
#pragma once

#include <QtCore/QString>
#include <array>
#include <span>

#include "hosts/cups/ppd_choices.h"

namespace kesto {

/// What an option takes, and so what control it has.
enum class OptionKind {
  Choice,  ///< One of the values that the queue offers, by the PPD's keyword.
  Number,  ///< From `leastNumber` to `mostNumber`.
  Switch,  ///< "true" or "false".
  Pages,   ///< Numbers and ranges as the user writes them; null for all pages.
  Text,    ///< Whatever was given; it has no control.
};

inline constexpr int leastNumber = 1;
inline constexpr int mostNumber = 9999;

/// Where a dialog shows it.
enum class OptionGroup { General, Layout };

/// One option. It is the queue's own where the PPD has an option of the key, else one of the job's alone.
struct OptionRow {
  const char* key = "";        ///< The name under which it is kept and travels.
  const char* text = nullptr;  ///< For people, to be translated as of "JobOptions"; null for the PPD's.
  std::array<const char*, 3> names{};  ///< Others that it goes by; of several given, the first counts.
  OptionKind kind = OptionKind::Choice;
  OptionGroup group = OptionGroup::General;
  const char* initial = nullptr;  ///< What it is when nobody says; null when that is the queue's to know.
  const char* needs = nullptr;    ///< The option that must not be at its initial value; it travels with that.
};

/// In the order in which they are shown.
std::span<const OptionRow> optionTable();

/// The row of a name; where two share it, the one whose option the queue has. Null for none.
const OptionRow* rowOf(const QString& name, const PpdChoices& choices);
/// Where a name stands in a row: 0 for the key, -1 for nowhere.
int rankIn(const OptionRow& row, const QString& name);

/// What the queue calls a value of one of its options: by the PPD's keyword or the standard's name, or a
/// value of the user's own where the option takes such. Null when it has no such value.
QString choiceFor(const PpdChoices& choices, const QString& option, const QString& value);
/// What the standard calls a PPD's choice; null when it has no name for it.
QString standardValueOf(const QString& option, const QString& choice);
/// Our own text for a PPD's choice, to be translated as of "JobOptions"; null when the PPD's serves.
const char* textOfChoice(const QString& option, const QString& choice);

}  // namespace kesto
