#include "hosts/dialog/widgets/folding_splitter.h"

#include <QtCore/QEvent>

namespace kesto {

FoldingSplitter::FoldingSplitter(QWidget* folding, QWidget* lasting, QWidget* parent) : QSplitter(parent) {
  addWidget(folding);
  addWidget(lasting);
  setStretchFactor(0, 1);
  setStretchFactor(1, 0);
  setCollapsible(1, false);
}

QSize FoldingSplitter::minimumSizeHint() const {
  const QSize folding = widget(0)->minimumSizeHint();
  return widget(1)->minimumSizeHint().expandedTo(QSize(0, folding.height()));
}

void FoldingSplitter::makeRoom() {
  const int least = widget(1)->minimumSizeHint().width();
  if (widget(1)->width() < least) setSizes({width() - handleWidth() - least, least});
}

// Before the splitter itself divides the room.
bool FoldingSplitter::event(QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) fold();
  return QSplitter::event(event);
}

void FoldingSplitter::fold() {
  const int needed =
      widget(0)->minimumSizeHint().width() + handleWidth() + widget(1)->minimumSizeHint().width();
  const bool isRoom = width() >= needed;
  if (widget(0)->isHidden() == isRoom) widget(0)->setVisible(isRoom);
}

}  // namespace kesto
