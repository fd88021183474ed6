// The one place where the layout's action names meet the operations.
#pragma once

#include "folders/folder_query.h"
#include "panel/control_actions.h"
#include "panel/model/panel_view.h"

namespace kesto {

/// The groups whose operations are actions or rules. They outlive the view that is bound to them.
struct ActionGroups {
  EnablingRules& rules;
  ControlActions& actions;
  FolderQuery& folderQuery;
};

/// Connects every control of `view` to the action that the layout names for it, and every matrix to its
/// rules. A name without an operation is reported in the log, and the control does nothing.
void bindActions(const PanelView& view, const ActionGroups& groups);

}  // namespace kesto
