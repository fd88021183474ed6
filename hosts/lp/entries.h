// The panel's entries on the command line, and how they get into the panel's controls.
#pragma once

#include <QtCore/QString>
#include <algorithm>
#include <array>
#include <optional>

#include "hosts/lp/lp_texts.h"
#include "hosts/session/panel_entries.h"
#include "platform/outcome.h"

namespace kesto {

/// One text entry: everything for its options, their help and its messages. Prompts, descriptions, limits and
/// reasons are texts in the context of `LpTexts`.
struct FieldRow {
  const char* name;         ///< The option is "--" and the name; --remember and --forget take the name alone.
  const char* argument;     ///< Of the option; null for an entry that no command line can give.
  const char* prompt;       ///< The prompt for a secret entry at the terminal; null for the others.
  const char* help;         ///< A description.
  const char* limit;        ///< What the field's filter accepts; null without a filter.
  int most;                 ///< The number in `limit`.
  const char* whenRefused;  ///< Why the panel refuses an option, %1, if not for lack of --hold.

  bool isSecret() const { return prompt != nullptr; }
  QString option() const { return QStringLiteral("--") + QLatin1String(name); }
  QString limitText() const { return LpTexts::tr(limit, nullptr, most); }
};

/// The rows in the order of `Entry`.
const std::array<FieldRow, entryCount>& fieldTable();

/// The names that --hold takes; the index is the row of the hold choice.
inline constexpr std::array holdChoices{"only", "after", "sample"};
/// Means "retention off" in place of a row of the hold choice.
inline constexpr int noHold = -1;

/// What the user has given for the panel. None leaves a control as it is.
struct Entries {
  std::optional<int> hold;                               ///< A position in `holdChoices`, or `noHold`.
  std::array<std::optional<QString>, entryCount> texts;  ///< Folders "quick" and "main" are the fixed ones.
  std::array<std::optional<bool>, entryCount> remember;  ///< Hold buttons to turn on (true) or off (false).

  /// Whether to turn a hold button on or off.
  bool asksForMemory() const {
    return std::any_of(remember.begin(), remember.end(), [](const auto& turn) { return turn.has_value(); });
  }
  bool operator==(const Entries&) const = default;
};

/// Makes the entries as a user of the panel would, through its filters and rules. A held field with a new
/// value is held again. Stops at the first entry that the panel refuses; the outcome names its option and the
/// reason, never the value.
Outcome applyEntries(PanelView& view, const Entries& entries);

/// The message when the panel refuses a job because an entry is missing.
QString missingEntryText(Entry entry);

}  // namespace kesto
