#include "crypto/credential_cipher.h"

#include <nettle/aes.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace kesto {
namespace {

constexpr std::array<std::uint8_t, 16> fixedKey{0x5e, 0x2b, 0x90, 0xc4, 0x71, 0x0d, 0xa6, 0x33,
                                                0xe8, 0x19, 0x4f, 0xb2, 0x07, 0xcd, 0x6a, 0x58};

}  // namespace

void my_aes_encrypt(const char* plaintext, std::span<std::uint8_t> output) {
  if (plaintext == nullptr || output.data() == nullptr) return;
  std::ranges::fill(output, std::uint8_t{0});
  const std::size_t length = std::strlen(plaintext);
  if (length == 0) return;
  aes128_ctx key{};
  aes128_set_encrypt_key(&key, fixedKey.data());
  for (std::size_t start = 0; start < length && start + cipherBlockSize <= output.size();
       start += cipherBlockSize) {
    std::array<std::uint8_t, cipherBlockSize> block{};
    std::memcpy(block.data(), plaintext + start, std::min(cipherBlockSize, length - start));
    aes128_encrypt(&key, block.size(), &output[start], block.data());
    ::explicit_bzero(block.data(), block.size());
  }
}

void my_aes_decrypt(std::span<const std::uint8_t> cipherText, std::span<std::uint8_t> output) {
  if (cipherText.data() == nullptr || output.data() == nullptr) return;
  aes128_ctx key{};
  aes128_set_decrypt_key(&key, fixedKey.data());
  const std::size_t length = std::min(cipherText.size(), output.size());
  for (std::size_t start = 0; start + cipherBlockSize <= length; start += cipherBlockSize) {
    aes128_decrypt(&key, cipherBlockSize, &output[start], &cipherText[start]);
  }
}

}  // namespace kesto
