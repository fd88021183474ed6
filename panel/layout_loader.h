// Reads a layout resource (a Qt Designer form) into the control model.
#pragma once

#include <QtCore/QByteArray>
#include <memory>

#include "panel/model/panel_view.h"
#include "platform/bundle.h"
#include "platform/outcome.h"

namespace kesto {

/// Makes the controls of the form `ui`: a control per named widget of a known class, under the widget's
/// object name.
///
/// QCheckBox is a check box, QToolButton a hold button, QPushButton a push button, QComboBox a pop-up,
/// QLineEdit a text field, QLabel a label, QGroupBox a box, QTabWidget a tab view, QProgressBar the progress
/// indicator; a QWidget with QRadioButtons directly in it is a matrix, and these are its rows in the order of
/// the form. The dynamic properties `tag` (fields: a number other than 0), `action` (the name of the action)
/// and `rules` (of a matrix: the enabling rules that run when its row changes, separated by blanks) are read,
/// too.
///
/// Texts come localised by the bundle's table, but for those that the form marks `notr`: the panel's
/// initialisation translates these itself.
///
/// On failure `*view` is null and the outcome tells the line and the fault: not well-formed, no form, two
/// controls of one name, a field without a tag, a matrix without a chosen row.
Outcome loadLayout(const QByteArray& ui, const Bundle& bundle, std::unique_ptr<PanelView>* view);

}  // namespace kesto
