#include "qsf/Qsf.h"
#include "qsf/base/Random.h"
#include "qsf/log/LogSystem.h"
#include "qsf/map/Map.h"

#include <gtest/gtest.h>

namespace {

TEST(Qsf, LivesFromConstructionToDestruction) {
  EXPECT_EQ(qsf::Qsf::instance(), nullptr);
  {
    qsf::Qsf host;
    EXPECT_EQ(qsf::Qsf::instance(), &host);
    EXPECT_EQ(&qsf::getMainMap(), &host.getMainMap());
  }
  EXPECT_EQ(qsf::Qsf::instance(), nullptr);
}

TEST(Qsf, EachHostStartsWithTheSameRandomDraws) {
  int first = 0;
  {
    qsf::Qsf host;
    first = qsf::Random::getRandomInt(0, 1000000);
  }
  qsf::Qsf host;
  EXPECT_EQ(qsf::Random::getRandomInt(0, 1000000), first);
}

TEST(Qsf, LogsWhileItLives) {
  std::string text;
  qsf::Qsf host;
  host.getLogSystem().addListener([&](const qsf::LogSystem::Record& record) { text += record.message; });
  qsf::logMessage(qsf::LogSystem::WARNING, "heard");
  qsf::logMessage(qsf::LogSystem::DEBUG, "below the threshold");
  EXPECT_EQ(text, "heard");
}

}
