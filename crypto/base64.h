// Base64 in both directions (RFC 4648, section 4).
#pragma once

#include <cstdint>
#include <span>

namespace kesto {

/// Writes the Base64 text of `input` and a NUL; returns its length including the NUL. The output needs
/// ((length + 2) / 3) * 4 + 1 bytes; with fewer, only the groups that fit are written.
std::size_t Base64encode(std::span<char> output, std::span<const std::uint8_t> input);

/// Decodes `text` up to its first character outside the alphabet (padding, NUL or any other) and writes the
/// bytes and a NUL; returns the number of bytes without the NUL. The output needs ((n + 3) / 4) * 3 + 1 bytes
/// for n characters; with fewer, only the bytes that fit are written. Writes nothing and returns 0 when
/// `text` is null or `output` empty.
std::size_t Base64decode(std::span<std::uint8_t> output, const char* text);

}  // namespace kesto
