// The one-time preparation of the panel's controls.
#pragma once

namespace kesto {

struct PanelState;

/// Translates the visible texts, installs the input filters, gives the hold buttons their padlocks (login
/// name and password apart), shows the printer's address and hides the progress indicator. Does nothing once
/// `hasInited` is set, which it sets at its end. Absent controls are skipped.
void initializeUI(PanelState& state);

/// Called as the last step of restore and of showing the panel; this model has nothing to update.
void updateUI(PanelState& state);

}  // namespace kesto
