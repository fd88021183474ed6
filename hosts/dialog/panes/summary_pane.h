// The pane that sums up what will be done with the job.
#pragma once

#include <QtCore/QList>
#include <QtWidgets/QWidget>

#include "hosts/cups/job_privacy.h"

class QFormLayout;
class QLabel;
class QPushButton;

namespace kesto {

/// Labels with their values, in their order; below them, when it is asked for, what other users see
/// of the job.
class SummaryPane : public QWidget {
  Q_OBJECT

 public:
  explicit SummaryPane(QWidget* parent);
  void show(const QList<std::pair<QString, QString>>& summary);
  void showPrivacy(const Outcome& outcome, const JobPrivacy& privacy);

 Q_SIGNALS:
  /// The user wants to know what others see.
  void privacyAsked();

 private:
  QFormLayout* m_form;
  QList<std::pair<QString, QString>> m_summary;
  QPushButton* m_ask;
  QLabel* m_privacy;
};

}  // namespace kesto
