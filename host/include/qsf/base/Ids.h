#pragma once
#include <cstdint>
#include <type_traits>

namespace qsf {

/// The value that stands for "none" in every unsigned id: all bits set.
template <typename T> constexpr T getUninitialized() {
  static_assert(std::is_unsigned_v<T>);
  return static_cast<T>(~T{0});
}

inline constexpr std::uint64_t UNINITIALIZED_ID = ~std::uint64_t{0};

}
