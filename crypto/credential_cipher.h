// The fixed-key cipher for stored pass codes, numbers and credentials.
//
// AES-128 in electronic-codebook mode with one key for every installation: it protects a stored value from a
// casual look, but not from someone who knows this system. The printer's driver determines format and key;
// see docs/security.md.
#pragma once

#include <cstdint>
#include <span>

namespace kesto {

/// Bytes of one block of the cipher.
inline constexpr std::size_t cipherBlockSize = 16;

/// Fills `output` with zeros, then enciphers the bytes of the NUL-terminated `plaintext` (without its NUL)
/// into it, block by block, the last block padded with zeros. Blocks that do not fit into `output` completely
/// are left out. Does nothing when `plaintext` is null or `output` has no data.
void my_aes_encrypt(const char* plaintext, std::span<std::uint8_t> output);

/// Deciphers each whole 16-byte block of `cipherText` that fits into `output`. A partial block at the end is
/// ignored, and the rest of `output` stays as it was. The output is not terminated. Does nothing when either
/// has no data.
void my_aes_decrypt(std::span<const std::uint8_t> cipherText, std::span<std::uint8_t> output);

}  // namespace kesto
