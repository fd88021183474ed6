// The stored forms of codes, numbers and names, built from the value helpers and the cipher, for print
// settings and preferences alike.
#pragma once

#include <QtCore/QByteArray>

#include "platform/text_encoding.h"

namespace kesto {

/// The longest name that fits into a stored form, in bytes.
inline constexpr qsizetype longestNameBytes = 774;

/// All bytes as upper-case hexadecimal text.
QByteArray hexText(const QByteArray& bytes);
/// The bytes of hexadecimal text, up to the first zero byte.
QByteArray textOfHex(const QByteArray& hex);
/// The bytes, left-padded with "0" to five characters.
QByteArray paddedDigits(const QByteArray& digits);
/// The MD5 text of two texts joined.
QByteArray jobDigest(const QByteArray& first, const QByteArray& second);

/// The first `cipherBytes` bytes of the enciphered text as hexadecimal text; empty for an empty text.
QByteArray sealedHex(const QByteArray& plaintext, int cipherBytes);
/// The plaintext of a sealed hexadecimal value, up to its first zero byte; empty when the value has fewer
/// than `2 * cipherBytes` characters. A second block of "0" only is not cipher text: it remains when the
/// plaintext filled just the first block.
QByteArray plaintextOfSealedHex(const QByteArray& hex, int cipherBytes);

/// The enciphered text in Base64; empty for an empty text. At most 255 bytes.
QByteArray sealedBase64(const QByteArray& plaintext);
/// The plaintext of a sealed Base64 value, up to its first zero byte. At most 510 characters are read.
QByteArray plaintextOfSealedBase64(const QByteArray& base64);

}  // namespace kesto
