// The user's account and places, as the operating system knows them.
#pragma once

#include <QtCore/QString>

#include "platform/export.h"
#include "platform/text_encoding.h"

namespace kesto {

/// The short name of the account that runs the process, from the password file; null when it has none.
KESTO_EXPORT QString accountShortName();
/// The full name of the account, from the password file; null when it has none.
KESTO_EXPORT QString accountFullName();
/// The user's folder for configuration: `$XDG_CONFIG_HOME`, else `.config` in `$HOME`, else in the account's
/// home folder; ends in "/". A variable that is not an absolute path is ignored.
KESTO_EXPORT QString userConfigurationDirectory();
/// `$XDG_RUNTIME_DIR`, without a "/" at its end; null when it is not an absolute path.
KESTO_EXPORT QString userRuntimeDirectory();
/// `$TMPDIR` when set, else a private folder of mode 0700 below `$XDG_RUNTIME_DIR`; ends in "/". Null when
/// neither is available.
KESTO_EXPORT QString userTemporaryDirectory();
/// The system encoding of the user's language, taken from LC_ALL, LC_CTYPE or LANG, the first that is set.
KESTO_EXPORT TextEncoding systemEncodingOfEnvironment();

}  // namespace kesto
