#include "panel/outlets.h"

#include "panel/model/panel_view.h"

namespace kesto {
namespace {

template <class T>
void connectOutlet(const PanelView& view, const char* name, T*& outlet) {
  outlet = view.control<T>(QString::fromLatin1(name));
}

}  // namespace

Outlets outletsOfView(const PanelView* view) {
  Outlets outlets;
  if (view == nullptr) return outlets;
#define CONNECT(name) connectOutlet(*view, #name, outlets.name)
  CONNECT(tabView);
  CONNECT(retentionCheckBox);
  CONNECT(suspendBox);
  CONNECT(suspendMatrix);
  CONNECT(holdOnlyRadioButton);
  CONNECT(holdAfterRadioButton);
  CONNECT(samplePrintRadioButton);
  CONNECT(suspendKeyStaticText);
  CONNECT(suspendKeyEditText);
  CONNECT(suspendKeyButton);
  CONNECT(filingBox);
  CONNECT(folderSelectionStaticText);
  CONNECT(folderSelectionPopup);
  CONNECT(folderPasswordStaticText);
  CONNECT(folderPasswordEditText);
  CONNECT(folderPasswordButton);
  CONNECT(folderSelectionMatrix);
  CONNECT(quickFileRadioButton);
  CONNECT(mainFolderRadioButton);
  CONNECT(customFolderRadioButton);
  CONNECT(folderNameEditText);
  CONNECT(folderNameButton);
  CONNECT(authenticationMatrix);
  CONNECT(authenticationRadioButton);
  CONNECT(userNumberRadioButton);
  CONNECT(loginNameStaticText);
  CONNECT(loginNameEditText);
  CONNECT(loginNameButton);
  CONNECT(passwordStaticText);
  CONNECT(passwordEditText);
  CONNECT(passwordButton);
  CONNECT(userNumberMatrix);
  CONNECT(userNumberEditText);
  CONNECT(userNumberButton);
  CONNECT(userNumberStaticText);
  CONNECT(accountNumberStaticText);
  CONNECT(accountNumberEditText);
  CONNECT(accountNumberButton);
  CONNECT(jobIDBox);
  CONNECT(userNameStaticText);
  CONNECT(userNameEditText);
  CONNECT(userNameButton);
  CONNECT(jobNameStaticText);
  CONNECT(jobNameEditText);
  CONNECT(jobNameButton);
  CONNECT(printersAddressStaticText);
  CONNECT(printersAddressEditText);
  CONNECT(chasingArrow);
  CONNECT(getFolderNameButton);
#undef CONNECT
  return outlets;
}

}  // namespace kesto
