// Random plans of the actions that scripts push: whatever becomes of who carries them out, they end or wait.
#include "game_plugin/action/ModuleClasses.h"
#include "game_plugin/action/PlayLocalSoundWithCustomVolume.h"
#include "game_plugin/action/UseEquipmentAction.h"
#include "game_plugin/action/WaitUntilPropertyIsValue.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/action/WaitAction.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/message/MessageSystem.h"
#include "tests/support/RandomPlansWorld.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cstdlib>

namespace {

using Step = RandomPlansWorld::Step;

class RandomScriptWorld final : public RandomPlansWorld {
public:
  RandomScriptWorld() : RandomPlansWorld({"firefighter", "fire_engine", "marker", "house"}) {}

  std::uint64_t getMessageCount() {
    return mHost.getMessageSystem().getEmittedCount(script::UseEquipmentAction::MESSAGE);
  }

private:
  static constexpr const char* ANIMATIONS[] = {"em5/animation/test/nod,2",
                                               "",
                                               "none",
                                               "em5/animation/test/nod,0",
                                               "em5/animation/test/nod em5/animation/test/wave,3 none",
                                               "em5/animation/test/nod,x , ,,"};
  static constexpr const char* SOUNDS[] = {"em5/audio/test/beep", "em5/audio/test/long.ogg", "", "none.ogg"};
  static constexpr const char* COMPONENTS[] = {"qsf::TransformComponent", "em5::VehicleComponent",
                                               "qsf::ActionComponent", "none"};
  static constexpr const char* PROPERTIES[] = {"Position", "SirenEnabled", "Active", "none"};
  static constexpr const char* VALUES[] = {"1 2 3", "1", "0", ""};

  /// A property that nobody sets any more is waited for as well.
  bool waitsForGood(const qsf::Action& current) override {
    return current.getTypeName() == "script::WaitUntilPropertyIsValue" || RandomPlansWorld::waitsForGood(current);
  }

  void disturb(qsf::Entity& entity, qsf::Entity& other, unsigned int what) override {
    auto& actions = *entity.getOrCreateComponent<qsf::ActionComponent>();
    switch (what % 6) {
    case 0:
      return actions.clearPlan();
    case 1:
      return actions.removeAction(actions.getCurrentAction());
    case 2:
      return mMap.destroyObjectById(entity.getId());
    case 3:
      return entity.getComponent<qsf::TransformComponent>()->setPosition(
          other.getComponent<qsf::TransformComponent>()->getPosition() + glm::vec3(7, 0, 0));
    case 4:
      return entity.destroyComponentById(qsf::ActionComponent::COMPONENT_ID);
    default:
      return entity.destroyComponentById("qsf::MeshAnimationComponent");
    }
  }

  void push(qsf::Entity& entity, qsf::Entity& other, unsigned int what, unsigned int number) override {
    auto& actions = *entity.getOrCreateComponent<qsf::ActionComponent>();
    const auto mode = static_cast<qsf::action::InsertionMode>(number % 4);
    const bool flag = number & 8;
    switch (what % 6) {
    case 0:
      return actions.pushAction<qsf::WaitAction>(number, mode).init(qsf::Time::fromSeconds(number * 0.02));
    case 1:
    case 2:
      return actions.pushAction<script::UseEquipmentAction>(number, mode)
          .init(other.getId(), ANIMATIONS[number % std::size(ANIMATIONS)], "axe", number & 16 ? 3.0f : 0.0f,
                static_cast<float>(number % 13), flag, "em5::GetEquipmentTargetPointProvider");
    case 3:
      return actions.pushAction<script::PlayLocalSoundWithCustomVolume>(number, mode)
          .init(SOUNDS[number / 4 % 4], 1, 5, 50, flag, number & 32);
    case 4:
      return actions.pushAction<script::SetCampPropertyAction>(number, mode)
          .init(other.getId(), COMPONENTS[number / 4 % 4], PROPERTIES[number / 16 % 4], VALUES[number / 64 % 4]);
    default:
      return actions.pushAction<script::WaitUntilPropertyIsValue>(number, mode)
          .init(COMPONENTS[number / 4 % 4], PROPERTIES[number / 16 % 4], VALUES[number / 64 % 4]);
    }
  }

  ModuleClasses mClasses;
};

/// Seeds are fixed so that a failure comes again; RC_PARAMS in the environment asks for others.
TEST(RandomScriptPlans, EndOrWaitAndLeaveNothingBehind) {
  setenv("RC_PARAMS", "seed=20250102 max_success=150 max_size=100", 0);
  const std::size_t living = qsf::Action::getNumberOfLiving();
  std::uint64_t messages = 0;
  EXPECT_TRUE(rc::check("random plans of the module's actions end or wait", [&](const std::vector<Step>& steps) {
    {
      RandomScriptWorld world;
      for (const Step& step : steps)
        world.perform(step);
      world.finish();
      RC_ASSERT(world.isOver());
      RC_ASSERT(world.getFaultCount() == 0u);
      messages += world.getMessageCount();
    }
    RC_ASSERT(qsf::Action::getNumberOfLiving() == living);
  }));
  EXPECT_GT(messages, 100u) << "hardly anything was done";
}

}
