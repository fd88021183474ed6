// The program's texts in the user's language.
#pragma once

namespace kesto {

/// Installs the translations of the dialog and of its toolkit in the user's language, as far as there are
/// such. Needs the application object.
void installTranslations();

}  // namespace kesto
