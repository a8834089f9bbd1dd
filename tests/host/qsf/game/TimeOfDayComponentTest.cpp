#include "qsf/game/TimeOfDayComponent.h"
#include "host/qsf/TestWorld.h"

namespace {

class TimeOfDayComponentTest : public host_test::WorldTest {
protected:
  TimeOfDayComponentTest() { map.startup(); }
  qsf::game::TimeOfDayComponent& clock = *makeEntity(100).getOrCreateComponent<qsf::game::TimeOfDayComponent>();
};

TEST_F(TimeOfDayComponentTest, TheClockStandsAtNoonUntilAFactorRunsIt) {
  runSeconds(10);
  EXPECT_EQ(12, clock.getHour());
  EXPECT_EQ(0, clock.getMinute());
  clock.setTimeFactor(60);
  runSeconds(10);
  EXPECT_EQ(10, clock.getMinute());
  clock.setTimeFactor(0);
  runSeconds(10);
  EXPECT_EQ(10, clock.getMinute());
}

TEST_F(TimeOfDayComponentTest, HourMinuteAndSecondAreSetApart) {
  clock.setPropertyByString("Hour", "8");
  clock.setPropertyByString("Minute", "59");
  clock.setPropertyByString("Second", "1");
  EXPECT_EQ("8", clock.getPropertyAsString("Hour"));
  EXPECT_EQ("59", clock.getPropertyAsString("Minute"));
  EXPECT_EQ("1", clock.getPropertyAsString("Second"));
}

TEST_F(TimeOfDayComponentTest, NumbersOutOfRangeAreRefused) {
  for (const char* hour : {"24", "-1"})
    EXPECT_THROW(clock.setPropertyByString("Hour", hour), std::exception);
  EXPECT_THROW(clock.setPropertyByString("Minute", "60"), std::exception);
  EXPECT_THROW(clock.setPropertyByString("TimeFactor", "inf"), std::exception);
  EXPECT_EQ(12, clock.getHour());
}

TEST_F(TimeOfDayComponentTest, TimeWrapsAtMidnight) {
  clock.setTime(qsf::Time::fromSeconds(25 * 3600));
  EXPECT_EQ(1, clock.getHour());
  clock.setTime(qsf::Time::fromSeconds(-60));
  EXPECT_EQ(23, clock.getHour());
  EXPECT_EQ(59, clock.getMinute());
}

}
