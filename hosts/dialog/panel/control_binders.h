// Keeps the widgets of a form in step with the controls of a panel.
#pragma once

class QWidget;

namespace kesto {

class Control;

/// Binds a widget to the control of its name, by the binder of the control's kind: the widget shows what the
/// control holds, and what the user does to the widget is done to the control. The two may be destroyed in
/// any order. A widget that does not suit the control's kind stays as it is; answers whether it does suit.
bool bindControl(Control& control, QWidget& widget);

}  // namespace kesto
