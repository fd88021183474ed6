// The panel's controls by their names; absent ones are null.
#pragma once

#include "panel/model/button.h"
#include "panel/model/pop_up.h"
#include "panel/model/radio_matrix.h"
#include "panel/model/simple_controls.h"
#include "panel/model/text_field.h"

namespace kesto {

class PanelView;

/// Pointers to the controls of a loaded layout, which its view owns. A layout may leave out any of them.
struct Outlets {
  TabView* tabView = nullptr;
  Button* retentionCheckBox = nullptr;
  Box* suspendBox = nullptr;
  RadioMatrix* suspendMatrix = nullptr;
  RadioCell* holdOnlyRadioButton = nullptr;
  RadioCell* holdAfterRadioButton = nullptr;
  RadioCell* samplePrintRadioButton = nullptr;
  TextField* suspendKeyStaticText = nullptr;
  TextField* suspendKeyEditText = nullptr;
  Button* suspendKeyButton = nullptr;
  Box* filingBox = nullptr;
  TextField* folderSelectionStaticText = nullptr;
  PopUp* folderSelectionPopup = nullptr;
  TextField* folderPasswordStaticText = nullptr;
  TextField* folderPasswordEditText = nullptr;
  Button* folderPasswordButton = nullptr;
  RadioMatrix* folderSelectionMatrix = nullptr;
  RadioCell* quickFileRadioButton = nullptr;
  RadioCell* mainFolderRadioButton = nullptr;
  RadioCell* customFolderRadioButton = nullptr;
  TextField* folderNameEditText = nullptr;
  Button* folderNameButton = nullptr;
  RadioMatrix* authenticationMatrix = nullptr;
  RadioCell* authenticationRadioButton = nullptr;
  RadioCell* userNumberRadioButton = nullptr;
  TextField* loginNameStaticText = nullptr;
  TextField* loginNameEditText = nullptr;
  Button* loginNameButton = nullptr;
  TextField* passwordStaticText = nullptr;
  TextField* passwordEditText = nullptr;
  Button* passwordButton = nullptr;
  RadioMatrix* userNumberMatrix = nullptr;
  TextField* userNumberEditText = nullptr;
  Button* userNumberButton = nullptr;
  TextField* userNumberStaticText = nullptr;
  TextField* accountNumberStaticText = nullptr;
  TextField* accountNumberEditText = nullptr;
  Button* accountNumberButton = nullptr;
  Box* jobIDBox = nullptr;
  TextField* userNameStaticText = nullptr;
  TextField* userNameEditText = nullptr;
  Button* userNameButton = nullptr;
  TextField* jobNameStaticText = nullptr;
  TextField* jobNameEditText = nullptr;
  Button* jobNameButton = nullptr;
  TextField* printersAddressStaticText = nullptr;
  TextField* printersAddressEditText = nullptr;
  ProgressIndicator* chasingArrow = nullptr;
  Button* getFolderNameButton = nullptr;
};

/// The outlets of a view: each control of the outlet's name and kind. A null view gives none.
Outlets outletsOfView(const PanelView* view);

/// The text of a field, empty when the field is absent.
inline QString textOfField(const TextField* field) {
  return field == nullptr ? QString() : field->stringValue();
}
/// Whether a button's state is not 0; an absent button is off.
inline bool isOn(const Button* button) {
  return button != nullptr && button->state() != 0;
}
/// Whether a button's state is exactly 1; an absent button is off.
inline bool isExactlyOn(const Button* button) {
  return button != nullptr && button->state() == 1;
}

}  // namespace kesto
