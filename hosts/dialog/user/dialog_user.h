// A simulated user of a dialog: real key and mouse events on its widgets.
#pragma once

#include <QtCore/QString>
#include <functional>

#include "platform/outcome.h"

class QWidget;

namespace kesto {

/// Operates the widgets of a window by their object names. Fails where a person could not act either, because
/// a widget is missing, hidden or dimmed.
class DialogUser {
 public:
  explicit DialogUser(QWidget& window) : m_window(window) {}

  /// Clicks a button, a check box or a radio button, after unfolding its section.
  Outcome click(const QString& name);
  /// Clicks into a field and types into it.
  Outcome type(const QString& name, const QString& text);
  /// Types to replace the contents of a field.
  Outcome replace(const QString& name, const QString& text);
  /// Chooses an item of a list with keys.
  Outcome choose(const QString& name, int index);
  /// Unfolds the section of a widget and scrolls to it.
  Outcome turnTo(const QString& name, QWidget** widget);
  /// Handles events until a condition holds, for at most this many milliseconds.
  static Outcome waitUntil(const std::function<bool()>& isSo, const QString& what, int milliseconds = 30000);

 private:
  QWidget* unfoldTo(const QString& name);

  QWidget& m_window;
};

}  // namespace kesto
