// The options of a PPD that a print dialog offers by itself.
#pragma once

#include <QtCore/QMap>
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

/// Marks the PPD's defaults, and over them the values that are kept for the queue, by the PPD's names.
void markDefaults(ppd_file_t& ppd, const QMap<QString, QString>& kept);

/// Whether the PPD has an option of this name.
bool hasOption(ppd_file_t& ppd, const QString& option);
/// Whether the option takes values of the user's own as well, as in "Custom.100x200mm".
bool hasCustomChoice(ppd_file_t& ppd, const QString& option);
/// The values of an option by their keywords; without "Custom", which is no value by itself.
QStringList choicesOf(ppd_file_t& ppd, const QString& option);

/// A paper size of the user's own, as its choice "Custom.WIDTHxLENGTHUNIT" says it.
struct CustomSize {
  QString width;
  QString length;
  QString unit;  ///< "pt", "in", "ft", "mm", "cm" or "m".
};
/// None when the choice is no such size.
std::optional<CustomSize> customSizeOf(const QString& choice);

/// The choice for a size in millimetres.
QString customChoice(double width, double length);

/// The choice of PageSize for a paper: by a PPD's name, one of the standard ("iso_a5_148x210mm"), an older
/// one
/// ("iso-a5") or a size ("Custom.10x15cm"). Null when the printer has no such paper and takes no such size.
QString paperChoice(ppd_file_t& ppd, const QString& name);

/// The usual few options that the PPD has, in the order in which a dialog shows them; without those that a
/// panel handles. "Custom" is not among the choices.
std::vector<PpdOption> usualOptions(ppd_file_t& ppd, const QStringList& handledByPanel);

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
