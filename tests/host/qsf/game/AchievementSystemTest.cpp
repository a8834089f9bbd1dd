#include "qsf/game/AchievementSystem.h"

#include "em5/plugin/Plugin.h"
#include "host/em5/SessionFixture.h"

namespace {

using AchievementSystemTest = SessionTest;

TEST_F(AchievementSystemTest, TheLockStaysFromGameToGame) {
  play();
  qsf::game::AchievementSystem& achievements = em5::Plugin::getInstance()->getAchievementSystem();
  EXPECT_FALSE(achievements.isWriteLocked());
  achievements.setWriteLock(true);
  session->startGame(EMPTY_MAP);
  EXPECT_TRUE(achievements.isWriteLocked());
  achievements.setWriteLock(false);
  EXPECT_FALSE(achievements.isWriteLocked());
}

TEST_F(AchievementSystemTest, SteamCountsWhatItIsTold) {
  open();
  qsf::game::AchievementSystem& achievements = em5::Plugin::getInstance()->getAchievementSystem();
  ASSERT_NE(achievements.getSteamApiRuntimeLinking(), nullptr);
  EXPECT_EQ(achievements.getSteamApiRuntimeLinking()->getNumberOfReports(), 0u);
  achievements.tellSteamAboutAllAchievements();
  EXPECT_EQ(achievements.getSteamApiRuntimeLinking()->getNumberOfReports(), 1u);
}

}
