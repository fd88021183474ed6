// The limits of hosts/cups on what a print server can make its clients accept.
#pragma once

#include <QtCore/QtGlobal>

namespace kesto {

/// A reply in IPP, in bytes, unpacked.
constexpr qsizetype longestReply = qsizetype{16} << 20;
/// A PPD, in bytes, packed and unpacked.
constexpr qsizetype longestPpd = qsizetype{8} << 20;
/// Options and their choices in a PPD, in all, and its constraints.
constexpr int mostPpdChoices = 20'000;
constexpr int mostPpdConstraints = 50'000;
/// Nested collections in a reply. The deepest in use has three.
constexpr int deepestCollection = 16;
/// Values of a reply in all, and its groups. A list of ten thousand queues has fifty thousand.
constexpr int mostValues = 400'000;
/// Printers on the network that are listed.
constexpr int mostNetworkPrinters = 500;
/// Values of an option of a printer without a PPD.
constexpr int mostChoices = 1000;
/// How long a reply may take in all, as a multiple of the limit for a wait.
constexpr int waitsOfReply = 10;
/// How long connecting may take in all, including the handshake of an encrypted connection, as such a
/// multiple.
constexpr int waitsOfConnect = 2;
/// How often a request is sent again with other credentials or encrypted.
constexpr int mostAttempts = 16;

}  // namespace kesto
