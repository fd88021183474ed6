// How kesto-lp gets a password that the print server or a printer asks for.
#pragma once

#include "hosts/cups/password_keeper.h"

namespace kesto {

/// Takes the password from the first line of `file` ("-" is standard input), or asks at the terminal when it
/// is null. A file is read once. A domain in front of the user's name, as in DOMAIN\user, is taken from
/// there.
std::shared_ptr<PasswordKeeper> makePasswordKeeper(const std::optional<QString>& file);

}  // namespace kesto
