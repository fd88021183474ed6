#include "hosts/dialog/widgets/dialog_foot.h"

#include <QtGui/QAccessible>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include "hosts/dialog/widgets/plain_text.h"
#include "platform/shown_text.h"

namespace kesto {

DialogFoot::DialogFoot(QWidget* parent)
    : QWidget(parent),
      m_message(new QLabel(this)),
      m_progress(new QProgressBar(this)),
      m_buttons(new QDialogButtonBox(QDialogButtonBox::Help | QDialogButtonBox::Cancel, this)),
      m_print(m_buttons->addButton(QString(), QDialogButtonBox::AcceptRole)) {
  m_message->setTextFormat(Qt::PlainText);
  m_message->setWordWrap(true);
  m_message->setObjectName(QStringLiteral("message"));
  m_progress->setAccessibleName(tr("Sending the job"));
  m_progress->hide();
  m_print->setObjectName(QStringLiteral("print"));
  m_print->setDefault(true);
  setPlainText(*m_print, tr("Print"));
  setPlainText(*m_buttons->button(QDialogButtonBox::Help), tr("Help"));
  setPlainText(*m_buttons->button(QDialogButtonBox::Cancel), tr("Cancel"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(m_message);
  column->addWidget(m_progress);
  column->addWidget(m_buttons);
  connect(m_buttons, &QDialogButtonBox::accepted, this, &DialogFoot::printPressed);
  connect(m_buttons, &QDialogButtonBox::rejected, this, &DialogFoot::cancelPressed);
  connect(m_buttons, &QDialogButtonBox::helpRequested, this, &DialogFoot::helpPressed);
}

void DialogFoot::showMessage(const QString& message) {
  const QString text = shownText(message);
  m_message->setText(text);
  m_message->setAccessibleName(text);
  if (text.isEmpty()) return;
  QAccessibleEvent event(m_message, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

void DialogFoot::showProgress(bool isShown) {
  m_progress->setRange(0, 0);
  m_progress->setVisible(isShown);
}

void DialogFoot::setProgress(qint64 sent, qint64 total) {
  constexpr int steps = 1000;
  m_progress->setRange(0, total > 0 ? steps : 0);
  if (total > 0) m_progress->setValue(static_cast<int>(steps * sent / total));
}

void DialogFoot::offerClose() {
  setPlainText(*m_buttons->button(QDialogButtonBox::Cancel), tr("Close"));
}

}  // namespace kesto
