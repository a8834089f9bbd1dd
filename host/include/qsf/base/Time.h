#pragma once
#include "qsf/Export.h"

#include <cmath>
#include <compare>
#include <cstdint>

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

  /// Seconds as a 32-bit float, as scripts see time.
  constexpr float getSeconds() const { return static_cast<float>(static_cast<double>(mMicroseconds) / 1000000.0); }
  constexpr double getSecondsAsDouble() const { return static_cast<double>(mMicroseconds) / 1000000.0; }
  constexpr std::int64_t getMicroseconds() const { return mMicroseconds; }

  constexpr Time operator+(Time other) const { return Time(mMicroseconds + other.mMicroseconds); }
  constexpr Time operator-(Time other) const { return Time(mMicroseconds - other.mMicroseconds); }
  constexpr Time& operator+=(Time other) {
    mMicroseconds += other.mMicroseconds;
    return *this;
  }
  constexpr Time& operator-=(Time other) {
    mMicroseconds -= other.mMicroseconds;
    return *this;
  }
  friend constexpr bool operator==(Time, Time) = default;
  friend constexpr auto operator<=>(Time, Time) = default;

private:
  constexpr explicit Time(std::int64_t microseconds) : mMicroseconds(microseconds) {}
  std::int64_t mMicroseconds = 0;
};

}
