// A user of a dialog: real key and mouse events on its widgets.
#pragma once

#include <QtCore/QString>
#include <functional>

#include "platform/outcome.h"

class QWidget;

namespace kesto {

/// Operates the widgets of a window by their object names. What a person could not do, because a widget is
/// not there, not seen or dimmed, fails.
class DialogUser {
 public:
  explicit DialogUser(QWidget& window) : m_window(window) {}

  /// Clicks a button, a check box or a radio button, after turning to the pages that it lies on.
  Outcome click(const QString& name);
  /// Clicks into a field and types into it.
  Outcome type(const QString& name, const QString& text);
  /// Types in the place of what a field holds.
  Outcome replace(const QString& name, const QString& text);
  /// Chooses an item of a list by keys.
  Outcome choose(const QString& name, int index);
  /// Turns to the pages that a widget lies on, by clicks on their tabs.
  Outcome turnTo(const QString& name, QWidget** widget);
  /// Waits, events being handled, until something is so; at most this many milliseconds.
  static Outcome waitUntil(const std::function<bool()>& isSo, const QString& what, int milliseconds = 30000);

 private:
  QWidget& m_window;
};

}  // namespace kesto
