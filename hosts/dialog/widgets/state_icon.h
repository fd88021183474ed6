// An icon for a state.
#pragma once

#include <QtWidgets/QWidget>

namespace kesto {

/// Shows a state by a colour and a shape; the sentence beside it says which.
class StateIcon : public QWidget {
  Q_OBJECT

 public:
  enum class Kind {
    None,
    Ready,
    Busy,
    Attention,
    Stopped,  ///< The printer waits for someone to see to it.
    Fault,    ///< There is no printer.
  };

  explicit StateIcon(QWidget* parent);

  /// Nothing is shown for no state.
  void setKind(Kind kind);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Kind m_kind = Kind::None;
};

}  // namespace kesto
