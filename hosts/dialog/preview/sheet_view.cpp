#include "hosts/dialog/preview/sheet_view.h"

#include <QtGui/QPainter>

namespace kesto {
namespace {

constexpr int margin = 8;  // pixels
constexpr int largestPage = 4000;

// A back lies as it does when the sheet is turned over.
QSizeF lying(const SheetSide& side) {
  return side.rotation % 180 == 0 ? side.size : side.size.transposed();
}

void turn(QPainter* painter, const QPointF& around, int degrees) {
  painter->translate(around);
  painter->rotate(degrees);
}

}  // namespace

void SheetView::show(const SheetSide& side, const Look& look, const QString& cover) {
  m_side = side;
  m_look = look;
  m_text = cover;
  setAccessibleName(cover.isEmpty() ? tr("Preview of the page") : cover);
  update();
}

void SheetView::show(const QString& text) {
  m_side = {};
  m_text = text;
  setAccessibleName(text);
  update();
}

double SheetView::scaleOf(const SheetSide& side) const {
  const QSizeF paper = lying(side);
  const double scale = qMin((width() - 2 * margin) / paper.width(), (height() - 2 * margin) / paper.height());
  return qMax(scale, 0.01);
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
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Mid));
  if (!m_side.size.isEmpty()) return paintSide(&painter);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect().adjusted(12, 12, -12, -12), Qt::AlignCenter | Qt::TextWordWrap, m_text);
}

void SheetView::paintSide(QPainter* painter) const {
  const double scale = scaleOf(m_side);
  QRect paper({}, (lying(m_side) * scale).toSize());
  paper.moveCenter(rect().center());
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

void SheetView::paintCell(QPainter* painter, const SheetCell& cell) const {
  const QImage image = m_images.image({cell.document, cell.page});
  painter->save();
  painter->setClipRect(cell.visible, Qt::IntersectClip);
  turn(painter, cell.area.center(), cell.rotation);
  const QSizeF size = cell.rotation % 180 == 0 ? cell.area.size() : cell.area.size().transposed();
  const QRectF place(-size.width() / 2, -size.height() / 2, size.width(), size.height());
  if (!image.isNull())
    painter->drawImage(place, m_look.isGray ? image.convertToFormat(QImage::Format_Grayscale8) : image);
  painter->restore();
  painter->setPen(QPen(Qt::black, m_look.borderWidth));
  for (const QRectF& line : cell.border)
    painter->drawRect(line);
}

}  // namespace kesto
