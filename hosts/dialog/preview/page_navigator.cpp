#include "hosts/dialog/preview/page_navigator.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QToolButton>

namespace kesto {
namespace {

// Here Enter goes to the page instead of printing, and the keys that turn pages are the preview's.
class NumberField : public QSpinBox {
 public:
  using QSpinBox::QSpinBox;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const int key = event->key();
    if (key == Qt::Key_PageUp || key == Qt::Key_PageDown) return event->ignore();
    QSpinBox::keyPressEvent(event);
    if (key == Qt::Key_Return || key == Qt::Key_Enter) event->accept();
  }
};

void makeArrow(QToolButton* button, Qt::ArrowType type, const QString& name) {
  button->setArrowType(type);
  button->setAccessibleName(name);
  button->setToolTip(name);
}

}  // namespace

PageNavigator::PageNavigator(QWidget* parent)
    : QWidget(parent),
      m_previous(new QToolButton(this)),
      m_before(new QLabel(this)),
      m_number(new NumberField(this)),
      m_after(new QLabel(this)),
      m_next(new QToolButton(this)) {
  const bool isLeftToRight = layoutDirection() == Qt::LeftToRight;
  makeArrow(m_previous, isLeftToRight ? Qt::LeftArrow : Qt::RightArrow, tr("Previous page"));
  makeArrow(m_next, isLeftToRight ? Qt::RightArrow : Qt::LeftArrow, tr("Next page"));
  m_number->setObjectName(QStringLiteral("pageNumber"));
  m_number->setAccessibleName(tr("Page"));
  m_number->setButtonSymbols(QAbstractSpinBox::NoButtons);
  m_number->setKeyboardTracking(false);
  m_number->setAlignment(Qt::AlignCenter);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins({});
  row->addStretch();
  for (QWidget* part :
       {static_cast<QWidget*>(m_previous), static_cast<QWidget*>(m_before), static_cast<QWidget*>(m_number),
        static_cast<QWidget*>(m_after), static_cast<QWidget*>(m_next)})
    row->addWidget(part);
  row->addStretch();
  connect(m_previous, &QToolButton::clicked, this, &PageNavigator::previousAsked);
  connect(m_next, &QToolButton::clicked, this, &PageNavigator::nextAsked);
  connect(m_number, &QSpinBox::valueChanged, this, &PageNavigator::numberAsked);
  show({});
}

void PageNavigator::show(const Place& place) {
  m_previous->setEnabled(place.hasPrevious);
  m_next->setEnabled(place.hasNext);
  const QString mark = QStringLiteral("%1");
  m_before->setText(place.text.section(mark, 0, 0).trimmed());
  m_after->setText(place.text.section(mark, 1).trimmed());
  const QSignalBlocker blocker(m_number);
  m_number->setRange(qMin(1, place.last), place.last);
  m_number->setValue(place.number);
  m_number->setVisible(!place.text.isNull());
  m_number->setAccessibleDescription(place.text.isNull() ? QString() : place.text.arg(place.number));
}

}  // namespace kesto
