// What assistive technology needs beyond Qt's own support of widgets.
#pragma once

#include <QtGui/QAccessible>

class QComboBox;
class QWidget;

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

/// Makes a widget the group of its children, with a name that is read when the focus comes in. Takes effect
/// if assistive technology has not looked at the widget yet; later calls change the name.
void nameGroup(QWidget& widget, const QString& name);

/// Names a list. Qt takes what is chosen for a list's name, and looks for its label only beside it, so the
/// list gets one there that nobody sees.
void nameList(QComboBox& list, const QString& name);

/// Has a text read out that appears in `source`, a widget without the focus. Before Qt 6.8 the focused widget
/// has it as its description until the focus moves on; an empty text ends that sooner.
void announce(QWidget& source, const QString& text);

/// Lets assistive technology choose an item of any combo box by selecting the item, which for Qt is only the
/// highlight of an open list. The first call counts.
void chooseSelectedItems();

}  // namespace kesto
