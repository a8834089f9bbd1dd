#include "apps/tidemark/run/WorldReport.h"

#include "apps/tidemark/test/RunTest.h"
#include "em5/component/StatusOverlayComponent.h"
#include "em5/game/HostSession.h"
#include "em5/gui/HintHelper.h"
#include "qsf/Qsf.h"
#include "qsf/audio/AudioProxy.h"
#include "qsf/map/Entity.h"

#include <nlohmann/json.hpp>

namespace tidemark::run {

namespace {

using em5::HintHelper;
using em5::StatusOverlayComponent;
using Json = nlohmann::ordered_json;

constexpr std::uint32_t NO_SUPERVISOR = 0xFFFFFFFF;

// The report of a world in which that was done before half a second ran.
WorldReport reportAfter(const std::function<void(test::TestSession&)>& deed) {
  WorldReport report;
  const auto failures =
      test::runWith("$ @for 0\n$ @entity 100 prefab firefighter name Anna at 0 0 0\n$ @expect triggers 0\n",
                    [&](test::TestSession& session) {
                      deed(session);
                      for (int frame = 0; frame < 10; ++frame)
                        session.host().runFrame(qsf::Time::fromSeconds(0.05));
                      report = collectWorld(session.host().getQsf());
                    });
  EXPECT_TRUE(failures.empty());
  return report;
}

Json toJson(const WorldReport& report) {
  Json root;
  addWorld(report, root);
  return root;
}

bool holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

void play(const std::string& file, const qsf::Entity* entity, bool loop, float volume) {
  qsf::AudioProxy proxy;
  proxy.setSourceFile(file);
  proxy.setContextEntity(entity);
  proxy.setSpatial(entity != nullptr);
  proxy.setLoop(loop);
  proxy.setVolume(volume);
  proxy.play();
}

TEST(WorldReport, OfAQuietWorldIsEmpty) {
  const WorldReport report = reportAfter([](test::TestSession&) {});
  EXPECT_EQ(describeWorld(report), "");
  EXPECT_EQ(toJson(report).dump(), R"({"overlays":[],"shownHints":[],"supervisorMessages":[],)"
                                   R"("audio":{"playing":0,"looped":0,"buffers":0,"sounds":[]}})");
}

TEST(WorldReport, TellsIconsAndBars) {
  const WorldReport report = reportAfter([](test::TestSession& session) {
    qsf::Entity& anna = session.findEntity(100);
    StatusOverlayComponent::showIcon(anna, 13, true);
    StatusOverlayComponent::showIcon(anna, 5, true);
    StatusOverlayComponent::showBarOverlay(anna, 5, 0.25f);
    StatusOverlayComponent::showBarOverlay(anna, 1, 0.5f);
    StatusOverlayComponent::hideBarOverlay(anna, 1);
  });
  EXPECT_EQ(toJson(report)["overlays"].dump(),
            R"([{"entity":100,"name":"Anna","icons":[5,13],"bars":[{"bar":5,"value":0.25}]}])");
  EXPECT_TRUE(holds(describeWorld(report),
                    "\nicons and bars\n    entity  name  icons  bars\n    100     Anna  5 13   5 at 0.25\n"))
      << describeWorld(report);
}

TEST(WorldReport, LeavesOutEntitiesOverWhichNothingShowsAnyMore) {
  const WorldReport report = reportAfter([](test::TestSession& session) {
    StatusOverlayComponent::showIcon(session.findEntity(100), 5, true);
    StatusOverlayComponent::showIcon(session.findEntity(100), 5, false);
  });
  EXPECT_TRUE(report.overlays.empty());
}

TEST(WorldReport, TellsHintsOfTheWholeRunAndHowLongTheyStay) {
  const WorldReport report = reportAfter([](test::TestSession&) {
    HintHelper::showHint("over", NO_SUPERVISOR, qsf::Time::fromSeconds(0.2));
    HintHelper::showHint("twice", 3, qsf::Time::fromSeconds(2));
    HintHelper::showHint("twice", 3, qsf::Time::fromSeconds(1));
    HintHelper::showHint("twice", NO_SUPERVISOR, qsf::Time::fromSeconds(1));
  });
  const Json hints = toJson(report)["shownHints"];
  EXPECT_EQ(hints.dump(), R"([{"text":"over","supervisor":null,"times":1,"secondsLeft":0.0},)"
                          R"({"text":"twice","supervisor":3,"times":2,"secondsLeft":1.5},)"
                          R"({"text":"twice","supervisor":null,"times":1,"secondsLeft":0.5}])");
  EXPECT_TRUE(holds(describeWorld(report), "\nhints that were shown\n    1 time   gone        \"over\"\n"
                                           "    2 times  1.5 s left  \"twice\"\n"))
      << describeWorld(report);
}

TEST(WorldReport, TellsMessagesOfTheSupervisor) {
  const WorldReport report = reportAfter([](test::TestSession&) {
    HintHelper::showSupervisorMessage("come in");
    HintHelper::showSupervisorMessage("come in", true);
  });
  EXPECT_EQ(toJson(report)["supervisorMessages"].dump(),
            R"([{"text":"come in","audioOnly":false,"times":1,"secondsLeft":9.5},)"
            R"({"text":"come in","audioOnly":true,"times":1,"secondsLeft":9.5}])");
  EXPECT_TRUE(holds(describeWorld(report), "\nmessages of the supervisor\n    1 time  9.5 s left  \"come in\"\n"
                                           "    1 time  9.5 s left  \"come in\", only heard\n"))
      << describeWorld(report);
}

TEST(WorldReport, TellsWhatSounds) {
  const WorldReport report = reportAfter([](test::TestSession& session) {
    play("em5/audio/test/long.ogg", &session.findEntity(100), true, 0.5f);
    play("em5/audio/test/beep", nullptr, false, 1);
    play("em5/audio/test/none", nullptr, false, 1);
  });
  const Json audio = toJson(report)["audio"];
  EXPECT_EQ(audio["playing"], 2);
  EXPECT_EQ(audio["looped"], 1);
  EXPECT_EQ(audio["buffers"], 2);
  ASSERT_EQ(audio["sounds"].size(), 2u);
  EXPECT_EQ(audio["sounds"][0].dump(), R"({"file":"em5/audio/test/long.ogg","entity":100,"spatial":true,"loop":true,)"
                                       R"("volume":0.5,"position":0.5,"length":5.0})");
  EXPECT_EQ(audio["sounds"][1]["entity"], nullptr);
  EXPECT_TRUE(holds(describeWorld(report),
                    "\nsounds: 2 play, 1 of them looped, 2 files read\n    em5/audio/test/long.ogg  "
                    "at 100        0.50 of 5.00 s, looped, spatial  volume 0.5\n"))
      << describeWorld(report);
}

TEST(WorldReport, LeavesOutSoundsThatHaveEnded) {
  const WorldReport report = reportAfter([](test::TestSession& session) {
    play("em5/audio/test/beep.ogg", nullptr, false, 1);
    for (int frame = 0; frame < 20; ++frame)
      session.host().runFrame(qsf::Time::fromSeconds(0.05));
  });
  EXPECT_TRUE(report.sounds.empty());
  EXPECT_EQ(report.audio.buffers, 1u);
}

}

}
