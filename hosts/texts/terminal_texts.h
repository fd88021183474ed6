// The texts of a command line in the user's language.
#pragma once

namespace kesto {

/// Makes all texts those of the user's language, or English where the locale's encoding is not UTF-8. Loads
/// them when the first one is shown. Call this after the application object is made and before the parsing.
void installTerminalTexts();

}  // namespace kesto
