// The bar of a dialog that says what is the matter.
#pragma once

#include <QtWidgets/QWidget>
#include <functional>

class QLabel;
class QPushButton;

namespace kesto {

/// Shows one message, with an icon and perhaps a button that does something about it. Hidden without a
/// message.
class MessageBar : public QWidget {
  Q_OBJECT

 public:
  enum class Kind { Note, Fault };

  explicit MessageBar(QWidget* parent);

  /// Shows a message and lets assistive technology read it out; an empty one hides the bar. The button is
  /// there when it has a text.
  void show(const QString& message, Kind kind, const QString& button = {}, std::function<void()> act = {});

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void dress();

  Kind m_kind = Kind::Note;
  std::function<void()> m_act;
  QLabel* m_icon;
  QLabel* m_text;
  QPushButton* m_button;
};

}  // namespace kesto
