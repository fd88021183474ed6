// A label whose text may take several lines.
#pragma once

#include <QtGui/QResizeEvent>
#include <QtWidgets/QLabel>

namespace kesto {

/// Wraps its text, and is never lower than the text is in its width: in a layout within a form nobody asks a
/// label for the height that its width asks for.
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
