// A splitter whose first part gives way to the second.
#pragma once

#include <QtWidgets/QSplitter>

namespace kesto {

/// Two widgets side by side. The first is folded away while there is no room for it, and comes back with
/// room; the user can fold it away with the handle. The second is as wide as it was, whatever the window.
class FoldingSplitter : public QSplitter {
  Q_OBJECT

 public:
  FoldingSplitter(QWidget* folding, QWidget* lasting, QWidget* parent);

  /// Gives the second the room that it needs now.
  void makeRoom();
  /// The least room of the second alone.
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;

 private:
  void fold();
};

}  // namespace kesto
