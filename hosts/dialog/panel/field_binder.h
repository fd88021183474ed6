// Keeps a line edit in step with a text field of a panel.
#pragma once

class QLineEdit;

namespace kesto {

class TextField;

/// Every edit of the user, however it is made, passes through the field's formatter; the line then shows the
/// field's text and selection. The field is the panel's first responder while the line has the keyboard
/// focus. A line with the dynamic property "revealable" gets a button that shows its hidden text.
void bindField(TextField& field, QLineEdit& line);

}  // namespace kesto
