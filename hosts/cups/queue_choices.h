// What a queue offers for the options of a job.
#pragma once

#include <QtCore/QLocale>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <optional>
#include <utility>
#include <vector>

namespace kesto {

/// The point is the unit of PPDs.
inline constexpr double millimetresPerPoint = 25.4 / 72;

/// One value of an option.
struct OptionChoice {
  QString keyword;
  QString text;  ///< For people.
};

/// A paper size of a queue; lengths in millimetres.
struct PpdPaper {
  QString keyword;       ///< The choice of PageSize.
  QString text;          ///< As the queue names it for people.
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

/// A part of a queue's options.
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

/// The options of a queue, by the keywords that PPDs have for them, and which of their values are marked.
/// A PPD describes them, or the printer itself where there is no PPD.
class QueueChoices {
 public:
  QueueChoices() = default;
  virtual ~QueueChoices() = default;
  QueueChoices(const QueueChoices&) = delete;
  QueueChoices& operator=(const QueueChoices&) = delete;

  /// Letter case counts: "collate" of a job is not a PPD's "Collate".
  virtual bool has(const QString& option) const = 0;
  /// Whether the option also accepts custom values, such as "Custom.100x200mm".
  virtual bool takesCustom(const QString& option) const = 0;
  /// Whether the texts are in a language, as the source says of itself.
  virtual bool isIn(const QLocale& language) const = 0;
  /// None when the printer takes no custom paper.
  virtual std::optional<CustomLimits> customLimits() const = 0;
  /// The groups of options that people choose from, without what is installed in the printer.
  virtual std::vector<PpdGroup> groups() const = 0;
  /// As the source names the option for people; null when it does not.
  virtual QString text(const QString& option) const = 0;
  /// As it names one of the option's values; null when there is none.
  virtual QString text(const QString& option, const QString& choice) const = 0;
  /// The values of an option, without "Custom", which is not a value by itself.
  virtual std::vector<OptionChoice> choices(const QString& option) const = 0;
  /// How many these are.
  virtual int choiceCount(const QString& option) const { return static_cast<int>(choices(option).size()); }
  /// The keyword of a value that `isIt` is true of, null for none.
  template <class Predicate>
  QString findChoice(const QString& option, Predicate isIt) const {
    for (const OptionChoice& each : choices(option)) {
      if (isIt(each.keyword)) return each.keyword;
    }
    return {};
  }
  /// The value that is in force when a job names none; null when that is not known.
  virtual QString defaultOf(const QString& option) const = 0;
  /// The choice of PageSize for a paper: by a PPD's name, a standard name ("iso_a5_148x210mm"), an older
  /// one ("iso-a5") or a size ("Custom.10x15cm"). Null when the printer neither has such a paper nor
  /// accepts such a size.
  virtual QString paperChoice(const QString& name) const = 0;
  /// The name and the value that a job is sent with for a choice.
  virtual std::pair<QString, QString> sentAs(const QString& option, const QString& choice) const {
    return {option, choice};
  }

  /// Joins options of a job, as they are sent, that the printer takes only together.
  virtual void join(QMap<QString, QString>* /*sent*/) const {}

  virtual void mark(const QString& option, const QString& choice) = 0;
  /// The options whose marked values the printer cannot do together.
  virtual QStringList conflicts() const = 0;
  /// Those of them that an option's marked value conflicts with.
  virtual QStringList conflictsWith(const QString& option) const = 0;
  /// The choices of other options that let this one keep its marked value, or else its own default; none when
  /// that is not known.
  virtual QMap<QString, QString> resolution(const QString& option) const = 0;
  /// The marked paper size; none when the queue has none.
  virtual std::optional<PpdPaper> markedPaper() const = 0;
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
