// Work storage for values that must not stay in memory.
#pragma once

#include <QtCore/QByteArray>
#include <array>
#include <cstdint>
#include <cstring>

namespace kesto {

/// A zero-filled byte buffer of a fixed size that wipes itself when it is destroyed.
template <std::size_t Size>
class SecretBuffer : public std::array<std::uint8_t, Size> {
 public:
  SecretBuffer() { this->fill(0); }
  ~SecretBuffer() { ::explicit_bzero(this->data(), Size); }
  SecretBuffer(const SecretBuffer&) = delete;
  SecretBuffer& operator=(const SecretBuffer&) = delete;

  /// The contents as characters.
  char* text() { return reinterpret_cast<char*>(this->data()); }
  const char* text() const { return reinterpret_cast<const char*>(this->data()); }
};

}  // namespace kesto
