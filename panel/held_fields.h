// The nine fields that a hold button can freeze and the panel remembers, in one table.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "panel/outlets.h"

namespace kesto {

/// The values in the preferences for one printer, as they are stored, some of them enciphered. A value is
/// null unless its bit was set when the values were loaded.
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

/// How a field stands in the job's print settings.
enum class JobForm : std::uint8_t {
  ReadOnly,     ///< The panel reads it and never writes it.
  DigitsFirst,  ///< Sealed, with the digest of the padded digits and the spool time.
  TimeFirst,    ///< The same, with the digest of the spool time and the padded digits.
  Number,       ///< Sealed, with the padded digits in the clear.
  Name,         ///< In the system encoding, in Windows Latin-1 and in UTF-8, without control characters.
  Folder,       ///< In the same three encodings, whole or not at all, while documents are filed.
};

/// How the preferences store a field's value.
enum class RememberedForm : std::uint8_t { SealedHex, SealedBase64, SealedAsciiHex, Clear };

/// The filter for what is typed into the field.
enum class FilterKind : std::uint8_t { None, Digits, Characters };

class EnablingRules;

/// Everything that differs between the nine fields.
struct HeldField {
  Held field;
  int bit;  ///< Of the hold-button mask.

  JobForm jobForm;       ///< In the job's print settings.
  const char* key;       ///< Of the value that is read back.
  const char* second;    ///< Key of its companion: digest, digits, Latin-1 form, second half; or null.
  const char* utf8;      ///< Key of the form in UTF-8; null for none.
  int writtenBytes;      ///< Most bytes that the writer uses, in the system encoding; 0 for no limit.
  int longestPlaintext;  ///< Longest plaintext that the reader accepts; 0 for no limit.

  const char* recordKey;                  ///< Of the preference record.
  RememberedForm form;                    ///< In the preference record.
  int cipherBytes;                        ///< Bytes to decipher of a sealed value in hex; 0 for other forms.
  QString RememberedValues::*remembered;  ///< Its remembered value.

  FilterKind filter;              ///< While typing.
  int filterLimit;                ///< Most UTF-16 units that can be typed; 0 without a filter.
  TextField* Outlets::*edit;      ///< The text field.
  Button* Outlets::*button;       ///< Its hold button.
  void (EnablingRules::*rule)();  ///< Whether the text field is available.
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
