// Conversions between field contents and stored forms: hex text, the spool time, cleaned names, ASCII values
// under one key or over numbered keys. Nothing here reports an error or writes beyond the caller's buffer.
#pragma once

#include <QtCore/QDateTime>
#include <cstdint>
#include <span>

#include "platform/print_settings.h"
#include "platform/text_encoding.h"

namespace kesto {

/// The most characters in one piece of a multi-key value.
inline constexpr std::size_t pieceLength = 254;
/// Longest base key of a multi-key value.
inline constexpr std::size_t longestBaseKey = 98;

/// Writes each source byte as two upper-case hexadecimal characters, high nibble first, and a NUL. Bytes that
/// do not fit are left out.
void myitoa(std::span<const std::uint8_t> source, std::span<char> destination);

/// Turns pairs of the characters "0".."9" and "A".."F" into bytes and writes a NUL after them. Other
/// characters give whatever the arithmetic gives. A single last character and bytes that do not fit are
/// ignored.
void myatoi(std::span<const char> source, std::span<std::uint8_t> destination);

/// Writes `now` as "EEE, dd MMM yyyy HH:mm:ss ZZZ" in English, 31 ASCII characters, and a NUL; returns the
/// position of the NUL. Writes an empty text when the buffer has fewer than 64 bytes.
std::size_t GetSpoolTime(std::span<char> destination, const QDateTime& now);

/// Replaces the bytes 0x01..0x08, 0x0A..0x1F and the double quote by blanks.
void ReplaceSpaceCode(std::span<std::uint8_t> buffer);

/// Whether names have a separate Windows Latin-1 form, as they do except on Japanese, Chinese and Korean
/// systems.
bool encodingWindowsLatin1(TextEncoding systemEncoding);

/// Stores an ASCII value; a null, empty or non-ASCII value removes the key. Does nothing without settings or
/// key.
void MyPMPrintSetAsciiCStrValue(PrintSettings* settings, const QString& key, const char* value);

/// Stores an ASCII value in pieces of at most 254 characters under `baseKey` followed by 1, 2, ...; removes
/// the piece after the last, or only piece 1 when the value is null or empty. Does nothing without settings
/// or with a base key that is null, empty or longer than 98 characters.
void MyMultiPMPrintSetAsciiCStrValue(PrintSettings* settings, const char* baseKey, const char* value);

/// Joins the pieces of a multi-key value, for programs that read a job; the panel itself restores names from
/// their form in the system encoding. Joins at most ten, into `destination`, NUL-terminated; a piece that is
/// not ASCII or does not fit is left out. Does nothing without settings or room, or with a base key as above.
void MyMultiPMPrintGetAsciiCStrValue(const PrintSettings* settings, const char* baseKey,
                                     std::span<char> destination);

}  // namespace kesto
