// A side of a sheet of paper, drawn.
#pragma once

#include <QtWidgets/QWidget>

#include "hosts/dialog/preview/page_images.h"
#include "hosts/session/sheet_plan.h"

namespace kesto {

/// Shows a side of a sheet with its pages, or a text in its place.
class SheetView : public QWidget {
  Q_OBJECT

 public:
  SheetView(const PageImages& images, QWidget* parent) : QWidget(parent), m_images(images) {}

  struct Look {
    double borderWidth = 0;  ///< In points.
    bool isGray = false;
  };

  /// A cover sheet shows its name.
  void show(const SheetSide& side, const Look& look, const QString& cover);
  void show(const QString& text);

  /// The pages of a side at the size at which they are shown here.
  QList<WantedPage> wanted(const SheetSide& side) const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  double scaleOf(const SheetSide& side) const;
  void paintSide(QPainter* painter) const;
  void paintCell(QPainter* painter, const SheetCell& cell) const;

  const PageImages& m_images;
  SheetSide m_side;
  Look m_look;
  QString m_text;
};

}  // namespace kesto
