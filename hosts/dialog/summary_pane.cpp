#include "hosts/dialog/summary_pane.h"

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>

namespace kesto {

SummaryPane::SummaryPane(QWidget* parent) : QScrollArea(parent) {
  auto* page = new QWidget(this);
  m_form = new QFormLayout(page);
  m_form->setLabelAlignment(Qt::AlignTrailing);
  setWidget(page);
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setAccessibleName(tr("Summary"));
}

void SummaryPane::show(const QMap<QString, QString>& summary) {
  if (summary == m_summary) return;
  m_summary = summary;
  while (m_form->rowCount() > 0)
    m_form->removeRow(0);
  for (auto it = summary.begin(); it != summary.end(); ++it) {
    auto* value = new QLabel(it.value().isEmpty() ? QStringLiteral("–") : it.value());
    value->setTextFormat(Qt::PlainText);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    value->setWordWrap(true);
    value->setAccessibleName(it.key());
    value->setAccessibleDescription(it.value());
    m_form->addRow(it.key() + u':', value);
  }
}

}  // namespace kesto
