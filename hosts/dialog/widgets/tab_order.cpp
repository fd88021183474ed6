#include "hosts/dialog/widgets/tab_order.h"

#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>

namespace kesto {
namespace {

// Qt itself does this only for a button that receives the focus.
void makeEntry(const QAbstractButton& chosen) {
  for (auto* radio : chosen.parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly))
    radio->setFocusPolicy(radio == &chosen ? Qt::StrongFocus : Qt::ClickFocus);
}

// These widgets manage the focus of their inner parts.
bool isOneStop(const QWidget& widget) {
  return qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
         qobject_cast<const QLineEdit*>(&widget) != nullptr;
}

// The desktop decides about their order. The box itself passes the focus on to the first, and as a stop of
// its own would draw along all that stands between it and the last.
void collectButtons(QDialogButtonBox& box, QList<QWidget*>* stops) {
  box.setFocusProxy(nullptr);
  for (int i = 0; i < box.layout()->count(); ++i) {
    if (QWidget* button = box.layout()->itemAt(i)->widget()) stops->append(button);
  }
}

void collectStops(QWidget& widget, QList<QWidget*>* stops) {
  if (auto* box = qobject_cast<QDialogButtonBox*>(&widget)) return collectButtons(*box, stops);
  // A widget that passes the focus on counts as a stop too; otherwise its old place in the order would lead
  // back from anywhere.
  if (widget.focusPolicy() != Qt::NoFocus || widget.focusProxy() != nullptr) stops->append(&widget);
  if (isOneStop(widget)) return;
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
