#include "hosts/dialog/panes/summary_pane.h"

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include "hosts/dialog/widgets/plain_text.h"
#include "platform/shown_text.h"

namespace kesto {

SummaryPane::SummaryPane(QWidget* parent)
    : QWidget(parent), m_form(new QFormLayout), m_ask(new QPushButton(this)), m_privacy(new QLabel(this)) {
  m_form->setLabelAlignment(Qt::AlignTrailing);
  setPlainText(*m_ask, tr("Who can see this job?"));
  m_ask->setAutoDefault(false);
  m_ask->setObjectName(QStringLiteral("privacy"));
  m_privacy->setTextFormat(Qt::PlainText);
  m_privacy->setWordWrap(true);
  m_privacy->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  m_privacy->setObjectName(QStringLiteral("privacyText"));
  m_privacy->hide();
  auto* column = new QVBoxLayout(this);
  column->addLayout(m_form);
  column->addWidget(m_ask, 0, Qt::AlignLeading);
  column->addWidget(m_privacy);
  column->addStretch();
  connect(m_ask, &QPushButton::clicked, this, [this] {
    m_ask->setEnabled(false);
    Q_EMIT privacyAsked();
  });
  setAccessibleName(tr("Summary"));
}

void SummaryPane::show(const QList<std::pair<QString, QString>>& summary) {
  if (summary == m_summary) return;
  m_summary = summary;
  while (m_form->rowCount() > 0)
    m_form->removeRow(0);
  for (const auto& [label, text] : summary) {
    auto* value = new QLabel(text.isEmpty() ? QStringLiteral("–") : shownText(text));
    value->setTextFormat(Qt::PlainText);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    value->setWordWrap(true);
    value->setAccessibleName(withoutColon(label));
    value->setAccessibleDescription(text);
    m_form->addRow(withColon(label), value);
  }
}

void SummaryPane::showPrivacy(const Outcome& outcome, const JobPrivacy& privacy) {
  QString text = shownText(asSentence(outcome.reason()));
  if (outcome && privacy.shown.isEmpty()) {
    text = tr("Other users can see that this job exists, but none of its details.");
  } else if (outcome) {
    text = tr("Other users can see %1. To hide it, add these lines to the print server's policy \"%2\":")
               .arg(privacy.shown.join(QStringLiteral(", ")), privacy.policy) +
           QStringLiteral("\n\n") + QLatin1String(privatePolicyLines);
  }
  m_privacy->setText(text.trimmed());
  m_privacy->setAccessibleName(text);
  m_privacy->show();
  m_ask->setEnabled(true);
}

}  // namespace kesto
