// The program's texts in the user's language.
#pragma once

namespace kesto {

/// Installs the translations of the dialog and of Qt in the user's language, if available. Needs the
/// application object.
void installTranslations();

}  // namespace kesto
