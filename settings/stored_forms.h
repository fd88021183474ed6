// The stored forms of codes, numbers and names, built from the value helpers and the cipher. Both the print
// settings and the preferences use them.
#pragma once

#include <QtCore/QByteArray>

#include "platform/text_encoding.h"

namespace kesto {

/// Most bytes of a name that fit a stored form.
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
/// The plaintext of a sealed hexadecimal value, up to its first zero byte; empty when the value has less than
/// `2 * cipherBytes` characters. A second block that is all "0" is no cipher text: a plaintext that filled
/// the first block left it.
QByteArray plaintextOfSealedHex(const QByteArray& hex, int cipherBytes);

/// The enciphered text in Base64; empty for an empty text. At most 255 bytes.
QByteArray sealedBase64(const QByteArray& plaintext);
/// The plaintext of a sealed Base64 value, up to its first zero byte. At most 510 characters are read.
QByteArray plaintextOfSealedBase64(const QByteArray& base64);

}  // namespace kesto
