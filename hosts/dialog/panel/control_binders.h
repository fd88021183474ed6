// Keeps the widgets of a form in step with the controls of a panel.
#pragma once

class QWidget;

namespace kesto {

class Control;

/// Binds a widget to the control of its name, with the binder for the control's kind: the widget shows the
/// control's state, and what the user does to the widget is done to the control. The two may be destroyed in
/// any order. A widget that does not match the control's kind stays as it is; returns whether it matches.
bool bindControl(Control& control, QWidget& widget);

}  // namespace kesto
