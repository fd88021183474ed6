// An open file descriptor with one owner.
#pragma once

#include <unistd.h>

#include <utility>

namespace kesto {

/// Owns a descriptor and closes it when it is destroyed; -1 means none. It can be moved but not copied.
class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int number) : m_number(number) {}
  Descriptor(Descriptor&& other) noexcept : m_number(other.release()) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    reset(other.release());
    return *this;
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { reset(); }

  explicit operator bool() const { return m_number >= 0; }
  /// The number, still owned here; -1 for none.
  int get() const { return m_number; }
  /// Gives the number up to the caller, who has to close it.
  int release() { return std::exchange(m_number, -1); }
  /// Closes the owned descriptor and owns `number` instead.
  void reset(int number = -1) {
    if (m_number >= 0) ::close(m_number);
    m_number = number;
  }

 private:
  int m_number = -1;
};

}  // namespace kesto
