#include "qsf/component/MeshAnimationComponent.h"
#include "host/qsf/TestWorld.h"

namespace {

class MeshAnimationComponentTest : public host_test::WorldTest {
protected:
  MeshAnimationComponentTest() {
    project.write("animation/test/long.json", R"({"length": 2})");
    project.write("animation/test/short.json", R"({"length": 0.5})");
    project.write("animation/test/other.skeleton", "");
    project.write("animation/test/broken.json", R"({"length": -1})");
    mountProject();
    map.startup();
  }
  qsf::MeshAnimationComponent& component = *makeEntity(100).getOrCreateComponent<qsf::MeshAnimationComponent>();
  const qsf::AssetProxy longOne{std::string("test/animation/test/long")};
  const qsf::AssetProxy shortOne{std::string("test/animation/test/short")};
};

TEST_F(MeshAnimationComponentTest, AnAnimationPlaysForItsLength) {
  ASSERT_NE(nullptr, component.playAnimation(longOne));
  EXPECT_TRUE(component.isAnimationPlaying(longOne));
  EXPECT_FALSE(component.isAnimationPlaying(shortOne));
  EXPECT_EQ("test/animation/test/long", component.getPropertyAsString("Animation"));
  runSeconds(1.95);
  EXPECT_TRUE(component.isAnimationPlaying());
  runSeconds(0.05);
  EXPECT_FALSE(component.isAnimationPlaying());
  EXPECT_EQ("", component.getPropertyAsString("Animation"));
}

TEST_F(MeshAnimationComponentTest, ALoopedOneGoesOnAndAReverseOneRunsBackwards) {
  const auto channel = component.playAnimation(shortOne, true, true, 2);
  EXPECT_EQ(1, channel->getOffset());
  runSeconds(0.1);
  EXPECT_NEAR(0.6, channel->getOffset(), 1e-4);
  runSeconds(10);
  EXPECT_TRUE(component.isAnimationPlaying(shortOne));
}

TEST_F(MeshAnimationComponentTest, AnotherAnimationTakesThePlaceAndTheWatcherSees) {
  const auto first = component.playAnimation(longOne);
  const auto second = component.blendToAnimation(shortOne, false, qsf::Time::fromSeconds(1), false, 0.5f, 1);
  EXPECT_TRUE(first->isFinished());
  EXPECT_TRUE(component.isAnimationPlaying(shortOne));
  runSeconds(0.25);
  EXPECT_TRUE(second->isFinished());
  EXPECT_EQ(1, second->getOffset());
}

TEST_F(MeshAnimationComponentTest, AChannelThatStandsStillGoesOnPlaying) {
  const auto channel = component.playAnimation(shortOne);
  channel->setSpeed(0);
  channel->setOffset(1);
  runSeconds(5);
  EXPECT_TRUE(component.isAnimationPlaying(shortOne));
  EXPECT_EQ(1, channel->getOffset());
  channel->setOffset(0.25f);
  runSeconds(1);
  EXPECT_NEAR(0.25, channel->getOffset(), 1e-6);
  channel->setSpeed(1);
  runSeconds(0.25);
  EXPECT_NEAR(0.75, channel->getOffset(), 1e-6);
}

TEST_F(MeshAnimationComponentTest, AnUnknownAnimationLeavesWhatPlays) {
  component.playAnimation(longOne);
  EXPECT_EQ(nullptr, component.playAnimation(qsf::AssetProxy(std::string("test/animation/test/none"))));
  EXPECT_THROW(component.setPropertyByString("Animation", "test/animation/test/none"), std::exception);
  EXPECT_TRUE(component.isAnimationPlaying(longOne));
  component.setPropertyByString("Animation", "");
  EXPECT_FALSE(component.isAnimationPlaying());
}

TEST_F(MeshAnimationComponentTest, WithoutALengthItLastsASecond) {
  for (const char* name : {"test/animation/test/other", "test/animation/test/broken"}) {
    component.setPropertyByString("Animation", name);
    runSeconds(0.95);
    EXPECT_TRUE(component.isAnimationPlaying()) << name;
    runSeconds(0.05);
    EXPECT_FALSE(component.isAnimationPlaying()) << name;
  }
  EXPECT_EQ(1u, log.size()); // the broken one
}

}
