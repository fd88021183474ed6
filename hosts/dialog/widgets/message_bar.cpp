#include "hosts/dialog/widgets/message_bar.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>

#include "hosts/dialog/widgets/accessible.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/dialog/widgets/wrapped_label.h"
#include "platform/shown_text.h"

namespace kesto {

MessageBar::MessageBar(QWidget* parent)
    : QWidget(parent),
      m_icon(new QLabel(this)),
      m_text(new WrappedLabel(this)),
      m_button(new QPushButton(this)) {
  m_text->setTextFormat(Qt::PlainText);
  m_text->setObjectName(QStringLiteral("message"));
  m_button->setObjectName(QStringLiteral("messageButton"));
  m_button->setAutoDefault(false);
  auto* row = new QHBoxLayout(this);
  row->addWidget(m_icon, 0, Qt::AlignTop);
  row->addWidget(m_text, 1);
  row->addWidget(m_button);
  connect(m_button, &QPushButton::clicked, this, [this] {
    if (const auto act = m_act) act();  // which may show another message
  });
  hide();
}

void MessageBar::show(const QString& message, Kind kind, const QString& button, std::function<void()> act) {
  const QString text = shownText(message);
  m_kind = kind;
  m_act = std::move(act);
  m_text->setText(text);
  m_text->setAccessibleName(text);
  setPlainText(*m_button, button);
  m_button->setVisible(!button.isEmpty());
  dress();
  setVisible(!text.isEmpty());
  announce(*m_text, text);
}

void MessageBar::dress() {
  const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
  const auto shape = m_kind == Kind::Fault ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation;
  m_icon->setPixmap(style()->standardIcon(shape, nullptr, this).pixmap(side));
}

// A tint shows in light and dark, and leaves the text as legible as it is elsewhere.
void MessageBar::paintEvent(QPaintEvent* /*event*/) {
  QColor tint = m_kind == Kind::Fault ? QColor(240, 150, 30) : palette().color(QPalette::Highlight);
  QPainter painter(this);
  tint.setAlpha(40);
  painter.fillRect(rect(), tint);
  tint.setAlpha(160);
  painter.setPen(tint);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void MessageBar::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) dress();
}

}  // namespace kesto
