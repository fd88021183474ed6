// How the Tab key goes through the dialog.
#pragma once

class QAbstractButton;
class QWidget;

namespace kesto {

/// Lets Tab enter the group of a radio button at the button that is chosen, whoever chooses it. The whole
/// group is to be there already.
void enterAtChosen(QAbstractButton& radio);

/// Lets Tab go through a window as it is read, and round to its beginning: through its widgets in the order
/// in which they were made, the tabs of a tab widget before their pages. Asked anew after widgets have come.
void orderTabStops(QWidget& window);

}  // namespace kesto
