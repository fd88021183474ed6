// A buffer whose surroundings show when something was written beyond it.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>

namespace kesto::test {

/// `Size` elements between guard elements; all hold 0xAA at first.
template <class T, std::size_t Size>
class GuardedBuffer {
 public:
  GuardedBuffer() { m_all.fill(static_cast<T>(0xAA)); }

  std::span<T> span() { return std::span(m_all).subspan(guard, Size); }
  T operator[](std::size_t index) const { return m_all[guard + index]; }
  const char* text() const { return reinterpret_cast<const char*>(m_all.data() + guard); }
  /// Whether nothing outside the buffer changed.
  bool isGuardIntact() const {
    const auto untouched = [](T element) { return element == static_cast<T>(0xAA); };
    return std::all_of(m_all.begin(), m_all.begin() + guard, untouched) &&
           std::all_of(m_all.end() - guard, m_all.end(), untouched);
  }

 private:
  static constexpr std::size_t guard = 16;
  std::array<T, Size + 2 * guard> m_all{};
};

}  // namespace kesto::test
