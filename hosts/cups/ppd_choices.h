// What the queue of a PPD offers for the options of a job.
#pragma once

#include "hosts/cups/ppd_file.h"
#include "hosts/cups/queue_choices.h"

namespace kesto {

/// The options of a PPD. A queue without a PPD offers none.
class PpdChoices : public QueueChoices {
 public:
  /// Marks the PPD's defaults. It must outlive this; null for none.
  explicit PpdChoices(ppd_file_t* ppd);

  bool has(const QString& option) const override { return find(option) != nullptr; }
  bool takesCustom(const QString& option) const override;
  bool isIn(const QLocale& language) const override;
  std::optional<CustomLimits> customLimits() const override;
  std::vector<PpdGroup> groups() const override;
  QString text(const QString& option) const override;
  QString text(const QString& option, const QString& choice) const override;
  std::vector<OptionChoice> choices(const QString& option) const override;
  int choiceCount(const QString& option) const override;
  QString defaultOf(const QString& option) const override;
  QString paperChoice(const QString& name) const override;
  void mark(const QString& option, const QString& choice) override;
  QStringList conflicts() const override;
  QStringList conflictsWith(const QString& option) const override;
  QMap<QString, QString> resolution(const QString& option) const override;
  std::optional<PpdPaper> markedPaper() const override;

 private:
  const ppd_option_t* find(const QString& option) const;
  const ppd_choice_t* find(const QString& option, const QString& choice) const;
  QString marked(const QString& option) const;
  QString choiceOfSize(const char* name, double width, double length) const;
  QString customPaper(double width, double length, const QString& choice) const;

  ppd_file_t* m_ppd = nullptr;
};

}  // namespace kesto
