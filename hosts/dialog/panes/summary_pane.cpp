#include "hosts/dialog/panes/summary_pane.h"

#include <QtCore/QEvent>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include "hosts/dialog/widgets/accent_color.h"
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
  connect(m_ask, &QPushButton::clicked, this, [this] {
    m_ask->setEnabled(false);
    Q_EMIT privacyAsked();
  });
}

// Nobody reads a folded one.
void SummaryPane::show(const QList<SummaryLine>& summary) {
  if (summary == m_summary) return;
  m_summary = summary;
  m_isFilled = false;
  if (isVisible()) fill();
}

void SummaryPane::showEvent(QShowEvent* event) {
  if (!m_isFilled) fill();
  QWidget::showEvent(event);
}

void SummaryPane::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::PaletteChange) return;
  m_isFilled = false;
  if (isVisible()) fill();
}

void SummaryPane::fill() {
  m_isFilled = true;
  while (m_form->rowCount() > 0)
    m_form->removeRow(0);
  for (const SummaryLine& each : m_summary)
    addLine(each);
  Q_EMIT filled();
}

void SummaryPane::addLine(const SummaryLine& line) {
  auto* value = new QLabel(this);
  value->setTextFormat(Qt::PlainText);
  if (line.text.isNull()) {
    value->setText(shownText(line.label));
    value->setFont(boldOf(value->font()));
    return m_form->addRow(value);
  }
  value->setText(line.text.isEmpty() ? QStringLiteral("–") : shownText(line.text));
  value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  value->setWordWrap(true);
  value->setAccessibleName(withoutColon(line.label));
  value->setAccessibleDescription(line.differs ? tr("%1 (changed)").arg(line.text) : line.text);
  if (line.differs) {
    QPalette marked = value->palette();
    marked.setColor(QPalette::WindowText, accentColor(palette()));
    value->setPalette(marked);
  }
  auto* label = new QLabel(this);  // which may be a printer's own text
  setPlainText(*label, withColon(line.label));
  m_form->addRow(label, value);
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
