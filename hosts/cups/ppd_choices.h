// The options of a PPD that a print dialog itself offers.
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

/// Marks the PPD's defaults, then the values that are kept for the queue, by the PPD's names.
void markDefaults(ppd_file_t& ppd, const QMap<QString, QString>& kept);

/// Whether the PPD has an option of this name.
bool hasOption(ppd_file_t& ppd, const QString& option);
/// Whether the option also accepts custom values, such as "Custom.100x200mm".
bool hasCustomChoice(ppd_file_t& ppd, const QString& option);
/// The values of an option by their keywords, without "Custom", which is not a value by itself.
QStringList choicesOf(ppd_file_t& ppd, const QString& option);

/// A custom paper size, from the choice "Custom.WIDTHxLENGTHUNIT".
struct CustomSize {
  QString width;
  QString length;
  QString unit;  ///< "pt", "in", "ft", "mm", "cm" or "m".
};
/// None when the choice is not such a size.
std::optional<CustomSize> customSizeOf(const QString& choice);

/// The choice for a size in millimetres.
QString customChoice(double width, double length);

/// The choice of PageSize for a paper: by a PPD's name, a standard name ("iso_a5_148x210mm"), an older one
/// ("iso-a5") or a size ("Custom.10x15cm"). Null when the printer neither has such a paper nor accepts such a
/// size.
QString paperChoice(ppd_file_t& ppd, const QString& name);

/// The usual options that the PPD has, in the order of a dialog, without those that a panel handles. "Custom"
/// is not among the choices.
std::vector<PpdOption> usualOptions(ppd_file_t& ppd, const QStringList& handledByPanel);

/// Marks one value. Returns the texts of the options that then conflict; empty for none.
QStringList markChoice(ppd_file_t& ppd, const QString& option, const QString& choice);

/// A paper size of a PPD; lengths in millimetres.
struct PpdPaper {
  QString keyword;       ///< The choice of PageSize.
  QString text;          ///< As the PPD names it for people.
  QString standardName;  ///< The self-describing name without its dimensions, as in "iso_a5"; null if it has
                         ///< none.
  double width = 0;
  double height = 0;
  double left = 0;  ///< This and the next three: the margins that the printer cannot reach.
  double right = 0;
  double top = 0;
  double bottom = 0;
};

/// The marked paper size; none when the PPD has none.
std::optional<PpdPaper> markedPaper(ppd_file_t& ppd);

}  // namespace kesto
