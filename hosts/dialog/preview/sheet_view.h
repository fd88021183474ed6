// A side of a sheet of paper, drawn.
#pragma once

#include <QtWidgets/QAbstractScrollArea>

#include "hosts/dialog/preview/page_images.h"
#include "hosts/session/sheet_plan.h"

namespace kesto {

/// Shows a side of a sheet with its pages, or a text in its place. A click, or the space bar, goes from the
/// whole sheet to its width and back; the wheel with Ctrl, or Ctrl with + and -, zooms. The wheel alone
/// scrolls, and at an end asks for another side. To assistive technology it is an image with the widget's
/// accessible description.
class SheetView : public QAbstractScrollArea {
  Q_OBJECT

 public:
  SheetView(const PageImages& images, QWidget* parent);

  struct Look {
    double borderWidth = 0;  ///< In points.
    bool isGray = false;
  };

  /// A cover sheet shows its name.
  void show(const SheetSide& side, const Look& look, const QString& cover);
  void show(const QString& text);
  /// Goes to the upper or to the lower end of the sheet.
  void scrollToEnd(bool isLower);

  /// The pages of a side at the size at which they are shown here.
  QList<WantedPage> wanted(const SheetSide& side) const;

 Q_SIGNALS:
  /// The user wants another side: the next one for 1, the previous one for -1.
  void turned(int by);
  /// Sheets are shown at another size.
  void zoomed();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  enum class Fit { Sheet, Width, Zoom };

  double scaleOf(const SheetSide& side) const;
  double scaleOf(const SheetSide& side, Fit fit) const;
  void setFit(Fit fit, double zoom, const QPointF& around);
  void toggleFit(const QPointF& around);
  void zoomBy(double factor, const QPointF& around);
  void updateBars();
  QRect paperPlace() const;
  void paintSide(QPainter* painter) const;
  void paintCell(QPainter* painter, const SheetCell& cell) const;

  const PageImages& m_images;
  SheetSide m_side;
  Look m_look;
  QString m_text;
  Fit m_fit = Fit::Sheet;
  double m_zoom = 1;  // times the whole sheet
  int m_wheel = 0;    // of a turn of the wheel that is no whole step yet
  QPoint m_pressed;
  QPoint m_dragged;
  bool m_isDrag = false;
};

}  // namespace kesto
