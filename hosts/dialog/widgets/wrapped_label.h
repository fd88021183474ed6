// A label whose text may take several lines.
#pragma once

#include <QtGui/QResizeEvent>
#include <QtWidgets/QLabel>

namespace kesto {

/// Wraps its text, and is never lower than the text needs at its width. A layout within a form does not ask a
/// label for that height.
class WrappedLabel : public QLabel {
 public:
  explicit WrappedLabel(QWidget* parent) : QLabel(parent) { setWordWrap(true); }

  QSize minimumSizeHint() const override {
    return QLabel::minimumSizeHint().expandedTo(QSize(0, heightForWidth(width())));
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QLabel::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) updateGeometry();
  }
};

}  // namespace kesto
