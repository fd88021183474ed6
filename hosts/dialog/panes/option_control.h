// The widgets by which one option of a job is chosen.
#pragma once

#include <QtWidgets/QWidget>

#include "hosts/session/option_offer.h"

class QLineEdit;

namespace kesto {

/// Shows what an option is, and gives the user's choice to the job's options. A text that is no value stays
/// in its field, marked, and the option stays as it was.
class OptionControl : public QWidget {
  Q_OBJECT

 public:
  const OfferedOption& option() const { return m_option; }
  /// What stands before it; null when it has its text in itself.
  virtual QString label() const;
  /// What the label leads to.
  virtual QWidget* field() = 0;
  /// Offers what the queue has now.
  virtual void showQueue() {}
  virtual void showValue() = 0;
  /// Why the job cannot be printed with what stands here, and what would do; null when it can.
  virtual QString fault() const { return {}; }
  virtual QWidget* faultyField() { return field(); }
  /// Whether the fault is worth a word: who has not typed yet has made no mistake.
  virtual bool isTouched() const { return true; }
  /// What becomes of the choice when that is not what was asked for; null for nothing to say.
  virtual QString note() const { return {}; }

 Q_SIGNALS:
  /// What is typed is a fault now, or is none any more.
  void faultChanged();

 protected:
  /// `options` must outlive the control.
  OptionControl(OfferedOption option, JobOptions& options, QWidget* parent);

  JobOptions& options() const { return m_options; }
  QString value() const { return m_options.value(m_option.key); }
  /// The user's choice; what the control shows of the options by itself is none.
  void take(const QString& value);
  void name(QWidget& widget, const QString& accessibleName, const QString& objectName) const;
  /// Marks a field where what is typed is a fault, and takes the mark away for a null one.
  static void mark(QLineEdit& field, const QString& fault);

 private:
  OfferedOption m_option;
  JobOptions& m_options;
};

/// The controls for an option, in their order; they belong to `parent`.
QList<OptionControl*> makeControls(const OfferedOption& option, JobOptions& options, QWidget* parent);

}  // namespace kesto
