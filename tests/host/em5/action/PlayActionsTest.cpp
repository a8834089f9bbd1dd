#include "em5/action/PlayAnimationAction.h"
#include "em5/action/PlayAudioAction.h"
#include "em5/map/AnimationHelper.h"
#include "host/em5/action/ActionTest.h"
#include "qsf/Qsf.h"
#include "qsf/action/WaitAction.h"
#include "qsf/audio/AudioSystem.h"

using em5::PlayAnimationAction;
using em5::PlayAudioAction;

namespace {

constexpr const char* WAVE = "em5/animation/test/wave"; // 2 s
constexpr const char* BEEP = "em5/audio/test/beep.ogg"; // 1 s
constexpr const char* LONG = "em5/audio/test/long.ogg"; // 5 s

class PlayAnimationActionTest : public host_test::ActionTest {
protected:
  std::string playing() const {
    const auto* component = person.getComponent<qsf::MeshAnimationComponent>();
    return component ? component->getPropertyAsString("Animation") : "";
  }
  qsf::Entity& person = make(100, "firefighter");
};

TEST_F(PlayAnimationActionTest, OneThatIsNotWaitedForPlaysOn) {
  push<PlayAnimationAction>(person).init(WAVE, false, false, false);
  runSeconds(0.1);
  EXPECT_TRUE(isIdle(person));
  EXPECT_EQ(WAVE, playing());
  runSeconds(2);
  EXPECT_EQ("", playing());
}

TEST_F(PlayAnimationActionTest, OneThatIsWaitedForEndsWithItsAnimation) {
  push<PlayAnimationAction>(person).init(WAVE, true, false, false);
  EXPECT_NEAR(41, framesUntilIdle(person), 2);
  EXPECT_EQ("", playing());
}

TEST_F(PlayAnimationActionTest, ALoopedOneThatIsWaitedForPlaysUntilItIsRemoved) {
  push<PlayAnimationAction>(person).init(WAVE, true, true, false);
  runSeconds(20);
  EXPECT_FALSE(isIdle(person));
  EXPECT_EQ(WAVE, playing());
  actionsOf(person).clearPlan();
  EXPECT_EQ("", playing());
}

TEST_F(PlayAnimationActionTest, ATimeLimitEndsIt) {
  push<PlayAnimationAction>(person).init(WAVE, false, true, false, qsf::Time(), qsf::Time::fromSeconds(5));
  EXPECT_NEAR(101, framesUntilIdle(person), 1);
  EXPECT_EQ("", playing());
}

TEST_F(PlayAnimationActionTest, AfterAnInterruptionItPlaysFromItsStart) {
  push<PlayAnimationAction>(person).init(WAVE, true, false, false);
  runSeconds(1.5);
  actionsOf(person).pushAction<qsf::WaitAction>(1, qsf::action::INSERT_BEFORE_CURRENT);
  EXPECT_EQ("", playing());
  EXPECT_GT(framesUntilIdle(person), 40);
}

TEST_F(PlayAnimationActionTest, AnotherAnimationThatTakesItsPlaceEndsIt) {
  push<PlayAnimationAction>(person).init(WAVE, true, true, false);
  runSeconds(0.5);
  person.getComponent<qsf::MeshAnimationComponent>()->setPropertyByString("Animation", "em5/animation/test/nod");
  runSeconds(0.1);
  EXPECT_TRUE(isIdle(person));
  EXPECT_EQ("em5/animation/test/nod", playing());
}

TEST_F(PlayAnimationActionTest, AnActionWhoseComponentGoesEnds) {
  push<PlayAnimationAction>(person).init(WAVE, true, true, false);
  runSeconds(0.5);
  person.destroyComponentById(qsf::MeshAnimationComponent::COMPONENT_ID);
  runSeconds(0.1);
  EXPECT_TRUE(isIdle(person));
}

TEST_F(PlayAnimationActionTest, AnUnknownAssetIsNotWaitedFor) {
  push<PlayAnimationAction>(person).init("em5/animation/test/none", true, true, false);
  runSeconds(0.1);
  EXPECT_TRUE(isIdle(person));
}

TEST_F(PlayAnimationActionTest, WhatPlaysIsRecordedAndTold) {
  push<PlayAnimationAction>(person).init(WAVE, true, true, true, qsf::Time::fromSeconds(0.5));
  EXPECT_EQ(WAVE, given(person, "animation"));
  EXPECT_EQ("1", given(person, "wait") + "");
  EXPECT_EQ("1", given(person, "loop"));
  EXPECT_EQ("1", given(person, "reverse"));
  EXPECT_EQ("0.5", given(person, "blend"));
  runSeconds(0.1);
  actionsOf(person).clearPlan();
  em5::AnimationHelper(person).playAnimation("em5/animation/test/none", false, false, qsf::Time::ZERO);
  EXPECT_EQ(std::vector<std::string>{std::string(WAVE) + " 1 1 0.5"},
            calls("qsf::MeshAnimationComponent::blendToAnimation"));
  EXPECT_EQ(std::vector<std::string>{"em5/animation/test/none 0 0 0"},
            calls("qsf::MeshAnimationComponent::playAnimation"));
}

TEST_F(PlayAnimationActionTest, TheCallForHelpExists) {
  EXPECT_NE(nullptr, em5::AnimationHelper(person).playAnimation(em5::AnimationHelper::getAnimationWaveHelpFromWindow(),
                                                                true, false, qsf::Time::ZERO));
}

class PlayAudioActionTest : public host_test::ActionTest {
protected:
  std::vector<std::string> playing() {
    std::vector<std::string> files;
    for (const auto& source : host.getAudioSystem().getAudioManager().getSources())
      if (source->isPlaying()) files.push_back(source->getSettings().sourceFile);
    return files;
  }
  using Files = std::vector<std::string>;
  qsf::Entity& person = make(100, "firefighter");
};

TEST_F(PlayAudioActionTest, OneThatIsWaitedForLastsAsLongAsItsFile) {
  push<PlayAudioAction>(person).init(BEEP, &person, true, false, true);
  EXPECT_NEAR(21, framesUntilIdle(person), 2);
  push<PlayAudioAction>(person).init(LONG, &person, true, false, true);
  EXPECT_NEAR(101, framesUntilIdle(person), 2);
  EXPECT_TRUE(playing().empty());
  EXPECT_TRUE(calls("qsf::AudioProxy::stop").empty());
}

TEST_F(PlayAudioActionTest, OneThatIsNotWaitedForPlaysOn) {
  push<PlayAudioAction>(person).init(LONG, nullptr, false, false, false);
  runSeconds(0.2);
  EXPECT_TRUE(isIdle(person));
  EXPECT_EQ(Files{LONG}, playing());
  runSeconds(5);
  EXPECT_TRUE(playing().empty());
}

TEST_F(PlayAudioActionTest, ALoopedOnePlaysUntilTheActionGoes) {
  push<PlayAudioAction>(person).init(BEEP, &person, true, true, true);
  runSeconds(7);
  EXPECT_EQ(Files{BEEP}, playing());
  actionsOf(person).clearPlan();
  EXPECT_TRUE(playing().empty());
  EXPECT_EQ(Files{BEEP}, calls("qsf::AudioProxy::stop"));
  EXPECT_EQ(Files{BEEP}, calls("qsf::AudioProxy::detach"));
}

TEST_F(PlayAudioActionTest, ATimeLimitStopsIt) {
  push<PlayAudioAction>(person).init(LONG, &person, true, false, false, qsf::Time::fromSeconds(2));
  EXPECT_NEAR(41, framesUntilIdle(person), 1);
  EXPECT_TRUE(playing().empty());
}

TEST_F(PlayAudioActionTest, AFileThatIsMissingIsRecordedAndNotWaitedFor) {
  push<PlayAudioAction>(person).init("em5/audio/test/none.ogg", &person, true, true, true);
  runSeconds(0.1);
  EXPECT_TRUE(isIdle(person));
  EXPECT_EQ(Files{"em5/audio/test/none.ogg 1 1 1 5 50"}, calls("qsf::AudioProxy::play"));
}

TEST_F(PlayAudioActionTest, TheMixerSetsItsVolume) {
  qsf::UniqueInstance<qsf::AudioSettingsGroup>()->setMixerChannelSFXVolume(0.25f);
  push<PlayAudioAction>(person).init(BEEP, &person, true, false, false);
  runSeconds(0.1);
  EXPECT_EQ(Files{std::string(BEEP) + " 0 1 0.25 5 50"}, calls("qsf::AudioProxy::play"));
}

TEST_F(PlayAudioActionTest, ItTellsWhatItWasGiven) {
  push<PlayAudioAction>(person).init(BEEP, &person, true, false, true, qsf::Time::fromSeconds(2), true);
  EXPECT_EQ((qsf::action::Description{
                {"file", BEEP}, {"target", "100"}, {"spatial", "1"}, {"loop", "0"}, {"wait", "1"}, {"time", "2"}}),
            actionsOf(person).getCurrentAction()->describe());
  runSeconds(0.1);
  EXPECT_EQ(Files{"1"}, calls("em5::AudioProxy::synchronizeWithMultiplay"));
}

}
