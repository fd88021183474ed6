#include "hosts/dialog/widgets/dialog_foot.h"

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QVBoxLayout>

#include "hosts/dialog/widgets/plain_text.h"

namespace kesto {

DialogFoot::DialogFoot(QWidget* parent)
    : QWidget(parent),
      m_bar(new MessageBar(this)),
      m_leading(new QHBoxLayout),
      m_progress(new QProgressBar(this)),
      m_buttons(new QDialogButtonBox(QDialogButtonBox::Help | QDialogButtonBox::Cancel, this)),
      m_print(m_buttons->addButton(QString(), QDialogButtonBox::AcceptRole)) {
  m_progress->setAccessibleName(tr("Sending the job"));
  m_progress->hide();
  m_print->setObjectName(QStringLiteral("print"));
  m_print->setDefault(true);
  setPlainText(*m_print, tr("Print"));
  setPlainText(*m_buttons->button(QDialogButtonBox::Help), tr("Help"));
  setPlainText(*m_buttons->button(QDialogButtonBox::Cancel), tr("Cancel"));
  dressButtons();
  auto* row = new QHBoxLayout;
  row->addLayout(m_leading);
  row->addStretch();
  row->addWidget(m_buttons);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(m_bar);
  column->addWidget(m_progress);
  column->addLayout(row);
  connect(m_buttons, &QDialogButtonBox::accepted, this, &DialogFoot::printPressed);
  connect(m_buttons, &QDialogButtonBox::rejected, this, &DialogFoot::cancelPressed);
  connect(m_buttons, &QDialogButtonBox::helpRequested, this, &DialogFoot::helpPressed);
}

// The style gives icons to the standard buttons alone, and Print is none of these.
void DialogFoot::dressButtons() {
  const QIcon icon = QIcon::fromTheme(QStringLiteral("document-print"));
  const bool haveIcons =
      style()->styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons, nullptr, m_buttons) != 0 &&
      !icon.isNull();
  if (haveIcons) return m_print->setIcon(icon);
  for (QAbstractButton* button : m_buttons->buttons())
    button->setIcon({});
}

void DialogFoot::addLeading(QWidget* widget) {
  m_leading->addWidget(widget);
  widget->lower();  // Tab comes to it before the buttons
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

void DialogFoot::offerClose(bool isOffered) {
  setPlainText(*m_buttons->button(QDialogButtonBox::Cancel), isOffered ? tr("Close") : tr("Cancel"));
}

}  // namespace kesto
