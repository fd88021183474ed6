// The options of a PPD that a print dialog offers by itself.
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <optional>
#include <vector>

#include "hosts/cups/ppd_file.h"

namespace kesto {

/// One value of an option.
struct PpdChoice {
  QString keyword;
  QString text;  ///< As the PPD names it for people.
};

/// One option with more than one value.
struct PpdOption {
  QString keyword;
  QString text;  ///< As the PPD names it for people.
  std::vector<PpdChoice> choices;
  int marked = -1;  ///< The value in force.
};

/// Marks the PPD's defaults, and over them the options that the user keeps for the queue.
void markDefaults(ppd_file_t& ppd, const cups_dest_t* destination);

/// The usual few options that the PPD has, in the order in which a dialog shows them; without those that a
/// panel handles.
std::vector<PpdOption> usualOptions(ppd_file_t& ppd, const QStringList& handledByPanel);

/// A value of an option by the names of PPDs.
struct PpdChoiceName {
  QString option;
  QString choice;
};

/// The PPD's names for a job option: "sides" and "media" have standard ones as well, all others stay as they
/// are.
PpdChoiceName ppdNameOf(const QString& option, const QString& choice);

/// Marks one value. Answers the texts of the options that do not go together then; empty for none.
QStringList markChoice(ppd_file_t& ppd, const QString& option, const QString& choice);

/// A paper size of a PPD; lengths in millimetres.
struct PpdPaper {
  QString keyword;       ///< The choice of PageSize.
  QString text;          ///< As the PPD names it for people.
  QString standardName;  ///< The self-describing name without its dimensions, as in "iso_a5"; null if it has
                         ///< none.
  double width = 0;
  double height = 0;
  double left = 0;  ///< From here on the margins that the printer cannot reach.
  double right = 0;
  double top = 0;
  double bottom = 0;
};

/// The paper size that is marked, none when the PPD tells of none.
std::optional<PpdPaper> markedPaper(ppd_file_t& ppd);

}  // namespace kesto
