// The nine fields that a hold button can freeze and the panel remembers, in one table.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "panel/outlets.h"

namespace kesto {

/// The values that the preferences hold for one printer, as they were stored: enciphered ones still
/// enciphered. Each is null unless its bit was set when they were loaded.
struct RememberedValues {
  QString prefSuspendKeyStringRef;
  QString prefLoginNameStringRef;
  QString prefPasswordStringRef;
  QString prefUserNameStringRef;
  QString prefJobNameStringRef;
  QString prefFolderPassStringRef;
  QString prefUserNumberStringRef;
  QString prefAccountNumberStringRef;
  QString prefFolderNameStringRef;
  std::optional<bool> prefAuthenticationBooleanRef;  ///< True for authentication by login name.
};

/// The fields in the order of their bits.
enum class Held : std::uint8_t {
  SuspendKey,
  LoginName,
  Password,
  UserName,
  JobName,
  FolderPassword,
  UserNumber,
  AccountNumber,
  FolderName,
};

/// How the preferences store a field's value.
enum class RememberedForm : std::uint8_t { SealedHex, SealedBase64, SealedAsciiHex, Clear };

/// The filter that watches over the field's typing.
enum class FilterKind : std::uint8_t { None, Digits, Characters };

/// One field: everything that differs between the nine.
struct HeldField {
  Held field;
  int bit;                    ///< Of the hold-button mask.
  const char* key;            ///< Last component of the print-settings key read back; null for none.
  const char* recordKey;      ///< Of the preference record.
  RememberedForm form;        ///< In the preference record.
  int cipherBytes;            ///< Bytes deciphered of a sealed value in hex; 0 for other forms.
  int longestPlaintext;       ///< Longest plaintext that the reader accepts; 0 for no limit.
  int writtenBytes;           ///< Bytes that the writer takes, in the system encoding; 0 for none.
  FilterKind filter;          ///< While typing.
  int filterLimit;            ///< UTF-16 units that typing can reach; 0 without a filter.
  TextField* Outlets::*edit;  ///< The text field.
  Button* Outlets::*button;   ///< Its hold button.
  QString RememberedValues::*remembered;  ///< Its remembered value.
};

/// All nine, in the order of their bits.
extern const std::array<HeldField, 9> heldFields;

/// The row of one field.
inline const HeldField& rowOf(Held field) {
  return heldFields.at(static_cast<std::size_t>(field));
}

/// The hold-button mask: the sum of the bits of the hold buttons that are on.
int holdButtonMask(const Outlets& outlets);

}  // namespace kesto
