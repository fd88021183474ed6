// The one place where the layout's action names meet the operations.
#pragma once

#include "folders/folder_query.h"
#include "panel/control_actions.h"
#include "panel/model/panel_view.h"

namespace kesto {

/// The groups whose operations are actions or rules; they outlive the view that is bound to them.
struct ActionGroups {
  EnablingRules& rules;
  ControlActions& actions;
  FolderQuery& folderQuery;
};

/// Connects every control of `view` to the action that its layout names, and every matrix to the rules that
/// its layout asks for. A name without an operation is reported in the log, and the control then does
/// nothing.
void bindActions(const PanelView& view, const ActionGroups& groups);

}  // namespace kesto
