// What a printer without a PPD offers for the options of a job.
#pragma once

#include <array>
#include <vector>

#include "hosts/cups/ipp_reply.h"
#include "hosts/cups/queue_choices.h"

namespace kesto {

/// The options of a printer by its IPP attributes, under the keywords that PPDs have for them, so that a
/// job's option is the same whatever describes the printer. The values are the standard's, and texts are the
/// standard's names.
class IppChoices : public QueueChoices {
 public:
  /// The attributes to ask a printer for.
  static void askForAttributes(ipp_t* request);

  /// Reads what `printer` has of them.
  explicit IppChoices(ipp_t* printer);

  bool has(const QString& option) const override { return find(option) != nullptr; }
  bool takesCustom(const QString& option) const override;
  bool isIn(const QLocale& /*language*/) const override { return false; }
  std::optional<CustomLimits> customLimits() const override { return m_custom; }
  std::vector<PpdGroup> groups() const override { return {}; }
  QString text(const QString& /*option*/) const override { return {}; }
  QString text(const QString& option, const QString& choice) const override;
  std::vector<OptionChoice> choices(const QString& option) const override;
  QString defaultOf(const QString& option) const override;
  QString paperChoice(const QString& name) const override;
  std::pair<QString, QString> sentAs(const QString& option, const QString& choice) const override;
  void join(QMap<QString, QString>* sent) const override;
  void mark(const QString& option, const QString& choice) override { m_marked.insert(option, choice); }
  // Printers report conflicts when they validate a job.
  QStringList conflicts() const override { return {}; }
  QStringList conflictsWith(const QString& /*option*/) const override { return {}; }
  QMap<QString, QString> resolution(const QString& /*option*/) const override { return {}; }
  std::optional<PpdPaper> markedPaper() const override;

 private:
  struct Option {
    QString key;        // of the PPD's option
    QString attribute;  // of a job
    std::vector<OptionChoice> choices;
    QString initial;
  };

  const Option* find(const QString& key) const;
  void addOption(ipp_t* printer, const char* key, const char* attribute);
  void takeCustomLimits(ipp_t* printer);

  std::vector<Option> m_options;
  QMap<QString, QString> m_marked;
  std::optional<CustomLimits> m_custom;
  std::array<double, 4> m_margins{};  // left, right, top, bottom, in millimetres
};

}  // namespace kesto
