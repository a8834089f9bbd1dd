#pragma once
#include <limits>

namespace script {

/// Drops the fraction. Numbers beyond the range give its nearest end, not-a-number gives 0.
inline int truncateToInt(float value) {
  if (value != value) return 0;
  // The largest int isn't a float; the next power of two is.
  if (value >= 2147483648.0f) return std::numeric_limits<int>::max();
  if (value < -2147483648.0f) return std::numeric_limits<int>::min();
  return static_cast<int>(value);
}

}
