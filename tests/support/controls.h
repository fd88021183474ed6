// Controls by name, and their values in a short notation: "retentionCheckBox=1 suspendMatrix=2 userName=jane
// focus=jobName". The value is the state of a button, the row of a matrix, the index of a pop-up, the text of
// a field, the title of a box or radio cell; "focus" is the first responder, empty for none. The name of a
// text field may omit its "EditText"; the choices have the short names below.
#pragma once

#include "panel/model/button.h"
#include "panel/model/panel_view.h"
#include "panel/model/pop_up.h"
#include "panel/model/radio_matrix.h"
#include "panel/model/simple_controls.h"
#include "panel/model/text_field.h"
#include "tests/support/printing.h"

namespace kesto::test {

inline QString wholeName(const QString& name) {
  static const QMap<QString, QString> choices{{u"retention"_s, u"retentionCheckBox"_s},
                                              {u"hold"_s, u"suspendMatrix"_s},
                                              {u"item"_s, u"folderSelectionPopup"_s},
                                              {u"folder"_s, u"folderSelectionMatrix"_s},
                                              {u"who"_s, u"authenticationMatrix"_s}};
  return choices.value(name, name);
}

/// The control of that name and kind; throws when it is missing.
template <class T>
T& controlNamed(const PanelView& view, const QString& name) {
  for (const QString& whole : {wholeName(name), name + u"EditText"_s}) {
    if (T* control = view.control<T>(whole)) return *control;
  }
  throw std::runtime_error("no control " + name.toStdString());
}
inline TextField& field(const PanelView& view, const Text& name) {
  return controlNamed<TextField>(view, name);
}
inline Button& button(const PanelView& view, const Text& name) {
  return controlNamed<Button>(view, name);
}
inline RadioMatrix& matrix(const PanelView& view, const Text& name) {
  return controlNamed<RadioMatrix>(view, name);
}
inline PopUp& popUp(const PanelView& view, const Text& name) {
  return controlNamed<PopUp>(view, name);
}

/// The value of a control in this notation.
inline QString valueOf(const PanelView& view, const Text& name) {
  const auto& control = controlNamed<Control>(view, name);
  if (control.kind() == u"radio") return control.property("title").toString();
  for (const char* property : {"selectedRow", "selectedIndex", "stringValue", "state"}) {
    const QVariant value = control.property(property);
    if (value.isValid()) return value.toString();
  }
  return control.property("title").toString();
}

/// Expects the named controls to have these values; "_" means a blank.
inline void expectControls(const PanelView& view, const Text& values) {
  forEachValue(values, [&](const QString& name, const QString& value) {
    if (name == u"focus") {
      EXPECT_EQ(view.firstResponder(), value.isEmpty() ? nullptr : &field(view, value))
          << "focus is not " << value;
    } else {
      EXPECT_EQ(valueOf(view, name).replace(u' ', u'_'), value) << name;
    }
  });
}

/// Sets controls from code, without filters and actions.
inline void setControls(const PanelView& view, const Text& values) {
  forEachValue(values, [&](const QString& given, const QString& value) {
    const QString name = wholeName(given);
    if (auto* button = view.control<Button>(name)) return button->setState(value.toInt());
    if (auto* matrix = view.control<RadioMatrix>(name)) return matrix->selectRow(value.toInt());
    if (auto* popUp = view.control<PopUp>(name)) return popUp->selectItemAtIndex(value.toInt());
    field(view, name).setStringValue(value);
  });
}

/// One operation of the user: "suspendKeyButton" clicks, "suspendMatrix=2" chooses, "userName=x" types.
inline Outcome operate(const PanelView& view, const Text& operation) {
  const QString name = wholeName(operation.section(u'=', 0, 0));
  const QString value = operation.section(u'=', 1);
  if (auto* button = view.control<Button>(name)) return button->click();
  if (auto* matrix = view.control<RadioMatrix>(name)) return matrix->choose(value.toInt());
  if (auto* popUp = view.control<PopUp>(name)) return popUp->choose(value.toInt());
  return field(view, name).type(value);
}

/// Whether the user may operate the control: it is enabled; a label is black; a field is editable, selectable
/// and black, which must agree.
inline bool isAvailable(const Control& control) {
  const auto* text = qobject_cast<const TextField*>(&control);
  if (text == nullptr) return control.property("enabled").toBool();
  const bool isBlack = text->textColor() == TextField::Color::Black;
  const bool agrees = text->tag() == 0 || (text->isEditable() == isBlack && text->isSelectable() == isBlack);
  EXPECT_TRUE(agrees) << control.objectName();
  return isBlack;
}

}  // namespace kesto::test
