// Keeps a line edit in step with a text field of a panel.
#pragma once

class QLineEdit;

namespace kesto {

class TextField;

/// Every edit of the user, however it is made, goes through the field's formatter before it counts; the line
/// then shows what the field holds, with its selection. The field is the panel's first responder while the
/// line has the keyboard focus. A line with the dynamic property "revealable" gets a button that shows what
/// it hides.
void bindField(TextField& field, QLineEdit& line);

}  // namespace kesto
