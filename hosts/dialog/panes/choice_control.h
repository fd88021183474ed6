// The lists of values.
#pragma once

#include "hosts/dialog/panes/option_control.h"

class QComboBox;
class QVBoxLayout;

namespace kesto {

/// A list of the values of an option.
class ChoiceControl : public OptionControl {
  Q_OBJECT

 public:
  ChoiceControl(const OfferedOption& option, JobOptions& options, QWidget* parent);

  QWidget* field() override;
  void showQueue() override;
  void showValue() override;

 protected:
  QComboBox& list() { return *m_list; }
  const QComboBox& list() const { return *m_list; }
  QVBoxLayout& column() { return *m_column; }
  /// Fills the empty list.
  virtual void fill();
  virtual void takeItem();
  /// The keyword of the value that the list shows.
  virtual QString shownValue() const { return value(); }

 private:
  QComboBox* m_list;
  QVBoxLayout* m_column;
};

/// The cover sheet before or after the job.
class CoverControl : public ChoiceControl {
  Q_OBJECT

 public:
  enum Part { Before, After };
  CoverControl(const OfferedOption& option, JobOptions& options, Part part, QWidget* parent);

  QString label() const override;

 protected:
  void takeItem() override;
  QString shownValue() const override;

 private:
  Part m_part;
};

/// The pages on a side of a sheet; where the printer makes booklets, that is one way to lay them out.
class NumberUpControl : public ChoiceControl {
  Q_OBJECT

 public:
  using ChoiceControl::ChoiceControl;

 protected:
  void fill() override;
  void takeItem() override;
  QString shownValue() const override;
};

}  // namespace kesto
