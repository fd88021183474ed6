// Reads a layout resource (a Qt Designer form) into the control model.
#pragma once

#include <QtCore/QByteArray>
#include <memory>

#include "panel/model/panel_view.h"
#include "platform/bundle.h"
#include "platform/outcome.h"

namespace kesto {

/// Creates the controls of the form `ui`: one for each named widget of a known class, under the widget's
/// object name.
///
/// QCheckBox is a check box, QToolButton a hold button, QPushButton a push button, QComboBox a pop-up,
/// QLineEdit a text field, QLabel a label, QGroupBox a box, QTabWidget a tab view, QProgressBar the progress
/// indicator; a QWidget with QRadioButtons directly in it is a matrix, and these are its rows in the order of
/// the form. The dynamic properties `tag` (fields: a number other than 0), `action` (the name of the action)
/// and `rules` (of a matrix: the enabling rules that run when its row changes, separated by blanks) are read
/// as well.
///
/// Texts are localised with the bundle's table, except those that the form marks `notr`, which the panel's
/// initialisation translates.
///
/// `compiled` is the same form in its compiled state, which is read faster; the text counts when that is
/// missing, damaged or of another text.
///
/// On failure `*view` is null and the outcome says line and fault: not well-formed, not a form, two controls
/// with one name, a field without a tag, a matrix without a selected row.
Outcome loadLayout(const QByteArray& ui, const Bundle& bundle, std::unique_ptr<PanelView>* view,
                   const QByteArray& compiled = {});

}  // namespace kesto
