#include "hosts/dialog/preview/sheet_view.h"

#include <QtGui/QPainter>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>
#include <cmath>

#include "hosts/dialog/widgets/accessible.h"

namespace kesto {
namespace {

constexpr int margin = 8;  // pixels
constexpr int largestPage = 4000;
constexpr double largestZoom = 8;
constexpr double zoomStep = 1.25;

// A back lies as it does when the sheet is turned over.
QSizeF lying(const SheetSide& side) {
  return side.rotation % 180 == 0 ? side.size : side.size.transposed();
}

void turn(QPainter* painter, const QPointF& around, int degrees) {
  painter->translate(around);
  painter->rotate(degrees);
}

// An image without parts, whose inner widgets are nobody's business.
class AccessibleSheet : public QAccessibleWidget, public QAccessibleImageInterface {
 public:
  explicit AccessibleSheet(QWidget* view) : QAccessibleWidget(view, QAccessible::Graphic) {}

  int childCount() const override { return 0; }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  QString imageDescription() const override { return widget()->accessibleDescription(); }
  QSize imageSize() const override { return widget()->size(); }
  QPoint imagePosition() const override { return widget()->mapToGlobal(QPoint()); }

 protected:
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ImageInterface) return static_cast<QAccessibleImageInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }
};

}  // namespace

SheetView::SheetView(const PageImages& images, QWidget* parent)
    : QAbstractScrollArea(parent), m_images(images) {
  useInterface<SheetView, AccessibleSheet>();
  setAccessibleName(tr("Preview"));
  setFrameShape(QFrame::NoFrame);
  viewport()->setBackgroundRole(QPalette::Mid);
  setFit(Fit::Sheet, 1, {});
}

void SheetView::show(const SheetSide& side, const Look& look, const QString& cover) {
  m_side = side;
  m_look = look;
  m_text = cover;
  updateBars();
  viewport()->update();
}

void SheetView::show(const QString& text) {
  show({}, {}, text);
}

void SheetView::scrollToEnd(bool isLower) {
  verticalScrollBar()->setValue(isLower ? verticalScrollBar()->maximum() : 0);
}

double SheetView::scaleOf(const SheetSide& side) const {
  return scaleOf(side, m_fit);
}

double SheetView::scaleOf(const SheetSide& side, Fit fit) const {
  const QSizeF paper = lying(side);
  const QSize room = viewport()->size() - QSize(2 * margin, 2 * margin);
  const double width = room.width() / paper.width();
  const double whole = qMin(width, room.height() / paper.height());
  return qMax(fit == Fit::Width ? width : fit == Fit::Sheet ? whole : whole * m_zoom, 0.01);
}

// `around` stays where it is, as far as the sheet reaches.
void SheetView::setFit(Fit fit, double zoom, const QPointF& around) {
  const QRect before = paperPlace();
  m_fit = fit;
  m_zoom = zoom;
  // A bar that comes and goes would change the room that decides about it.
  setHorizontalScrollBarPolicy(fit == Fit::Zoom ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(fit == Fit::Sheet ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAlwaysOn);
  updateBars();
  const QRect after = paperPlace();
  if (before.isEmpty() || after.isEmpty()) return;
  const QPointF point((around.x() - before.x()) / before.width(),
                      (around.y() - before.y()) / before.height());
  const QPointF now = after.topLeft() + QPointF(point.x() * after.width(), point.y() * after.height());
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(now.x() - around.x()));
  verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(now.y() - around.y()));
  viewport()->update();
  Q_EMIT zoomed();
}

// A sheet that is as wide as the view already is enlarged.
void SheetView::toggleFit(const QPointF& around) {
  constexpr double noticeable = 1.1;
  if (m_side.size.isEmpty()) return;
  if (m_fit != Fit::Sheet) return setFit(Fit::Sheet, 1, around);
  const bool isWide = scaleOf(m_side, Fit::Width) < noticeable * scaleOf(m_side);
  setFit(isWide ? Fit::Zoom : Fit::Width, 2, around);
}

void SheetView::zoomBy(double factor, const QPointF& around) {
  if (m_side.size.isEmpty()) return;
  const double zoom = qMin(scaleOf(m_side) / scaleOf(m_side, Fit::Sheet) * factor, largestZoom);
  constexpr double nearlyWhole = 1.01;
  setFit(zoom < nearlyWhole ? Fit::Sheet : Fit::Zoom, zoom < nearlyWhole ? 1 : zoom, around);
}

void SheetView::updateBars() {
  const QSize paper = m_side.size.isEmpty()
                          ? QSize()
                          : (lying(m_side) * scaleOf(m_side)).toSize() + QSize(2 * margin, 2 * margin);
  const auto update = [](QScrollBar* bar, int length, int room) {
    bar->setRange(0, qMax(length - room, 0));
    bar->setPageStep(room);
    bar->setSingleStep(qMax(room / 12, 1));
  };
  update(horizontalScrollBar(), paper.width(), viewport()->width());
  update(verticalScrollBar(), paper.height(), viewport()->height());
}

QRect SheetView::paperPlace() const {
  if (m_side.size.isEmpty()) return {};
  QRect paper({}, (lying(m_side) * scaleOf(m_side)).toSize());
  paper.moveCenter(viewport()->rect().center());
  if (horizontalScrollBar()->maximum() > 0) paper.moveLeft(margin - horizontalScrollBar()->value());
  if (verticalScrollBar()->maximum() > 0) paper.moveTop(margin - verticalScrollBar()->value());
  return paper;
}

QList<WantedPage> SheetView::wanted(const SheetSide& side) const {
  QList<WantedPage> pages;
  const double scale = scaleOf(side) * devicePixelRatioF();
  for (const SheetCell& cell : side.cells) {
    const double longer = qMax(cell.area.width(), cell.area.height());
    pages.append({{cell.document, cell.page}, qBound(16, qRound(longer * scale), largestPage)});
  }
  return pages;
}

void SheetView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), palette().color(QPalette::Mid));
  if (!m_side.size.isEmpty()) {
    paintSide(&painter);
  } else {
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(viewport()->rect().adjusted(12, 12, -12, -12), Qt::AlignCenter | Qt::TextWordWrap,
                     m_text);
  }
  if (!hasFocus()) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
}

void SheetView::paintSide(QPainter* painter) const {
  const double scale = scaleOf(m_side);
  const QRect paper = paperPlace();
  painter->fillRect(paper.translated(3, 3), QColor(0, 0, 0, 60));
  painter->fillRect(paper, Qt::white);
  painter->setPen(Qt::darkGray);
  if (!m_text.isEmpty()) painter->drawText(paper, Qt::AlignCenter | Qt::TextWordWrap, m_text);
  painter->setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
  painter->save();
  turn(painter, QRectF(paper).center(), m_side.rotation);
  painter->scale(scale, scale);
  painter->translate(-m_side.size.width() / 2, -m_side.size.height() / 2);
  painter->setClipRect(QRectF({}, m_side.size));
  for (const SheetCell& cell : m_side.cells)
    paintCell(painter, cell);
  painter->restore();
  painter->setRenderHint(QPainter::Antialiasing, false);
  painter->setPen(palette().color(QPalette::Dark));
  painter->drawRect(paper.adjusted(0, 0, -1, -1));
}

// An image that was drawn for this size lies on whole pixels, so that it stays sharp.
void SheetView::paintCell(QPainter* painter, const SheetCell& cell) const {
  const QImage image = m_images.image({cell.document, cell.page}, m_look.isGray);
  painter->save();
  painter->setClipRect(cell.visible, Qt::IntersectClip);
  turn(painter, cell.area.center(), cell.rotation);
  const QSizeF size = cell.rotation % 180 == 0 ? cell.area.size() : cell.area.size().transposed();
  const QRectF place(-size.width() / 2, -size.height() / 2, size.width(), size.height());
  const QTransform& toDevice = painter->deviceTransform();
  const QRectF onDevice = toDevice.mapRect(place);
  const bool isTurned = !qFuzzyIsNull(toDevice.m12());
  const QSizeF drawn = isTurned ? image.size().transposed() : image.size();
  const bool isExact =
      std::abs(onDevice.width() - drawn.width()) < 1.5 && std::abs(onDevice.height() - drawn.height()) < 1.5;
  const QRectF pixels(onDevice.topLeft().toPoint(), drawn);
  if (!image.isNull()) painter->drawImage(isExact ? toDevice.inverted().mapRect(pixels) : place, image);
  painter->restore();
  painter->setPen(QPen(Qt::black, m_look.borderWidth));
  for (const QRectF& line : cell.border)
    painter->drawRect(line);
}

void SheetView::resizeEvent(QResizeEvent* /*event*/) {
  updateBars();
}

void SheetView::wheelEvent(QWheelEvent* event) {
  event->accept();
  constexpr int step = 120;  // of a common wheel
  const int by = event->angleDelta().y();
  if (event->modifiers() & Qt::ControlModifier)
    return zoomBy(std::pow(zoomStep, static_cast<double>(by) / step), event->position());
  const QScrollBar* bar = verticalScrollBar();
  const bool isAtEnd = by < 0 ? bar->value() == bar->maximum() : bar->value() == bar->minimum();
  if (!isAtEnd || by == 0) {
    m_wheel = 0;
    return QAbstractScrollArea::wheelEvent(event);
  }
  m_wheel += by;
  if (std::abs(m_wheel) < step) return;
  m_wheel = 0;
  Q_EMIT turned(by < 0 ? 1 : -1);
}

void SheetView::mousePressEvent(QMouseEvent* event) {
  m_pressed = event->pos();
  m_dragged = event->pos();
  m_isDrag = false;
}

// The sheet follows the pressed mouse.
void SheetView::mouseMoveEvent(QMouseEvent* event) {
  if (!(event->buttons() & Qt::LeftButton)) return;
  if ((event->pos() - m_pressed).manhattanLength() >= QApplication::startDragDistance()) m_isDrag = true;
  if (!m_isDrag) return;
  const QPoint by = event->pos() - std::exchange(m_dragged, event->pos());
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() - by.x());
  verticalScrollBar()->setValue(verticalScrollBar()->value() - by.y());
}

void SheetView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && !m_isDrag) toggleFit(event->position());
}

// The keys that are not for this sheet are the parent's.
void SheetView::keyPressEvent(QKeyEvent* event) {
  const QPointF middle = QRectF(viewport()->rect()).center();
  const int key = event->key();
  if (key == Qt::Key_Space) return toggleFit(middle);
  if (event->matches(QKeySequence::ZoomIn)) return zoomBy(zoomStep, middle);
  if (event->matches(QKeySequence::ZoomOut)) return zoomBy(1 / zoomStep, middle);
  const bool isArrow =
      key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
  isArrow ? QAbstractScrollArea::keyPressEvent(event) : event->ignore();
}

}  // namespace kesto
