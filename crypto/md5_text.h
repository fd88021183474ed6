// MD5 as text (RFC 1321). The digest binds a pass code to a job's spool time; it does not protect the code.
#pragma once

#include <span>

namespace kesto {

/// Characters of a digest text, including its NUL.
inline constexpr std::size_t digestTextSize = 33;

/// Writes the MD5 digest of the NUL-terminated `input` as 32 lower-case hexadecimal characters and a NUL.
/// Writes nothing when `output` has fewer than 33 characters or `input` is null.
void calcMD5(std::span<char> output, const char* input);

}  // namespace kesto
