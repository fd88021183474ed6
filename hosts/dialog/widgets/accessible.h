// What assistive technology needs beyond Qt's own support of widgets.
#pragma once

#include <QtGui/QAccessible>

namespace kesto {

/// Gives the widgets of a class an interface of their own, made from a pointer to one. The first call counts.
template <class Widget, class Interface>
void useInterface() {
  [[maybe_unused]] static const bool isInstalled = [] {
    QAccessible::installFactory([](const QString& /*className*/, QObject* object) -> QAccessibleInterface* {
      auto* widget = qobject_cast<Widget*>(object);
      return widget == nullptr ? nullptr : new Interface(widget);
    });
    return true;
  }();
}

/// Lets assistive technology choose an item of any combo box by selecting the item, which for Qt is only the
/// highlight of an open list. The first call counts.
void chooseSelectedItems();

}  // namespace kesto
