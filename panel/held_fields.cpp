#include "panel/held_fields.h"

namespace kesto {

using enum RememberedForm;
using enum FilterKind;
using R = RememberedValues;
using O = Outlets;

// clang-format off
const std::array<HeldField, 9> heldFields{{
    {Held::SuspendKey,     1,   "jobSuspend2Key",  "pass code",        SealedHex,      16, 8, 8,  Digits,     8,
     &O::suspendKeyEditText,     &O::suspendKeyButton,     &R::prefSuspendKeyStringRef},
    {Held::LoginName,      2,   nullptr,           "user login name",  SealedBase64,   0,  0, 0,  None,       0,
     &O::loginNameEditText,      &O::loginNameButton,      &R::prefLoginNameStringRef},
    {Held::Password,       4,   "password2",       "user password",    SealedHex,      32, 0, 0,  None,       0,
     &O::passwordEditText,       &O::passwordButton,       &R::prefPasswordStringRef},
    {Held::UserName,       8,   "userName",        "user name",        Clear,          0,  0, 32, Characters, 32,
     &O::userNameEditText,       &O::userNameButton,       &R::prefUserNameStringRef},
    {Held::JobName,        16,  "jobName",         "job name",         Clear,          0,  0, 80, Characters, 80,
     &O::jobNameEditText,        &O::jobNameButton,        &R::prefJobNameStringRef},
    {Held::FolderPassword, 32,  "folderPassword2", "folder pass code", SealedAsciiHex, 16, 8, 8,  Digits,     8,
     &O::folderPasswordEditText, &O::folderPasswordButton, &R::prefFolderPassStringRef},
    {Held::UserNumber,     64,  "userNumber2",     "user number",      SealedHex,      16, 0, 8,  Digits,     5,
     &O::userNumberEditText,     &O::userNumberButton,     &R::prefUserNumberStringRef},
    {Held::AccountNumber,  128, "accountNumber2",  "account number",   SealedHex,      16, 5, 5,  Digits,     5,
     &O::accountNumberEditText,  &O::accountNumberButton,  &R::prefAccountNumberStringRef},
    {Held::FolderName,     256, "folderPath",      "folder name",      Clear,          0,  0, 0,  Characters, 255,
     &O::folderNameEditText,     &O::folderNameButton,     &R::prefFolderNameStringRef},
}};
// clang-format on

int holdButtonMask(const Outlets& outlets) {
  int mask = 0;
  for (const HeldField& row : heldFields) {
    if (isOn(outlets.*row.button)) mask |= row.bit;
  }
  return mask;
}

}  // namespace kesto
