// Which pages of the document are printed.
#pragma once

#include "hosts/dialog/panes/option_control.h"

class QRadioButton;

namespace kesto {

/// All pages, those that the application alone knows, or those that the user writes.
class PagesControl : public OptionControl {
  Q_OBJECT

 public:
  PagesControl(const OfferedOption& option, JobOptions& options, QWidget* parent);

  /// Offers pages that the application alone knows: `JobOptions::currentPage` and `selection`.
  void offer(const QStringList& pages);

  QWidget* field() override;
  void showValue() override;
  QString fault() const override { return faultOfPages(options()); }
  QWidget* faultyField() override;
  bool isTouched() const override;
  QString note() const override;

 private:
  QString textOf(const QString& pages) const;
  QRadioButton* chosenRadio() const;
  QRadioButton* addRadio(const QString& text, const QString& objectName);
  void takePages();

  QRadioButton* m_all;
  QMap<QString, QRadioButton*> m_applications;  // by their value
  QRadioButton* m_some;
  QLineEdit* m_pages;
};

}  // namespace kesto
