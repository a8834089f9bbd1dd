#include "apps/tidemark/run/GameReport.h"

#include "apps/tidemark/test/RunTest.h"
#include "em5/application/AccountManager.h"
#include "em5/application/Application.h"
#include "em5/game/HostSession.h"
#include "em5/gui/EmergencyGui.h"
#include "em5/gui/SEKDroneScanWindow.h"
#include "em5/plugin/Plugin.h"
#include "qsf/Qsf.h"
#include "qsf/audio/DynamicMusicCompositorComponent.h"
#include "qsf/game/AchievementSystem.h"
#include "qsf/game/TimeOfDayComponent.h"
#include "qsf/localization/LocalizationSystem.h"
#include "qsf/map/LayerManager.h"
#include "qsf/map/Map.h"
#include "qsf/platform/PlatformSystem.h"

#include <nlohmann/json.hpp>

namespace tidemark::run {

namespace {

using Json = nlohmann::ordered_json;

// The report of a game in which that was done.
GameReport reportAfter(const std::string& directives, const std::function<void()>& deed) {
  GameReport report;
  const auto failures = test::runWith(directives + "$ @for 0\n$ @expect triggers 0\n", [&](test::TestSession& session) {
    deed();
    report = collectGame(session.host().getQsf());
  });
  EXPECT_TRUE(failures.empty());
  return report;
}

Json toJson(const GameReport& report) {
  Json root;
  addGame(report, root);
  return root["game"];
}

qsf::Entity& core() { return *qsf::getMainMap().getCoreEntity(); }

TEST(GameReport, OfAnyGameHasNoTable) {
  const GameReport report = reportAfter("", [] {});
  EXPECT_EQ(describeGame(report), "");
  EXPECT_EQ(
      toJson(report).dump(),
      R"({"timeOfDay":"12:00:00","language":"en","projects":["em5","test"],"layers":[{"name":"Base","active":true}],)"
      R"("simulates":true,"music":null,"droneEntity":null,"pages":[],"cloudSyncPaused":false,)"
      R"("achievementsLocked":false})");
}

TEST(GameReport, TellsTheClockTheLanguageAndHeldSimulation) {
  const GameReport report = reportAfter("", [] {
    core().getComponent<qsf::game::TimeOfDayComponent>()->setTime(qsf::Time::fromSeconds(7 * 3600 + 4 * 60 + 5));
    qsf::Qsf::instance()->getLocalizationSystem().setLanguage("de", true);
    qsf::getMainMap().setSimulatingMode(false);
  });
  EXPECT_EQ(report.timeOfDay, "7:04:05");
  EXPECT_EQ(report.language, "de");
  EXPECT_FALSE(report.simulates);
}

TEST(GameReport, TellsLayersOfAMapThatHasSome) {
  const GameReport report = reportAfter("$ @map em5/map/test/layers\n", [] {
    qsf::LayerManager& layers = qsf::Qsf::instance()->getLayerManager();
    layers.deactivateLayer(*layers.getLayerByName("Day"));
  });
  EXPECT_EQ(toJson(report)["layers"].dump(),
            R"([{"name":"Base","active":true},{"name":"Night","active":false},{"name":"Day","active":false}])");
  EXPECT_EQ(describeGame(report), "\nthe game as a whole\n"
                                  "    layer  \"Base\" is active\n"
                                  "    layer  \"Night\" is inactive\n"
                                  "    layer  \"Day\" is inactive\n");
}

TEST(GameReport, TellsMusicPagesCloudAndAchievements) {
  const GameReport report = reportAfter("", [] {
    auto* music = core().getOrCreateComponent<qsf::DynamicMusicCompositorComponent>();
    music->setMusicLevel(3);
    music->changeMusicTrack();
    music->setMusicLevel(2);
    music->setMaxMusicVolume(0.5f);
    for (const char* page : {"https://b.example", "https://a.example", "https://b.example"})
      qsf::UniqueInstance<qsf::PlatformSystem>()->openUrlExternal(page);
    qsf::UniqueInstance<em5::Application>()->getAccountManager().setCloudSyncPaused(true);
    em5::Plugin::getInstance()->getAchievementSystem().setWriteLock(true);
  });
  const Json game = toJson(report);
  EXPECT_EQ(game["music"].dump(), R"({"level":2,"trackLevel":3,"maximumVolume":0.5})");
  EXPECT_EQ(game["pages"].dump(), R"([{"page":"https://b.example","times":2},{"page":"https://a.example","times":1}])");
  EXPECT_EQ(game["cloudSyncPaused"], true);
  EXPECT_EQ(game["achievementsLocked"], true);
  EXPECT_EQ(describeGame(report), "\nthe game as a whole\n"
                                  "    music         level 2, the track of level 3, volume 0.5\n"
                                  "    page          \"https://b.example\", asked for 2 times\n"
                                  "    page          \"https://a.example\", asked for 1 time\n"
                                  "    cloud         saved games are not synchronised\n"
                                  "    achievements  locked\n");
}

TEST(GameReport, TellsWhatTheDroneSeesWhileItsWindowShows) {
  const std::string engine = "$ @entity 100 prefab fire_engine\n";
  const auto window = [] { return qsf::UniqueInstance<em5::EmergencyGui>()->getIngameHud()->getSEKDroneScanWindow(); };
  const auto look = [&] {
    window()->setCameraDrone(*qsf::getMainMap().getEntityById(100));
    window()->show();
  };
  EXPECT_EQ(describeGame(reportAfter(engine, look)), "\nthe game as a whole\n    drone  looks at 100\n");
  const GameReport closed = reportAfter(engine, [&] {
    look();
    window()->hide();
  });
  EXPECT_FALSE(closed.droneEntity);
}

}

}
