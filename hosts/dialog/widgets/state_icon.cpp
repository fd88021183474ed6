#include "hosts/dialog/widgets/state_icon.h"

#include <QtGui/QPainter>

#include "hosts/dialog/widgets/accent_color.h"

namespace kesto {
namespace {

QColor colorOf(StateIcon::Kind kind) {
  switch (kind) {
    case StateIcon::Kind::Ready:
      return {46, 160, 67};
    case StateIcon::Kind::Busy:
      return {52, 120, 210};
    case StateIcon::Kind::Attention:
      return {214, 130, 20};
    default:
      return {205, 50, 50};
  }
}

}  // namespace

StateIcon::StateIcon(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  hide();
}

void StateIcon::setKind(Kind kind) {
  m_kind = kind;
  setVisible(kind != Kind::None);
  update();
}

QSize StateIcon::sizeHint() const {
  return {fontMetrics().height() * 3 / 4, fontMetrics().height()};
}

void StateIcon::paintEvent(QPaintEvent* /*event*/) {
  const double side = qMin(width(), height()) * 0.8;
  QRectF place(0, 0, side, side);
  place.moveCenter(QRectF(rect()).center());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  // What is said of the printer counts while nothing can be chosen, too.
  QPalette colors = palette();
  colors.setCurrentColorGroup(QPalette::Active);
  painter.setBrush(legible(colorOf(m_kind), colors));
  if (m_kind == Kind::Ready || m_kind == Kind::Busy) return painter.drawEllipse(place);
  const QPointF corners[] = {{place.center().x(), place.top()}, place.bottomRight(), place.bottomLeft()};
  painter.drawConvexPolygon(corners, std::size(corners));
}

}  // namespace kesto
