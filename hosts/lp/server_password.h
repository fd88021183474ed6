// How kesto-lp gets a password that the print server or a printer asks for.
#pragma once

#include "hosts/cups/password_keeper.h"

namespace kesto {

/// Takes the password from the first line of `file` ("-" is standard input), or asks at the terminal when it
/// is null. A file is read once. When the printer asks for a domain and the user's name contains one, as in
/// DOMAIN\user, the name is split.
std::shared_ptr<PasswordKeeper> makePasswordKeeper(const std::optional<QString>& file);

}  // namespace kesto
