#pragma once
#include "qsf/Export.h"

#include <cmath>
#include <compare>
#include <cstdint>
#include <limits>

namespace qsf {

/// A span or a point of simulated time, in whole microseconds, so that sums of ticks are exact.
class QSF_API Time {
public:
  static const Time ZERO;

  constexpr Time() = default;
  /// Rounded to the nearest microsecond; not-a-number gives zero, infinities the largest and smallest span.
  static Time fromSeconds(double seconds);
  static constexpr Time fromMicroseconds(std::int64_t microseconds) { return Time(microseconds); }
  static Time fromMilliseconds(double milliseconds) { return fromSeconds(milliseconds / 1000.0); }

  // Each takes the place of its part and leaves the others; what is too much for a part, or a fraction of it, carries
  // over. Numbers that are no number count as 0.
  void setHours(double hours);
  void setMinutes(double minutes);
  /// A fraction of a second that was there goes, too.
  void setSeconds(double seconds);

  /// Seconds as a 32-bit float, as scripts see time.
  constexpr float getSeconds() const { return static_cast<float>(static_cast<double>(mMicroseconds) / 1000000.0); }
  constexpr double getSecondsAsDouble() const { return static_cast<double>(mMicroseconds) / 1000000.0; }
  constexpr std::int64_t getMicroseconds() const { return mMicroseconds; }

  /// Sums and differences stop at the largest and smallest span, so an infinite time stays one.
  constexpr Time operator+(Time other) const {
    if (other.mMicroseconds > 0 ? mMicroseconds > LARGEST - other.mMicroseconds
                                : mMicroseconds < SMALLEST - other.mMicroseconds)
      return Time(other.mMicroseconds > 0 ? LARGEST : SMALLEST);
    return Time(mMicroseconds + other.mMicroseconds);
  }
  constexpr Time operator-(Time other) const {
    if (other.mMicroseconds > 0 ? mMicroseconds < SMALLEST + other.mMicroseconds
                                : mMicroseconds > LARGEST + other.mMicroseconds)
      return Time(other.mMicroseconds > 0 ? SMALLEST : LARGEST);
    return Time(mMicroseconds - other.mMicroseconds);
  }
  constexpr Time& operator+=(Time other) { return *this = *this + other; }
  constexpr Time& operator-=(Time other) { return *this = *this - other; }
  friend constexpr bool operator==(Time, Time) = default;
  friend constexpr auto operator<=>(Time, Time) = default;

private:
  static constexpr std::int64_t LARGEST = std::numeric_limits<std::int64_t>::max();
  static constexpr std::int64_t SMALLEST = std::numeric_limits<std::int64_t>::min();
  constexpr explicit Time(std::int64_t microseconds) : mMicroseconds(microseconds) {}
  std::int64_t mMicroseconds = 0;
};

}
