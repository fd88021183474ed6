// The one place where the layout's action names meet the operations.
#pragma once

#include "panel/control_actions.h"
#include "panel/model/panel_view.h"

namespace kesto {

/// Connects every control of `view` to the action that its layout names, and every matrix to the rules that its
/// layout asks for. `actions` and `rules` must outlive the view's controls. A name without an operation is reported
/// in the log, and the control then does nothing.
void bindActions(const PanelView& view, ControlActions& actions, EnablingRules& rules);

}  // namespace kesto
