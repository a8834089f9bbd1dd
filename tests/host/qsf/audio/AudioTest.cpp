#include "host/qsf/TestWorld.h"
#include "qsf/audio/AudioProxy.h"
#include "qsf/audio/AudioSystem.h"

namespace {

class AudioTest : public host_test::WorldTest {
protected:
  AudioTest() { mountBase(); }
  qsf::AudioManager& manager = host.getAudioSystem().getAudioManager();
  qsf::AudioProxy proxy;
};

TEST_F(AudioTest, ASoundLastsAsLongAsItsFile) {
  proxy.setSourceFile("em5/audio/test/beep.ogg");
  proxy.play();
  ASSERT_NE(nullptr, proxy.getAudioSource());
  EXPECT_EQ(qsf::Time::fromSeconds(1), proxy.getAudioSource()->getAudioBuffer()->getLength());
  runSeconds(0.95);
  EXPECT_TRUE(proxy.isPlaying());
  runSeconds(0.05);
  EXPECT_FALSE(proxy.isPlaying());
  EXPECT_TRUE(manager.getSources().empty());
}

TEST_F(AudioTest, TheEndingMayBeLeftOut) {
  proxy.setSourceFile("em5/audio/test/long");
  proxy.play();
  ASSERT_TRUE(proxy.isPlaying());
  EXPECT_EQ(qsf::Time::fromSeconds(5), proxy.getAudioSource()->getAudioBuffer()->getLength());
}

TEST_F(AudioTest, SoundsRestWithTheSimulation) {
  proxy.setSourceFile("em5/audio/test/beep.ogg");
  proxy.play();
  host.getJobManagers().setPaused(true);
  runSeconds(3);
  EXPECT_TRUE(proxy.isPlaying());
  EXPECT_EQ(qsf::Time(), proxy.getAudioSource()->getPosition());
}

TEST_F(AudioTest, ALoopedSoundBeginsAgainExactly) {
  proxy.setSourceFile("em5/audio/test/beep.ogg");
  proxy.setLoop(true);
  proxy.play();
  runSeconds(2.25);
  EXPECT_TRUE(proxy.isPlaying());
  EXPECT_EQ(qsf::Time::fromSeconds(0.25), proxy.getAudioSource()->getPosition());
  proxy.stop();
  EXPECT_FALSE(proxy.isPlaying());
}

TEST_F(AudioTest, ASecondPlayTakesThePlaceOfTheFirst) {
  proxy.setSourceFile("em5/audio/test/long.ogg");
  proxy.play();
  const auto first = proxy.getAudioSource();
  proxy.play();
  EXPECT_FALSE(first->isPlaying());
  EXPECT_TRUE(proxy.isPlaying());
}

TEST_F(AudioTest, ADetachedSoundAndOneWhoseProxyGoesPlayOn) {
  proxy.setSourceFile("em5/audio/test/long.ogg");
  proxy.play();
  const auto source = proxy.getAudioSource();
  proxy.detach();
  EXPECT_FALSE(proxy.isPlaying());
  EXPECT_TRUE(source->isPlaying());
  {
    qsf::AudioProxy other;
    other.setSourceFile("em5/audio/test/long.ogg");
    other.play();
  }
  EXPECT_EQ(2u, manager.getStatistics().playing);
}

TEST_F(AudioTest, AMissingSoundDoesNotPlay) {
  proxy.setSourceFile("em5/audio/test/none.ogg");
  proxy.play();
  EXPECT_FALSE(proxy.isPlaying());
  EXPECT_EQ(std::vector<std::string>{"There is no sound \"em5/audio/test/none.ogg\""}, log);
  proxy.stop();
  proxy.detach();
}

TEST_F(AudioTest, AFileThatIsNoVorbisIsNamedAndDoesNotPlay) {
  project.write("audio/test/broken.ogg", "OggS, but nothing behind");
  mountProject();
  proxy.setSourceFile("test/audio/test/broken.ogg");
  proxy.play();
  EXPECT_FALSE(proxy.isPlaying());
  ASSERT_EQ(1u, log.size());
  EXPECT_NE(std::string::npos, log[0].find("broken.ogg: cannot be read as Ogg Vorbis"));
}

TEST_F(AudioTest, StatisticsCountWhatPlays) {
  proxy.setSourceFile("em5/audio/test/beep.ogg");
  proxy.play();
  proxy.detach();
  proxy.setLoop(true);
  proxy.play();
  EXPECT_EQ(2u, manager.getStatistics().playing);
  EXPECT_EQ(1u, manager.getStatistics().looped);
  EXPECT_EQ(1u, manager.getStatistics().buffers);
  manager.overrideStatistics(qsf::AudioManager::Statistics{7, 8, 9});
  EXPECT_EQ(8u, manager.getStatistics().looped);
}

TEST_F(AudioTest, TooManySoundsSilenceTheOldest) {
  proxy.setSourceFile("em5/audio/test/beep.ogg");
  proxy.setLoop(true);
  proxy.play();
  const auto first = proxy.getAudioSource();
  for (int i = 0; i < 256; ++i) {
    proxy.detach();
    proxy.play();
  }
  EXPECT_FALSE(first->isPlaying());
  EXPECT_EQ(256u, manager.getSources().size());
}

TEST_F(AudioTest, StoppingAllMakesSilence) {
  proxy.setSourceFile("em5/audio/test/long.ogg");
  proxy.play();
  manager.stopAll();
  EXPECT_FALSE(proxy.isPlaying());
  EXPECT_TRUE(manager.getSources().empty());
}

}
