#include "settings/stored_forms.h"

#include <algorithm>
#include <cstring>

#include "crypto/base64.h"
#include "crypto/credential_cipher.h"
#include "crypto/md5_text.h"
#include "crypto/secret_buffer.h"
#include "platform/secret.h"
#include "settings/value_helpers.h"

namespace kesto {
namespace {

// Plaintext and cipher text of the longest stored value, a login name.
using WorkBuffer = SecretBuffer<511>;

std::span<const std::uint8_t> bytesOf(const QByteArray& array) {
  return {reinterpret_cast<const std::uint8_t*>(array.constData()), static_cast<std::size_t>(array.size())};
}

// Room for the bytes that myatoi makes of the text, and its NUL.
QByteArray bytesOfHex(const QByteArray& hex) {
  QByteArray bytes(hex.size() / 2 + 1, '\0');
  myatoi({hex.constData(), static_cast<std::size_t>(hex.size())},
         {reinterpret_cast<std::uint8_t*>(bytes.data()), static_cast<std::size_t>(bytes.size())});
  return bytes;
}

}  // namespace

QByteArray hexText(const QByteArray& bytes) {
  QByteArray text(bytes.size() * 2 + 1, '\0');
  myitoa(bytesOf(bytes), {text.data(), static_cast<std::size_t>(text.size())});
  text.chop(1);
  return text;
}

QByteArray textOfHex(const QByteArray& hex) {
  return QByteArray(bytesOfHex(hex).constData());
}

QByteArray paddedDigits(const QByteArray& digits) {
  return QByteArray(std::max<qsizetype>(0, 5 - digits.size()), '0') + digits.constData();
}

QByteArray jobDigest(const QByteArray& first, const QByteArray& second) {
  std::array<char, digestTextSize> digest{};
  QByteArray both = first + second;
  const WipedAtEnd wiped(both);
  calcMD5(digest, both.constData());
  return digest.data();
}

QByteArray sealedHex(const QByteArray& plaintext, int cipherBytes) {
  if (plaintext.isEmpty()) return {};
  WorkBuffer cipherText;
  my_aes_encrypt(plaintext.constData(), cipherText);
  return hexText(QByteArray::fromRawData(cipherText.text(), cipherBytes));
}

QByteArray plaintextOfSealedHex(const QByteArray& hex, int cipherBytes) {
  if (hex.size() < 2 * cipherBytes) return {};
  qsizetype characters = 2 * cipherBytes;
  constexpr qsizetype block = 2 * static_cast<qsizetype>(cipherBlockSize);
  if (characters > block && hex.mid(block, block) == QByteArray(block, '0')) characters = block;
  const QByteArray cipherText = bytesOfHex(hex.left(characters));
  WorkBuffer plaintext;
  my_aes_decrypt(bytesOf(cipherText).first(static_cast<std::size_t>(characters / 2)), plaintext);
  return plaintext.text();
}

QByteArray sealedBase64(const QByteArray& plaintext) {
  const std::size_t length = std::strlen(plaintext.constData());
  if (length == 0) return {};
  WorkBuffer cipherText;
  my_aes_encrypt(plaintext.constData(), cipherText);
  const std::size_t whole = (length + cipherBlockSize - 1) / cipherBlockSize * cipherBlockSize;
  std::array<char, 1024> base64{};
  Base64encode(base64, std::span(cipherText).first(std::min(whole, cipherText.size())));
  return base64.data();
}

QByteArray plaintextOfSealedBase64(const QByteArray& base64) {
  WorkBuffer cipherText;
  WorkBuffer plaintext;
  const std::size_t count = Base64decode(cipherText, base64.left(510).constData());
  my_aes_decrypt(std::span(cipherText).first(count), plaintext);
  return plaintext.text();
}

}  // namespace kesto
