// The pane that sums up what the panel will do with the job.
#pragma once

#include <QtCore/QMap>
#include <QtWidgets/QScrollArea>

class QFormLayout;

namespace kesto {

/// Labels with their values, as the panel gives them.
class SummaryPane : public QScrollArea {
  Q_OBJECT

 public:
  explicit SummaryPane(QWidget* parent);
  void show(const QMap<QString, QString>& summary);

 private:
  QFormLayout* m_form;
  QMap<QString, QString> m_summary;
};

}  // namespace kesto
