// Field contents to stored forms and back: hex text, the spool time, scrubbed names, ASCII values under one
// key or over numbered keys. Nothing here reports an error, and nothing writes past the buffer that the
// caller gave.
#pragma once

#include <QtCore/QDateTime>
#include <cstdint>
#include <span>

#include "platform/print_settings.h"
#include "platform/text_encoding.h"

namespace kesto {

/// Characters of one piece of a multi-key value.
inline constexpr std::size_t pieceLength = 254;
/// Longest base key of a multi-key value.
inline constexpr std::size_t longestBaseKey = 98;

/// Writes each source byte as two upper-case hexadecimal characters, high nibble first, and a NUL. Bytes that
/// do not fit are left out.
void myitoa(std::span<const std::uint8_t> source, std::span<char> destination);

/// Turns pairs of the characters "0".."9" and "A".."F" into bytes and writes a NUL behind them; other
/// characters give what the arithmetic gives. A single last character is ignored, and so is what does not
/// fit.
void myatoi(std::span<const char> source, std::span<std::uint8_t> destination);

/// Writes `now` as "EEE, dd MMM yyyy HH:mm:ss ZZZ" in English, 31 ASCII characters, and a NUL; answers the
/// position of the NUL. Writes an empty text when the buffer has less than 64 bytes.
std::size_t GetSpoolTime(std::span<char> destination, const QDateTime& now);

/// Replaces the bytes 0x01..0x08, 0x0A..0x1F and the double quote by blanks.
void ReplaceSpaceCode(std::span<std::uint8_t> buffer);

/// Whether names get a Windows Latin-1 form of their own: not on Japanese, Chinese and Korean systems.
bool encodingWindowsLatin1(TextEncoding systemEncoding);

/// Stores an ASCII value; a null, empty or non-ASCII value removes the key. Does nothing without settings or
/// key.
void MyPMPrintSetAsciiCStrValue(PrintSettings* settings, const QString& key, const char* value);

/// Stores an ASCII value in pieces of at most 254 characters under `baseKey` followed by 1, 2, ...; removes
/// the piece behind the last, and piece 1 alone when the value is null or empty. Does nothing without
/// settings or with a base key that is null, empty or longer than 98 characters.
void MyMultiPMPrintSetAsciiCStrValue(PrintSettings* settings, const char* baseKey, const char* value);

/// Joins the pieces of a multi-key value, the inverse for whoever reads a job: the panel restores names from
/// their form in the system encoding. Joins at most ten, into `destination`, NUL-terminated; a piece that is
/// not ASCII or does not fit is left out. Does nothing without settings or room, or with a base key as above.
void MyMultiPMPrintGetAsciiCStrValue(const PrintSettings* settings, const char* baseKey,
                                     std::span<char> destination);

}  // namespace kesto
