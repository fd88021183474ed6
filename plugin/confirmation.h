// What the panel checks before the job goes out, and its summary.
#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>

#include "panel/state.h"

namespace kesto {

/// Whether the entry that the current choice requires is present: the login name, even while it is held, or
/// the user number. A control that the layout leaves out is not required.
bool isAuthenticationEntered(const PanelState& state);

/// Shows the alert that asks for the authentication entries.
void alertAuthenticationMissing(PanelState& state);

/// Label and value of retention, folder, hold choice, user name and job name; empty before the controls are
/// initialised. A label's text loses the colons at its ends; a title stays as it is. An entry without label
/// or value is left out.
QMap<QString, QString> summaryOf(const PanelState& state);

}  // namespace kesto
