// The last components of Job Handling's print-settings keys (docs/formats/print-settings.md explains every
// key and form). The table of held fields says which keys a field has.
#pragma once

#include <array>

#include "platform/print_settings.h"

namespace kesto::job_keys {

inline constexpr char spoolTime[] = "spoolTime";
inline constexpr char filing[] = "filing";
inline constexpr char folderPath[] = "folderPath";
inline constexpr char folderPath2[] = "folderPath2";
inline constexpr char folderPath3[] = "folderPath3";
inline constexpr char jobSuspend[] = "jobSuspend";
inline constexpr char jobSuspendKey[] = "jobSuspendKey";
inline constexpr char jobSuspend2Key[] = "jobSuspend2Key";
inline constexpr char authentication[] = "Authentication";
inline constexpr char loginName11[] = "loginName11";
inline constexpr char loginName12[] = "loginName12";
inline constexpr char password2[] = "password2";
inline constexpr char userNumber[] = "userNumber";
inline constexpr char userNumber2[] = "userNumber2";
inline constexpr char accountNumber[] = "accountNumber";
inline constexpr char accountNumber2[] = "accountNumber2";
inline constexpr char userName[] = "userName";
inline constexpr char userName2[] = "userName2";
inline constexpr char userName3[] = "userName3";
inline constexpr char jobName[] = "jobName";
inline constexpr char jobName2[] = "jobName2";
inline constexpr char jobName3[] = "jobName3";
inline constexpr char folderPassword[] = "folderPassword";
inline constexpr char folderPassword2[] = "folderPassword2";
inline constexpr char holdButton[] = "holdButton";

/// The value of `jobSuspend` for each row of the hold choice; without retention it is "0".
inline constexpr std::array holdDigits{'2', '1', '3'};

/// The value of `filing` for a row of the folder choice; "0" for -1, no filing.
constexpr char filingDigit(int row) {
  return static_cast<char>('1' + row);
}

/// The whole key of a last component.
inline QString whole(const char* lastComponent) {
  return QLatin1String(printSettingsPrefix) + QLatin1String(lastComponent);
}

}  // namespace kesto::job_keys
