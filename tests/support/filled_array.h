// An array that holds 0xAA where nothing was written. The sanitizers see what is written beyond it.
#pragma once

#include <array>
#include <cstdint>

namespace kesto::test {

template <class T, std::size_t Size>
struct FilledArray : std::array<T, Size> {
  FilledArray() { this->fill(static_cast<T>(0xAA)); }
  const char* text() const { return reinterpret_cast<const char*>(this->data()); }
};

}  // namespace kesto::test
