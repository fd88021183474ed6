#include "panel/held_fields.h"

#include "panel/enabling_rules.h"
#include "platform/job_keys.h"

namespace kesto {

using enum RememberedForm;
using enum FilterKind;
using J = JobForm;
using R = RememberedValues;
using O = Outlets;
using E = EnablingRules;
namespace key = job_keys;

// clang-format off
const std::array<HeldField, 9> heldFields{{
    // field, bit
    //   form in the job, key,         second key,          key in UTF-8,  bytes written, longest plaintext
    //   record key,         form,     bytes of cipher, remembered value
    //   filter, limit,  text field,   hold button,         rule
    {Held::SuspendKey, 1,
       J::DigitsFirst, key::jobSuspend2Key,  key::jobSuspendKey,  nullptr,          8,  8,
       "pass code",        SealedHex,      16, &R::prefSuspendKeyStringRef,
       Digits,     8,   &O::suspendKeyEditText,     &O::suspendKeyButton,     &E::suspendKeyEditTextEnabled},
    {Held::LoginName, 2,
       J::ReadOnly,    key::loginName11,     key::loginName12,    nullptr,          0,  0,
       "user login name",  SealedBase64,   0,  &R::prefLoginNameStringRef,
       None,       0,   &O::loginNameEditText,      &O::loginNameButton,      &E::loginNameEditTextEnabled},
    {Held::Password, 4,
       J::ReadOnly,    key::password2,       nullptr,             nullptr,          0,  0,
       "user password",    SealedHex,      32, &R::prefPasswordStringRef,
       None,       0,   &O::passwordEditText,       &O::passwordButton,       &E::passwordEditTextEnabled},
    {Held::UserName, 8,
       J::Name,        key::userName,        key::userName2,      key::userName3,   32, 0,
       "user name",        Clear,          0,  &R::prefUserNameStringRef,
       Characters, 32,  &O::userNameEditText,       &O::userNameButton,       &E::userNameEditTextEnabled},
    {Held::JobName, 16,
       J::Name,        key::jobName,         key::jobName2,       key::jobName3,    80, 0,
       "job name",         Clear,          0,  &R::prefJobNameStringRef,
       Characters, 80,  &O::jobNameEditText,        &O::jobNameButton,        &E::jobNameEditTextEnabled},
    {Held::FolderPassword, 32,
       J::TimeFirst,   key::folderPassword2, key::folderPassword, nullptr,          8,  8,
       "folder pass code", SealedAsciiHex, 16, &R::prefFolderPassStringRef,
       Digits,     8,   &O::folderPasswordEditText, &O::folderPasswordButton, &E::folderPasswordEditTextEnabled},
    {Held::UserNumber, 64,
       J::Number,      key::userNumber2,     key::userNumber,     nullptr,          8,  0,
       "user number",      SealedHex,      16, &R::prefUserNumberStringRef,
       Digits,     5,   &O::userNumberEditText,     &O::userNumberButton,     &E::userNumberEditTextEnabled},
    {Held::AccountNumber, 128,
       J::Number,      key::accountNumber2,  key::accountNumber,  nullptr,          5,  5,
       "account number",   SealedHex,      16, &R::prefAccountNumberStringRef,
       Digits,     5,   &O::accountNumberEditText,  &O::accountNumberButton,  &E::accountNumberEditTextEnabled},
    {Held::FolderName, 256,
       J::Folder,      key::folderPath,      key::folderPath2,    key::folderPath3, 0,  0,
       "folder name",      Clear,          0,  &R::prefFolderNameStringRef,
       Characters, 255, &O::folderNameEditText,     &O::folderNameButton,     &E::folderNameEditTextEnabled},
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
