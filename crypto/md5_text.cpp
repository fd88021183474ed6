#include "crypto/md5_text.h"

#include <QtCore/QCryptographicHash>
#include <cstring>

namespace kesto {

void calcMD5(std::span<char> output, const char* input) {
  if (output.size() < digestTextSize || input == nullptr) return;
  const QByteArrayView bytes(input, static_cast<qsizetype>(std::strlen(input)));
  const QByteArray digest = QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex();
  std::memcpy(output.data(), digest.constData(), digestTextSize);
}

}  // namespace kesto
