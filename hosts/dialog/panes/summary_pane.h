// The pane that sums up what will be done with the job.
#pragma once

#include <QtCore/QList>
#include <QtWidgets/QWidget>

#include "hosts/cups/job_privacy.h"
#include "hosts/session/option_offer.h"

class QFormLayout;
class QLabel;
class QPushButton;

namespace kesto {

/// Labels with their values, in their order, those that differ from the default in the accent colour; below
/// them, when it is asked for, what other users see of the job.
class SummaryPane : public QWidget {
  Q_OBJECT

 public:
  explicit SummaryPane(QWidget* parent);
  void show(const QList<SummaryLine>& summary);
  void showPrivacy(const Outcome& outcome, const JobPrivacy& privacy);

 Q_SIGNALS:
  /// The lines are others than before.
  void filled();
  /// The user wants to know what others see.
  void privacyAsked();

 protected:
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void fill();
  void addLine(const SummaryLine& line);

  QFormLayout* m_form;
  QList<SummaryLine> m_summary;
  bool m_isFilled = true;
  QPushButton* m_ask;
  QLabel* m_privacy;
};

}  // namespace kesto
