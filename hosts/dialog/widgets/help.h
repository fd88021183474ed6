// The dialog's help.
#pragma once

class QWidget;

namespace kesto {

/// Shows the help beside `parent`, which stays usable.
void showHelp(QWidget& parent);

}  // namespace kesto
