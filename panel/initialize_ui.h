// The one-time initialisation of the panel's controls.
#pragma once

namespace kesto {

struct PanelState;

/// Translates the visible texts, installs the input filters, gives the hold buttons their padlocks (except
/// those of login name and password), shows the printer's address and hides the progress indicator. Sets
/// `hasInited`, and does nothing when it is already set. Absent controls are skipped.
void initializeUI(PanelState& state);

/// Called as the last step of restore and of showing the panel; this model has nothing to update.
void updateUI(PanelState& state);

}  // namespace kesto
