// What the user can ask of the panel on the command line, and its way into the panel's controls.
#pragma once

#include <QtCore/QString>
#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "platform/outcome.h"

namespace kesto {

class PanelView;

/// The text entries of the panel, each with a hold button of its own. The number is the row in `fieldTable`.
enum Field : std::size_t {
  Pin,
  Folder,
  FolderPin,
  Login,
  Password,
  UserNumber,
  AccountNumber,
  UserName,
  JobName
};
inline constexpr std::size_t fieldCount = JobName + 1;

/// One text entry: all that its options, their help, its controls and its messages are made from.
struct FieldRow {
  const char* name;         ///< The option is "--" and the name; alone it stands in --remember and --forget.
  const char* argument;     ///< What the option takes; null for an entry that never stands on a command line.
  const char* prompt;       ///< How the terminal asks for an entry that is secret; null for the others.
  const char* help;         ///< What it is.
  const char* limit;        ///< What the field's filter lets through; null when it has none.
  const char* control;      ///< What the names of its field and of its hold button begin with.
  bool needsHold;           ///< Whether only a job that is held has it.
  const char* whenRefused;  ///< Why the panel does not take it when that is not for want of --hold.

  bool isSecret() const { return prompt != nullptr; }
  QString option() const { return QStringLiteral("--") + QLatin1String(name); }
  QString field() const { return QLatin1String(control) + QStringLiteral("EditText"); }
  QString button() const { return QLatin1String(control) + QStringLiteral("Button"); }
};

/// The rows in the order of `Field`.
const std::array<FieldRow, fieldCount>& fieldTable();

/// The names that --hold takes; the position is the row of the hold choice.
inline constexpr std::array holdChoices{"only", "after", "sample"};
/// Stands for retention off where a row of the hold choice could stand.
inline constexpr int noHold = -1;

/// What is asked of the panel. None leaves a control as it is.
struct Entries {
  std::optional<int> hold;  ///< A position in `holdChoices`, or `noHold`.
  std::array<std::optional<QString>, fieldCount>
      texts;  ///< Of folders, "quick" and "main" are the fixed ones.
  std::array<std::optional<bool>, fieldCount> remember;  ///< Hold buttons to turn on (true) or off (false).

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

/// What a panel that does not let the job go misses, and the option that gives it.
QString missingEntry(const PanelView& view);

}  // namespace kesto
