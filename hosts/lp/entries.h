// What the user can ask of the panel on the command line, and its way into the panel's controls.
#pragma once

#include <QtCore/QString>
#include <algorithm>
#include <array>
#include <optional>

#include "hosts/session/panel_entries.h"
#include "platform/outcome.h"

namespace kesto {

/// One text entry: all that its options, their help and its messages are made from.
struct FieldRow {
  const char* name;         ///< The option is "--" and the name; alone it stands in --remember and --forget.
  const char* argument;     ///< What the option takes; null for an entry that never stands on a command line.
  const char* prompt;       ///< How the terminal asks for an entry that is secret; null for the others.
  const char* help;         ///< What it is.
  const char* limit;        ///< What the field's filter lets through; null when it has none.
  const char* whenRefused;  ///< Why the panel does not take it when that is not for want of --hold.

  bool isSecret() const { return prompt != nullptr; }
  QString option() const { return QStringLiteral("--") + QLatin1String(name); }
};

/// The rows in the order of `Entry`.
const std::array<FieldRow, entryCount>& fieldTable();

/// The names that --hold takes; the position is the row of the hold choice.
inline constexpr std::array holdChoices{"only", "after", "sample"};
/// Stands for retention off where a row of the hold choice could stand.
inline constexpr int noHold = -1;

/// What is asked of the panel. None leaves a control as it is.
struct Entries {
  std::optional<int> hold;  ///< A position in `holdChoices`, or `noHold`.
  std::array<std::optional<QString>, entryCount>
      texts;  ///< Of folders, "quick" and "main" are the fixed ones.
  std::array<std::optional<bool>, entryCount> remember;  ///< Hold buttons to turn on (true) or off (false).

  /// Whether a hold button is to be turned.
  bool asksForMemory() const {
    return std::any_of(remember.begin(), remember.end(), [](const auto& turn) { return turn.has_value(); });
  }
  bool operator==(const Entries&) const = default;
};

/// Carries the entries out as a user of the panel would, through its filters and rules. A value replaced in a
/// field that is held is held again. Stops at the first entry that the panel does not take; the outcome then
/// names its option and the reason, never the value.
Outcome applyEntries(PanelView& view, const Entries& entries);

/// What it says when the panel does not let the job go for want of an entry.
QString missingEntryText(Entry entry);

}  // namespace kesto
