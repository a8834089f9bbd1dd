#include "qsf/base/Time.h"

#include <limits>

namespace qsf {

namespace {

constexpr std::int64_t MINUTE = 60'000'000;
constexpr std::int64_t HOUR = 60 * MINUTE;

/// What stands below a whole number of units, also before zero.
constexpr std::int64_t below(std::int64_t microseconds, std::int64_t unit) {
  return (microseconds % unit + unit) % unit;
}

}

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

void Time::setHours(double hours) { *this = Time(below(mMicroseconds, HOUR)) + fromSeconds(hours * 3600); }

void Time::setMinutes(double minutes) {
  const Time seconds(below(mMicroseconds, MINUTE));
  *this = *this - Time(below(mMicroseconds, HOUR)) + seconds + fromSeconds(minutes * 60);
}

void Time::setSeconds(double seconds) { *this = *this - Time(below(mMicroseconds, MINUTE)) + fromSeconds(seconds); }

}
