// The first byte is a length that the buffers depend on; the rest are the values.
#include <vector>

#include "crypto/base64.h"
#include "crypto/credential_cipher.h"
#include "crypto/md5_text.h"
#include "fuzz/targets.h"
#include "settings/stored_forms.h"
#include "settings/value_helpers.h"

namespace kesto::fuzz {
namespace {

using Bytes = std::vector<std::uint8_t>;

std::span<const std::uint8_t> bytesOf(const QByteArray& array) {
  return {reinterpret_cast<const std::uint8_t*>(array.constData()), static_cast<std::size_t>(array.size())};
}

// Buffers on the heap with exactly this size, so that the sanitizers notice a byte beyond.
void useSmallBuffers(const QByteArray& value, std::size_t size) {
  std::vector<char> text(size);
  Bytes bytes(size);
  Base64encode(text, bytesOf(value));
  Base64decode(bytes, value.constData());
  myitoa(bytesOf(value), text);
  myatoi({value.constData(), static_cast<std::size_t>(value.size())}, bytes);
  calcMD5(text, value.constData());
  my_aes_encrypt(value.constData(), bytes);
  my_aes_decrypt(bytesOf(value), bytes);
  ReplaceSpaceCode(bytes);
  GetSpoolTime(text, QDateTime::fromMSecsSinceEpoch(0));
  PrintSettings settings;
  MyMultiPMPrintSetAsciiCStrValue(&settings, "key", value.constData());
  MyMultiPMPrintGetAsciiCStrValue(&settings, "key", text);
}

void goThereAndBack(const QByteArray& value) {
  const QByteArray text(value.constData());  // up to its first NUL
  require(textOfHex(hexText(value)) == text, "hexadecimal text comes back");
  const QByteArray name = text.left(255);
  require(plaintextOfSealedBase64(sealedBase64(name)) == name, "a sealed name comes back");
  const QByteArray code = text.left(16);
  require(plaintextOfSealedHex(sealedHex(code, 16), 16) == code, "a sealed code comes back");
  std::vector<char> base64((static_cast<std::size_t>(value.size()) + 2) / 3 * 4 + 1);
  Bytes decoded((base64.size() + 3) / 4 * 3 + 1);
  Base64encode(base64, bytesOf(value));
  const std::size_t count = Base64decode(decoded, base64.data());
  require(std::ranges::equal(std::span(decoded).first(count), bytesOf(value)), "Base64 comes back");
}

void convert(const QByteArray& value, qsizetype limit) {
  for (int i = 0; i <= static_cast<int>(TextEncoding::Utf8); ++i) {
    const auto encoding = static_cast<TextEncoding>(i);
    const QString text = textOfBytes(value, encoding);
    require(bytesOfText(text, encoding, limit, limit, ' ').size() <= limit, "bytes keep their limit");
    const std::optional<QByteArray> back = cStringOfText(text, encoding, 8 * text.size() + 8);
    require(!back || textOfBytes(*back, encoding) == text, "text comes back");
  }
}

}  // namespace

void runValues(const QByteArray& input) {
  if (input.isEmpty()) return;
  const auto size = static_cast<std::uint8_t>(input.front());
  const QByteArray value = input.mid(1);
  useSmallBuffers(value, size);
  goThereAndBack(value);
  convert(value, size);
  plaintextOfSealedHex(value, 32);
  plaintextOfSealedBase64(value);
}

}  // namespace kesto::fuzz
