#include "hosts/dialog/widgets/tab_order.h"

#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

namespace kesto {
namespace {

// Qt itself does this for a button that gets the focus alone.
void makeEntry(const QAbstractButton& chosen) {
  for (auto* radio : chosen.parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly))
    radio->setFocusPolicy(radio == &chosen ? Qt::StrongFocus : Qt::ClickFocus);
}

// The inner parts of these are their own affair.
bool isOneStop(const QWidget& widget) {
  return qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
         qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QTabBar*>(&widget) != nullptr;
}

// Where they stand is the desktop's choice.
void collectButtons(const QDialogButtonBox& box, QList<QWidget*>* stops) {
  for (int i = 0; i < box.layout()->count(); ++i) {
    if (QWidget* button = box.layout()->itemAt(i)->widget()) stops->append(button);
  }
}

void collectStops(QWidget& widget, QList<QWidget*>* stops) {
  if (auto* tabs = qobject_cast<QTabWidget*>(&widget)) {
    *stops << tabs << tabs->tabBar();
    for (int i = 0; i < tabs->count(); ++i)
      collectStops(*tabs->widget(i), stops);
    return;
  }
  // What hands the focus on, as a box of buttons does, is a stop as well: left where it is, it would lead
  // back from anywhere.
  if (widget.focusPolicy() != Qt::NoFocus || widget.focusProxy() != nullptr) stops->append(&widget);
  if (isOneStop(widget)) return;
  if (auto* box = qobject_cast<QDialogButtonBox*>(&widget)) return collectButtons(*box, stops);
  for (auto* child : widget.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (!child->isWindow()) collectStops(*child, stops);
  }
}

}  // namespace

void orderTabStops(QWidget& window) {
  QList<QWidget*> stops;
  collectStops(window, &stops);
  for (qsizetype i = 1; i < stops.size(); ++i)
    QWidget::setTabOrder(stops[i - 1], stops[i]);
}

void enterAtChosen(QAbstractButton& radio) {
  QObject::connect(&radio, &QAbstractButton::toggled, &radio, [&radio](bool isChosen) {
    if (isChosen) makeEntry(radio);
  });
  if (radio.isChecked()) makeEntry(radio);
}

}  // namespace kesto
