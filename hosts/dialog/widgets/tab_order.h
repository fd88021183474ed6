// How the Tab key moves through the dialog.
#pragma once

class QAbstractButton;
class QWidget;

namespace kesto {

/// Lets Tab enter the group of a radio button at the chosen button, whoever chose it. The whole group must
/// exist already.
void enterAtChosen(QAbstractButton& radio);

/// Lets Tab move through a window in reading order and back to its beginning: through the widgets in the
/// order of their creation. Call it again after adding widgets.
void orderTabStops(QWidget& window);

}  // namespace kesto
