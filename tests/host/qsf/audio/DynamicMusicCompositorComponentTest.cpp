#include "qsf/audio/DynamicMusicCompositorComponent.h"
#include "host/qsf/TestWorld.h"
#include "qsf/base/CallRecorder.h"

#include <limits>

namespace {

class DynamicMusicCompositorComponentTest : public host_test::WorldTest {
protected:
  qsf::DynamicMusicCompositorComponent& music =
      *map.createEntity(100)->getOrCreateComponent<qsf::DynamicMusicCompositorComponent>();
};

TEST_F(DynamicMusicCompositorComponentTest, TheTrackFollowsTheLevelWhenItIsChanged) {
  music.setMusicLevel(3);
  EXPECT_EQ("3", music.getPropertyAsString("MusicLevel"));
  EXPECT_EQ(0, music.getTrackLevel());
  music.changeMusicTrack();
  EXPECT_EQ(3, music.getTrackLevel());
}

TEST_F(DynamicMusicCompositorComponentTest, VolumesAreTakenIntoTheirRange) {
  music.setMaxMusicVolume(0.5f);
  EXPECT_EQ("0.5", music.getPropertyAsString("MaxMusicVolume"));
  for (const auto& [told, taken] : {std::pair<float, float>{2, 1}, {-1, 0}, {std::nanf(""), 0}}) {
    music.setMaxMusicVolume(told);
    EXPECT_EQ(taken, music.getMaxMusicVolume());
  }
  music.setPropertyByString("MaxMusicVolume", "7");
  EXPECT_EQ(1, music.getMaxMusicVolume());
}

TEST_F(DynamicMusicCompositorComponentTest, OperationsAreRecordedAndPropertiesAreNot) {
  music.setPropertyByString("MaxMusicVolume", "0.25");
  music.setPropertyByString("MusicLevel", "2");
  EXPECT_TRUE(host.getCallRecorder().getCalls().empty());
  music.setMusicLevel(4);
  music.setMaxMusicVolume(1);
  const auto& calls = host.getCallRecorder().getCalls();
  ASSERT_EQ(2u, calls.size());
  EXPECT_EQ("qsf::DynamicMusicCompositorComponent::setMusicLevel", calls[0].operation);
  EXPECT_EQ(std::vector<std::string>{"1"}, calls[1].arguments);
}

}
