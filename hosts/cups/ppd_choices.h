// What the queue of a PPD offers for the options of a job.
#pragma once

#include <QtCore/QLocale>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <optional>
#include <utility>
#include <vector>

#include "hosts/cups/ppd_file.h"

namespace kesto {

/// One value of an option.
struct OptionChoice {
  QString keyword;
  QString text;  ///< For people.
};

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
  bool isLandscapeMinus90 = false;  ///< Whether the printer turns landscape pages clockwise.
  bool isReversed = false;          ///< Whether the last page comes first unless a job says otherwise.
};

/// A part of a PPD's options.
struct PpdGroup {
  QString text;  ///< For people.
  QStringList options;
};

/// The smallest and the greatest custom paper, in millimetres.
struct CustomLimits {
  double leastWidth = 0;
  double mostWidth = 0;
  double leastHeight = 0;
  double mostHeight = 0;
};

/// The options of a PPD, by their keywords, and which of their values are marked in it. A queue without a PPD
/// offers none.
class PpdChoices {
 public:
  PpdChoices() = default;
  /// Marks the PPD's defaults. It must outlive this; null for none.
  explicit PpdChoices(ppd_file_t* ppd);

  /// Letter case counts: "collate" of a job is not a PPD's "Collate".
  bool has(const QString& option) const { return find(option) != nullptr; }
  /// Whether the option also accepts custom values, such as "Custom.100x200mm".
  bool takesCustom(const QString& option) const;
  /// Whether the texts are in a language, as the PPD says of itself.
  bool isIn(const QLocale& language) const;
  /// None when the printer takes no custom paper.
  std::optional<CustomLimits> customLimits() const;
  /// The groups of options that people choose from, without what is installed in the printer.
  std::vector<PpdGroup> groups() const;
  /// As the PPD names the option for people; null when there is none.
  QString text(const QString& option) const;
  /// As it names one of the option's values; null when there is none.
  QString text(const QString& option, const QString& choice) const;
  /// The values of an option, without "Custom", which is not a value by itself.
  std::vector<OptionChoice> choices(const QString& option) const;
  /// How many these are.
  int choiceCount(const QString& option) const;
  /// The keyword of a value that `isIt` is true of, null for none.
  template <class Predicate>
  QString findChoice(const QString& option, Predicate isIt) const {
    for (const OptionChoice& each : choices(option)) {
      if (isIt(each.keyword)) return each.keyword;
    }
    return {};
  }
  /// The value that is in force when a job names none; null when the PPD names none.
  QString defaultOf(const QString& option) const;
  /// The choice of PageSize for a paper: by a PPD's name, a standard name ("iso_a5_148x210mm"), an older
  /// one ("iso-a5") or a size ("Custom.10x15cm"). Null when the printer neither has such a paper nor
  /// accepts such a size.
  QString paperChoice(const QString& name) const;

  void mark(const QString& option, const QString& choice);
  /// The options whose marked values the printer cannot do together.
  QStringList conflicts() const;
  /// Those of them that an option's marked value conflicts with.
  QStringList conflictsWith(const QString& option) const;
  /// The choices of other options that let this one keep its marked value, or else its own default; none when
  /// that is not known.
  QMap<QString, QString> resolution(const QString& option) const;
  /// The marked paper size; none when the PPD has none.
  std::optional<PpdPaper> markedPaper() const;

 private:
  const ppd_option_t* find(const QString& option) const;
  const ppd_choice_t* find(const QString& option, const QString& choice) const;
  QString marked(const QString& option) const;
  QString choiceOfSize(const char* name, double width, double length) const;
  QString customPaper(double width, double length, const QString& choice) const;

  ppd_file_t* m_ppd = nullptr;
};

/// A custom paper size, from the choice "Custom.WIDTHxLENGTHUNIT".
struct CustomSize {
  QString width;
  QString length;
  QString unit;  ///< "pt", "in", "ft", "mm", "cm" or "m".
};
/// None when the choice is not such a size.
std::optional<CustomSize> customSizeOf(const QString& choice);
/// Width and length.
std::pair<double, double> millimetresOf(const CustomSize& size);

/// The choice for a size in millimetres.
QString customChoice(double width, double length);

}  // namespace kesto
