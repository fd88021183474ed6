#include "crypto/base64.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

namespace kesto {
namespace {

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::uint8_t outside = 64;

constexpr std::array<std::uint8_t, 256> invertAlphabet() {
  std::array<std::uint8_t, 256> values{};
  values.fill(outside);
  for (std::size_t i = 0; i < alphabet.size(); ++i) {
    values[static_cast<std::uint8_t>(alphabet[i])] = static_cast<std::uint8_t>(i);
  }
  return values;
}

constexpr std::array<std::uint8_t, 256> valueOfCharacter = invertAlphabet();

std::uint8_t valueOf(char character) {
  return valueOfCharacter[static_cast<std::uint8_t>(character)];
}

}  // namespace

std::size_t Base64encode(std::span<char> output, std::span<const std::uint8_t> input) {
  if (output.empty()) return 0;
  std::size_t written = 0;
  for (std::size_t start = 0; start < input.size() && written + 4 < output.size(); start += 3) {
    const std::size_t count = std::min<std::size_t>(3, input.size() - start);
    std::uint32_t group = 0;
    for (std::size_t i = 0; i < 3; ++i)
      group = group << 8 | (i < count ? input[start + i] : 0U);
    for (std::size_t i = 0; i < 4; ++i) {
      output[written++] = i <= count ? alphabet[group >> (18 - 6 * i) & 63] : '=';
    }
  }
  output[written] = '\0';
  return written + 1;
}

std::size_t Base64decode(std::span<std::uint8_t> output, const char* text) {
  if (output.empty() || text == nullptr) return 0;
  std::size_t count = 0;
  while (valueOf(text[count]) != outside)
    ++count;
  std::size_t written = 0;
  for (std::size_t start = 0; start < count; start += 4) {
    const std::size_t characters = std::min<std::size_t>(4, count - start);
    std::uint32_t group = 0;
    for (std::size_t i = 0; i < 4; ++i)
      group = group << 6 | (i < characters ? valueOf(text[start + i]) : 0U);
    for (std::size_t i = 0; i + 1 < characters && written + 1 < output.size(); ++i) {
      output[written++] = static_cast<std::uint8_t>(group >> (16 - 8 * i));
    }
  }
  output[written] = 0;
  return written;
}

}  // namespace kesto
