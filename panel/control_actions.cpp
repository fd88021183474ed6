#include "panel/control_actions.h"

#include "panel/model/panel_view.h"
#include "platform/secret.h"

namespace kesto {
namespace {

constexpr char16_t bullet = 0x2022;

using E = EnablingRules;

}  // namespace

void ControlActions::runRules(std::initializer_list<Rules> rules) {
  for (const Rules rule : rules)
    (m_rules.*rule)();
}

void ControlActions::clearUnlessHeld(Held field) {
  const HeldField& row = rowOf(field);
  TextField* edit = m_state.outlets.*row.edit;
  if (edit != nullptr && !isOn(m_state.outlets.*row.button)) edit->setStringValue(QStringLiteral(""));
}

void ControlActions::quickFileChosen() {
  RadioMatrix* matrix = m_state.outlets.suspendMatrix;
  if (matrix != nullptr) matrix->selectRow(HoldAfterPrint);
  clearUnlessHeld(Held::SuspendKey);
}

void ControlActions::leaveQuickFile() {
  PopUp* popUp = m_state.outlets.folderSelectionPopup;
  if (popUp != nullptr && popUp->selectedIndex() == QuickFile) {
    popUp->selectItemAtIndex(MainFolder);
    folderSelectionPopUpButtonProc(popUp);
  }
  RadioMatrix* matrix = m_state.outlets.folderSelectionMatrix;
  if (matrix != nullptr && matrix->selectedRow() == QuickFile) {
    matrix->selectRow(MainFolder);
    folderSelectionMatrixProc(matrix);
  }
}

void ControlActions::retentionCBoxProc(Control* /*sender*/) {
  const Outlets& o = m_state.outlets;
  if (o.retentionCheckBox == nullptr) return;
  if (o.retentionCheckBox->state() != 1) {
    if (o.suspendMatrix != nullptr) o.suspendMatrix->selectRow(HoldOnly);
    clearUnlessHeld(Held::SuspendKey);
    leaveQuickFile();
    clearUnlessHeld(Held::FolderPassword);
    clearUnlessHeld(Held::FolderName);
  }
  runRules({&E::suspendMatrixEnabled, &E::suspendKeyStaticTextEnabled, &E::suspendKeyEditTextEnabled,
            &E::suspendKeyButtonEnabled, &E::folderSelectionStaticTextEnabled,
            &E::folderSelectionPopupEnabled, &E::folderPasswordStaticTextEnabled,
            &E::folderPasswordEditTextEnabled, &E::folderPasswordButtonEnabled,
            &E::folderSelectionMatrixEnabled, &E::folderNameEditTextEnabled, &E::folderNameButtonEnabled});
}

void ControlActions::suspendKeyMatrixProc(Control* /*sender*/) {
  const RadioMatrix* matrix = m_state.outlets.suspendMatrix;
  if (matrix == nullptr || matrix->selectedRow() == HoldAfterPrint) return;
  leaveQuickFile();
}

void ControlActions::folderSelectionPopUpButtonProc(Control* /*sender*/) {
  const PopUp* popUp = m_state.outlets.folderSelectionPopup;
  if (popUp == nullptr) return;
  if (popUp->selectedIndex() == QuickFile) quickFileChosen();
  runRules({&E::suspendKeyStaticTextEnabled, &E::suspendKeyEditTextEnabled, &E::suspendKeyButtonEnabled,
            &E::folderPasswordStaticTextEnabled, &E::folderPasswordEditTextEnabled,
            &E::folderPasswordButtonEnabled, &E::folderNameButtonEnabled});
}

void ControlActions::folderSelectionMatrixProc(Control* /*sender*/) {
  const RadioMatrix* matrix = m_state.outlets.folderSelectionMatrix;
  const int row = matrix == nullptr ? -1 : matrix->selectedRow();
  if (row == QuickFile) quickFileChosen();
  if (row == QuickFile || row == MainFolder) {
    clearUnlessHeld(Held::FolderPassword);
    clearUnlessHeld(Held::FolderName);
  }
  runRules({&E::suspendKeyStaticTextEnabled, &E::suspendKeyEditTextEnabled, &E::suspendKeyButtonEnabled,
            &E::folderPasswordStaticTextEnabled, &E::folderPasswordEditTextEnabled,
            &E::folderPasswordButtonEnabled, &E::folderNameEditTextEnabled, &E::folderNameButtonEnabled});
}

void ControlActions::authenticationMatrixProc(Control* /*sender*/) {
  runRules({&E::userNumberEditTextEnabled, &E::userNumberButtonEnabled});
  TextField* userNumber = m_state.outlets.userNumberEditText;
  if (userNumber != nullptr) userNumber->view()->makeFirstResponder(userNumber);
}

void ControlActions::loginNameButtonProc(Control* /*sender*/) {
  const Button* button = m_state.outlets.loginNameButton;
  if (button == nullptr) return;
  TextField* field = m_state.outlets.loginNameEditText;
  if (button->state() != 1) {
    if (field != nullptr) field->setStringValue(QStringLiteral(""));
    wipe(m_state.loginNameStringRef);
    m_state.loginNameLockFlag = false;
  } else if (!m_state.loginNameLockFlag) {
    const QString name = textOfField(field);
    // An empty name is held like any other.
    m_state.loginNameStringRef = name.isNull() ? QStringLiteral("") : name;
    if (field != nullptr && !name.isEmpty()) field->setStringValue(QString(name.size(), QChar(bullet)));
    m_state.loginNameLockFlag = true;
  }
  m_rules.loginNameEditTextEnabled();
}

void ControlActions::holdButtonProc(Held field) {
  const HeldField& row = rowOf(field);
  Button* button = m_state.outlets.*row.button;
  if (field == Held::LoginName) return loginNameButtonProc(button);
  if (button != nullptr) (m_rules.*row.rule)();
}

}  // namespace kesto
