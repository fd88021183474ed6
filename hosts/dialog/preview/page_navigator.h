// The row below the preview that says which page is shown, and goes to others.
#pragma once

#include <QtWidgets/QWidget>

class QLabel;
class QSpinBox;
class QToolButton;

namespace kesto {

/// Arrows to the neighbours of a place, and its number, over which another can be typed.
class PageNavigator : public QWidget {
  Q_OBJECT

 public:
  struct Place {
    QString text;  ///< "Page %1 of 10"; the number stands for "%1". Null for no place at all.
    int number = 0;
    int last = 0;  ///< The largest number.
    bool hasPrevious = false;
    bool hasNext = false;
  };

  explicit PageNavigator(QWidget* parent);

  void show(const Place& place);

 Q_SIGNALS:
  void previousAsked();
  void nextAsked();
  void numberAsked(int number);

 private:
  QToolButton* m_previous;
  QLabel* m_before;
  QSpinBox* m_number;
  QLabel* m_after;
  QToolButton* m_next;
};

}  // namespace kesto
