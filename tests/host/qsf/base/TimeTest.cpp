#include "qsf/base/Time.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using qsf::Time;

TEST(Time, SumsOfTicksAreExact) {
  const Time tick = Time::fromSeconds(0.05);
  Time sum;
  for (int k = 1; k <= 20000; ++k) {
    sum += tick;
    ASSERT_EQ(sum, Time::fromSeconds(k * 0.05)) << k;
    ASSERT_EQ(sum.getSeconds(), static_cast<float>(k * 0.05)) << k;
  }
  EXPECT_EQ(sum.getSeconds(), 1000.0f);
}

TEST(Time, RoundsToTheNearestMicrosecond) {
  EXPECT_EQ(Time::fromSeconds(0.0000004).getMicroseconds(), 0);
  EXPECT_EQ(Time::fromSeconds(0.0000006).getMicroseconds(), 1);
  EXPECT_EQ(Time::fromSeconds(-0.0000006).getMicroseconds(), -1);
  EXPECT_EQ(Time::fromMilliseconds(1.5).getMicroseconds(), 1500);
}

TEST(Time, PartsAreSetOneByOne) {
  Time time;
  time.setSeconds(45.5);
  time.setMinutes(30);
  time.setHours(12);
  EXPECT_EQ(time, Time::fromSeconds(12 * 3600 + 30 * 60 + 45.5));
  time.setHours(3);
  time.setSeconds(1);
  time.setMinutes(2);
  EXPECT_EQ(time, Time::fromSeconds(3 * 3600 + 2 * 60 + 1));
}

TEST(Time, PartsCarryOver) {
  Time time = Time::fromSeconds(12 * 3600);
  time.setMinutes(75);
  EXPECT_EQ(time, Time::fromSeconds(13 * 3600 + 15 * 60));
  time.setSeconds(-30);
  EXPECT_EQ(time, Time::fromSeconds(13 * 3600 + 14.5 * 60));
  time.setHours(-1.5);
  EXPECT_EQ(time, Time::fromSeconds(-1.5 * 3600 + 14.5 * 60));
  time.setMinutes(0);
  EXPECT_EQ(time, Time::fromSeconds(-2 * 3600 + 30));
  time.setHours(std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(time, Time::fromSeconds(30));
  time.setHours(std::numeric_limits<double>::infinity());
  EXPECT_EQ(time, Time::fromMicroseconds(std::numeric_limits<std::int64_t>::max()));
}

TEST(Time, TakesStrangeNumbers) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(Time::fromSeconds(std::numeric_limits<double>::quiet_NaN()), Time::ZERO);
  EXPECT_EQ(Time::fromSeconds(infinity).getMicroseconds(), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(Time::fromSeconds(-infinity).getMicroseconds(), std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(Time::fromSeconds(1e300), Time::fromSeconds(infinity));
}

TEST(Time, SumsStopAtTheLargestAndSmallestSpan) {
  const Time largest = Time::fromSeconds(std::numeric_limits<double>::infinity());
  const Time smallest = Time::fromSeconds(-std::numeric_limits<double>::infinity());
  const Time tick = Time::fromSeconds(0.05);
  EXPECT_EQ(largest + tick, largest);
  EXPECT_EQ(smallest - tick, smallest);
  EXPECT_EQ(tick - smallest, largest);
  EXPECT_EQ(smallest + smallest, smallest);
  EXPECT_EQ(largest + smallest, Time::fromMicroseconds(-1));
}

TEST(Time, Compares) {
  EXPECT_LT(Time::ZERO, Time::fromMicroseconds(1));
  EXPECT_GT(Time::fromSeconds(2), Time::fromSeconds(1.999999));
}

}
