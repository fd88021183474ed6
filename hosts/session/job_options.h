// The options of a job in the making, as one value.
#pragma once

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <array>
#include <memory>

#include "hosts/cups/ppd_choices.h"
#include "hosts/session/option_names.h"

namespace kesto {

struct Queue;

/// What a job's options are on the queue that is open, whoever has given them, and what of that travels with
/// the job. An option may be named by any of its names (`job_option_table.h`).
class JobOptions : public QObject {
  Q_OBJECT

 public:
  /// Where a value comes from; a later one counts over an earlier one.
  enum class Source { Default, Kept, Preset, Given, Chosen };

  /// Values of "page-ranges": pages that the application alone knows. No user can write them.
  static constexpr QLatin1String currentPage{"\ncurrent"};
  static constexpr QLatin1String selection{"\nselection"};
  static bool areOfApplication(const QString& pages) { return pages.startsWith(u'\n'); }

  /// Goes over to a queue, which must stay until `close`: what it offers, and what is kept for it. Its
  /// PPD, if it has one, is marked with the values from now on.
  void openFor(const Queue& queue);
  /// Lets go of the queue, its presets and what was chosen of its own options. What is chosen for the job
  /// itself, such as the copies, stays, and so does what was given.
  void close();
  /// Leaves options of the queue to its panel; no pane offers them.
  void leaveToPanel(const QStringList& options) { m_ofPanel = options; }
  /// The pages of the document, 0 when that is not known: no others travel.
  void setPageCount(int count);
  int pageCount() const { return m_pageCount; }

  /// Gives options by name, over what the source has said before.
  void set(Source source, const QMap<QString, QString>& options);
  /// The user's choice; null pages are all pages.
  void choose(const QString& name, const QString& value) { set(Source::Chosen, {{name, value}}); }
  /// Puts the options of a preset, perhaps of another queue, in place of what was chosen. Returns those that
  /// do not fit the queue, as a label and a value.
  QStringList choosePreset(const QMap<QString, QString>& options);
  /// Takes back what a source has said.
  void clear(Source source);

  /// What counts: for an option of the queue the PPD's choice. Null for an option that nobody has named and
  /// that has no known default.
  QString value(const QString& name) const;
  Source source(const QString& name) const;
  bool isDefault(const QString& name) const { return value(name) == defaultOf(keyOf(name, *m_choices)); }
  /// "name=value" as given, for what is no value on this queue. It does not travel.
  const QStringList& refused() const { return m_refused; }
  /// What the queue calls a value of one of its options; null when it has none.
  QString choiceFor(const QString& option, const QString& value) const;
  /// The pages as they travel; null for all.
  QString pages() const;

  /// The values that a list offers; a size, time or percentage of the user's own is none of them.
  std::vector<OptionChoice> choices(const QString& option) const;
  bool isOfQueue(const QString& option) const { return m_choices->has(option); }
  bool isLeftToPanel(const QString& option) const { return m_ofPanel.contains(option); }
  /// Whether the option that this one needs is at its initial value, or a file has no use for it.
  bool isIdle(const QString& option) const;
  /// Whether the pages are saved in a file.
  bool isForFile() const { return m_isForFile; }
  const QueueChoices& ofQueue() const { return *m_choices; }
  /// The option's label, and a value in words.
  QString text(const QString& option) const;
  QString textOf(const QString& option, const QString& value) const;
  /// The options whose values the printer cannot do together (`option_conflict.h` has the words).
  const QStringList& conflicts() const { return m_conflicts; }
  /// The option that was set last.
  const QString& lastSet() const { return m_lastSet; }
  /// None when the queue names none.
  std::optional<PpdPaper> paper() const { return m_choices->markedPaper(); }

  /// What the job is sent with: what differs from the default or is kept for the queue, each option once, by
  /// the PPD's name where the queue has it.
  QMap<QString, QString> travelling() const;
  /// How the job is printed: with the queue's defaults where nothing else travels.
  QMap<QString, QString> inForce() const;
  /// What travels, as the usual print command sends it: all that was kept or given, in the words that
  /// gave it.
  QMap<QString, QString> asGiven() const;
  /// Whether the job goes past the queue's driver, by an option that is given or kept for the queue.
  bool goesRaw() const;
  /// What a preset keeps of them: known options, by the name that travels, but not what is kept for the
  /// queue.
  QMap<QString, QString> ofPreset() const;

 Q_SIGNALS:
  void changed();
  /// Another value of one of the queue's own options counts.
  void choiceChanged(const QString& option, const QString& choice);

 private:
  struct Value {
    NamedValue value;
    Source source = Source::Default;
  };
  using Values = QMap<QString, Value>;  // by key

  QMap<QString, QString>& given(Source source) { return m_given.at(static_cast<std::size_t>(source)); }
  const QMap<QString, QString>& given(Source source) const {
    return m_given.at(static_cast<std::size_t>(source));
  }
  QString defaultOf(const QString& key) const;
  /// The text of ours for a value; null when the PPD's `text` is better.
  QString ownText(const QString& option, const QString& value, const QString& text) const;
  bool travels(const QString& key) const;
  /// What travels, each option by itself.
  QMap<QString, QString> apart() const;
  /// The value on this queue for a preset's; none when it has no such option or value.
  std::optional<QString> fitting(const QString& name, const QString& value) const;
  /// The pages of a document of so many, 0 when that is not known; null for all.
  QString pagesUpTo(int count) const;
  void resolve();
  void markChanges(const Values& before);

  std::unique_ptr<QueueChoices> m_choices = std::make_unique<PpdChoices>(nullptr);
  bool m_isInUsersLanguage = false;  // the texts of the PPD are
  std::array<QMap<QString, QString>, 5> m_given;
  Values m_values;
  ResolvedOptions m_kept;
  QStringList m_refused;
  QStringList m_conflicts;
  QString m_lastSet;
  QStringList m_ofPanel;
  QStringList m_covers;  // those that the server has
  int m_pageCount = 0;
  bool m_isForFile = false;
  bool m_isOwnServer = false;  // the printer is
};

/// The options that are kept for a queue, by its user or on the server.
QMap<QString, QString> keptOptions(const Queue& queue);

}  // namespace kesto
