// What the script tests of the effects can't see of the actions.
#include "game_plugin/action/ModuleClasses.h"
#include "game_plugin/action/PlayLocalSoundWithCustomVolume.h"
#include "game_plugin/action/UseEquipmentAction.h"
#include "game_plugin/action/WaitUntilPropertyIsValue.h"
#include "host/em5/action/ActionTest.h"
#include "qsf/audio/AudioSettingsGroup.h"
#include "qsf/component/MovableComponent.h"
#include "qsf/message/MessageProxy.h"

using namespace script;

namespace {

class ScriptActionsTest : public host_test::ActionTest {
protected:
  static std::string tag(const camp::Class& campClass, const char* name) {
    return campClass.tag(name).to<std::string>();
  }

  ModuleClasses classes;
  qsf::Entity& person = make(100, "firefighter");
};

TEST_F(ScriptActionsTest, TellTheirTargetHowFarTheyAre) {
  make(101, "tree", {0, 0, -5});
  std::vector<std::string> heard;
  qsf::MessageProxy proxy;
  proxy.registerAt(qsf::StringHash("script::UseEquipment"), [&](const qsf::MessageParameters& parameters) {
    std::string text;
    EXPECT_TRUE(parameters.getParameter("Message", text));
    heard.push_back(std::to_string(parameters.getFilter(1)) + " " + std::to_string(parameters.getFilter(2)) + " " +
                    text);
  });
  push<UseEquipmentAction>(person).init(101, "em5/animation/test/nod", "axe", 0, 10, true, "");
  EXPECT_GT(framesUntilIdle(person), 10);
  EXPECT_EQ(heard, (std::vector<std::string>{"100 101 axe0", "100 101 axe1", "100 101 axe2", "100 101 axe3"}));
}

TEST_F(ScriptActionsTest, CarryTheTagsThatEditorsShow) {
  EXPECT_EQ(tag(camp::classByType<UseEquipmentAction>(), "Name"), "script::UseEquipmentAction");
  EXPECT_EQ(tag(camp::classByType<SetCampPropertyAction>(), "Description"), "script::UseEquipmentAction");
  EXPECT_EQ(tag(camp::classByType<WaitUntilPropertyIsValue>(), "Name"), "script::UseEquipmentAction");
  EXPECT_EQ(tag(camp::classByType<PlayLocalSoundWithCustomVolume>(), "Name"), "script::PlayLocalSoundWithCustomVolume");
}

TEST_F(ScriptActionsTest, ASoundIsAsLoudAsTheMixerLetsIt) {
  qsf::UniqueInstance<qsf::AudioSettingsGroup>()->setMixerChannelSFXVolume(0.5f);
  push<PlayLocalSoundWithCustomVolume>(person).init("em5/audio/test/beep", 2, 3, 40, false, false);
  runSeconds(0.1);
  EXPECT_EQ(calls("qsf::AudioProxy::play"), std::vector<std::string>{"em5/audio/test/beep.ogg 0 1 0.6 3 40"});
}

TEST_F(ScriptActionsTest, ASoundThatNeverBeganIsStoppedWithItsAction) {
  push<PlayLocalSoundWithCustomVolume>(person).init("em5/audio/test/beep", 1, 3, 40, false, true);
  actionsOf(person).clearPlan();
  runSeconds(0.05);
  EXPECT_EQ(calls("qsf::AudioProxy::play").size(), 0u);
  EXPECT_EQ(calls("qsf::AudioProxy::stop").size(), 1u);
}

TEST_F(ScriptActionsTest, APropertyMayBeAnotherEntitys) {
  qsf::Entity& other = make(101, "marker");
  push<SetCampPropertyAction>(person).init(101, "qsf::MetadataComponent", "Name", "other");
  push<SetCampPropertyAction>(person).init(999, "qsf::MetadataComponent", "Name", "nobody");
  EXPECT_GE(framesUntilIdle(person), 0);
  EXPECT_EQ(other.getComponent<qsf::MetadataComponent>()->getName(), "other");
  EXPECT_EQ(person.getComponent<qsf::MetadataComponent>()->getName(), "");
}

TEST_F(ScriptActionsTest, AreMadeByTheNamesThatPlansKnow) {
  const auto action = actionsOf(person).createActionById("move::SetCampPropertyAction");
  ASSERT_NE(action, nullptr);
  EXPECT_EQ(action->getTypeName(), "script::SetCampPropertyAction");
  EXPECT_EQ(action->getTypeId(), qsf::StringHash("move::SetCampPropertyAction"));
}

TEST_F(ScriptActionsTest, WaitForAPropertyByTheHashOfItsName) {
  push<WaitUntilPropertyIsValue>(person).init("qsf::MovableComponent", "Speed", "7");
  EXPECT_EQ(framesUntilIdle(person, 20), -1);
  person.getComponent<qsf::MovableComponent>()->setPropertyByString("Speed", "7");
  EXPECT_EQ(framesUntilIdle(person, 20), 1);
}

}
