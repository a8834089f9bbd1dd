#include "qsf/base/Time.h"

#include <limits>

namespace qsf {

const Time Time::ZERO{};

Time Time::fromSeconds(double seconds) {
  constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
  constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();
  const double microseconds = std::round(seconds * 1000000.0);
  if (std::isnan(microseconds)) return Time();
  // 2^63 itself does not fit any more, -2^63 does.
  if (microseconds >= 9223372036854775808.0) return Time(largest);
  if (microseconds < -9223372036854775808.0) return Time(smallest);
  return Time(static_cast<std::int64_t>(microseconds));
}

}
