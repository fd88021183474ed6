// The print-settings keys of Job Handling besides those of the held fields (panel/held_fields.cpp), which
// share `folderPath`. docs/formats/print-settings.md tells every key and form.
#pragma once

#include <QtCore/QString>

#include "platform/print_settings.h"

namespace kesto::job_keys {

inline constexpr char spoolTime[] = "spoolTime";
inline constexpr char filing[] = "filing";
inline constexpr char folderPath[] = "folderPath";
inline constexpr char folderPath2[] = "folderPath2";
inline constexpr char folderPath3[] = "folderPath3";
inline constexpr char jobSuspend[] = "jobSuspend";
inline constexpr char jobSuspendKey[] = "jobSuspendKey";
inline constexpr char authentication[] = "Authentication";
inline constexpr char loginName11[] = "loginName11";
inline constexpr char loginName12[] = "loginName12";
inline constexpr char userNumber[] = "userNumber";
inline constexpr char accountNumber[] = "accountNumber";
inline constexpr char userName2[] = "userName2";
inline constexpr char userName3[] = "userName3";
inline constexpr char jobName2[] = "jobName2";
inline constexpr char jobName3[] = "jobName3";
inline constexpr char folderPassword[] = "folderPassword";
inline constexpr char holdButton[] = "holdButton";

/// The whole key of a last component.
inline QString whole(const char* lastComponent) {
  return QLatin1String(printSettingsPrefix) + QLatin1String(lastComponent);
}

}  // namespace kesto::job_keys
