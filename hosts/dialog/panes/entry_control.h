// Lists of values with one that the user types.
#pragma once

#include "hosts/dialog/panes/choice_control.h"

class QHBoxLayout;

namespace kesto {

/// A list with one item more, for a value that the user types in fields below it.
class EntryControl : public ChoiceControl {
  Q_OBJECT

 public:
  void showQueue() override;
  void showValue() override;
  QString fault() const override;
  QWidget* faultyField() override;

 protected:
  /// What is typed in one field.
  struct Field {
    QString label;
    QString name;  ///< Of the object.
  };
  EntryControl(const OfferedOption& option, JobOptions& options, const QList<Field>& fields, QWidget* parent);

  void fill() override;
  void takeItem() override;
  /// A unit after the last field.
  void addUnit(const QString& unit);

  /// The item, and its place in the list; null when the queue takes no value of the user's.
  virtual std::pair<int, QString> entryItem() const = 0;
  /// The texts for a value of the user's; none for another.
  virtual QStringList textsOf(const QString& value) const = 0;
  /// What the fields show at first.
  virtual QStringList initialTexts() const = 0;
  /// Why a text cannot be that of a field; null when it can.
  virtual QString faultOf(qsizetype field, const QString& text) const = 0;
  /// The value for texts without a fault.
  virtual QString valueOf(const QStringList& texts) const = 0;

 private:
  bool isEntry() const;
  QStringList texts() const;
  void showTexts(const QStringList& texts);
  void takeTexts();
  void markFields();

  QWidget* m_line;
  QHBoxLayout* m_lineLayout;
  QList<QLineEdit*> m_fields;
  QString m_valueOfEntry;  // of the options, as the fields made or found it
};

/// The paper sizes and "Custom size".
class PaperControl : public EntryControl {
  Q_OBJECT

 public:
  PaperControl(const OfferedOption& option, JobOptions& options, QWidget* parent);

 protected:
  std::pair<int, QString> entryItem() const override;
  QStringList textsOf(const QString& value) const override;
  QStringList initialTexts() const override;
  QString faultOf(qsizetype field, const QString& text) const override;
  QString valueOf(const QStringList& texts) const override;

 private:
  QStringList textsOfSize(double width, double height) const;
};

/// How pages are scaled, and a percentage.
class PercentControl : public EntryControl {
  Q_OBJECT

 public:
  PercentControl(const OfferedOption& option, JobOptions& options, QWidget* parent);

 protected:
  std::pair<int, QString> entryItem() const override;
  QStringList textsOf(const QString& value) const override;
  QStringList initialTexts() const override;
  QString faultOf(qsizetype field, const QString& text) const override;
  QString valueOf(const QStringList& texts) const override;
};

/// When the job is printed, and a time of day.
class HoldControl : public EntryControl {
  Q_OBJECT

 public:
  HoldControl(const OfferedOption& option, JobOptions& options, QWidget* parent);

 protected:
  std::pair<int, QString> entryItem() const override;
  QStringList textsOf(const QString& value) const override;
  QStringList initialTexts() const override;
  QString faultOf(qsizetype field, const QString& text) const override;
  QString valueOf(const QStringList& texts) const override;
};

}  // namespace kesto
