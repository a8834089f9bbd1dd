#include "em5/action/ChangeMaskAction.h"
#include "em5/action/EnterVehicleAction.h"
#include "em5/action/GetEquipmentAction.h"
#include "em5/action/MoveAction.h"
#include "em5/action/PlayAnimationAction.h"
#include "em5/action/PlayAudioAction.h"
#include "em5/action/SpeakToPersonAction.h"
#include "em5/action/TurnToAction.h"
#include "em5/base/GameLayer.h"
#include "em5/component/VehicleComponent.h"
#include "em5/logic/TargetPointProviders.h"
#include "em5/map/EntityHelper.h"
#include "qsf/Qsf.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/action/WaitAction.h"
#include "qsf/ai/ReachObjectGoal.h"
#include "qsf/ai/ReachSinglePointGoal.h"
#include "qsf/asset/Project.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/game/InventoryComponent.h"
#include "qsf/job/JobManagers.h"
#include "qsf/log/FaultCounter.h"
#include "qsf/map/Map.h"
#include "qsf/reflection/PropertyText.h"
#include "tests/support/Paths.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cstdlib>
#include <tuple>

namespace action = qsf::action;

namespace {

/// What is done, to whom, with whom, and a number.
using Step = std::tuple<std::uint8_t, std::uint8_t, std::uint8_t, std::uint8_t>;

/// A world of its own in which random steps are carried out.
class RandomWorld {
public:
  RandomWorld() {
    em5::addGameLayer(mHost);
    mHost.getProjectManager().registerSingleProjectFromFileSystem(paths::baseProject());
    mMap.startup();
    std::uint64_t id = FIRST_ID;
    for (const char* prefab : {"firefighter", "civilian", "fire_engine", "helicopter", "marker", "house"})
      mMap.createObjectByLocalPrefabAssetId(qsf::StringHash(std::string("em5/prefab/test/") + prefab), id++);
    mMap.getEntityById(FIRST_ID + 2)
        ->getOrCreateComponent<qsf::game::InventoryComponent>()
        ->setItems({"em5/prefab/test/axe"});
  }

  void perform(const Step& step) {
    const auto [what, who, whom, number] = step;
    qsf::Entity* entity = pick(who);
    qsf::Entity* other = pick(whom);
    if (what % 3 == 0)
      runFrames(number % 40);
    else if (!entity || !other)
      return;
    else if (what % 3 == 1 && number % 4 == 0)
      disturb(*entity, *other, what / 3);
    else
      push(*entity, *other, what / 3, number);
  }

  /// Lets everything go on that rests, and runs as long as the longest random plan can take.
  void finish() {
    mHost.getJobManagers().setPaused(false);
    for (qsf::Entity* entity : mMap.getEntities())
      if (auto* actions = entity->getComponent<qsf::ActionComponent>()) actions->setActive(true);
    for (int i = 0; i < 600 && !isOver(); ++i)
      runFrames(20);
  }
  /// Every plan is empty or waits for good.
  bool isOver() {
    for (qsf::Entity* entity : mMap.getEntities()) {
      const auto* actions = entity->getComponent<qsf::ActionComponent>();
      const qsf::Action* current = actions ? actions->getCurrentAction() : nullptr;
      if (current && !isEndless(*current)) return false;
    }
    return true;
  }
  std::string tellState() {
    std::string state;
    for (qsf::Entity* entity : mMap.getEntities()) {
      state += std::to_string(entity->getId()) + " at " + qsf::toText(em5::EntityHelper(*entity).getPosition());
      if (const auto* actions = entity->getComponent<qsf::ActionComponent>())
        for (const qsf::Action* entry : actions->getPlan().getActions())
          state += " " + entry->getTypeName() + " (" + std::to_string(entry->getPriority()) + ")";
      state += "\n";
    }
    return state;
  }
  std::uint64_t getFaultCount() { return mHost.getFaultCounter().getCount(); }

private:
  static constexpr std::uint64_t FIRST_ID = 100;
  static constexpr const char* ANIMATIONS[] = {"em5/animation/test/wave", "em5/animation/test/nod", "em5/none/at/all"};
  static constexpr const char* SOUNDS[] = {"em5/audio/test/beep.ogg", "em5/audio/test/long.ogg", "none.ogg"};

  qsf::Entity* pick(unsigned int number) { return mMap.getEntityById(FIRST_ID + number % 6); }

  void runFrames(int frames) {
    for (; frames > 0; --frames) {
      mHost.getJobManagers().runFrame(qsf::Time::fromMicroseconds(100'000));
      mMap.collectGarbage();
    }
  }

  static bool isEndless(const qsf::Action& current) {
    if (dynamic_cast<const qsf::IdleAction*>(&current)) return true;
    bool isLooped = false, isWaited = false;
    for (const auto& [key, value] : current.describe()) {
      isLooped = isLooped || (key == "loop" && value == "1");
      isWaited = isWaited || (key == "wait" && value == "1");
    }
    return isLooped && isWaited;
  }

  void disturb(qsf::Entity& entity, qsf::Entity& other, unsigned int what) {
    auto& actions = *entity.getOrCreateComponent<qsf::ActionComponent>();
    switch (what % 9) {
    case 0:
      return actions.clearPlan();
    case 1:
      return actions.getPlan().isEmpty() ? void() : actions.removeAction(actions.getPlan().getActions().back());
    case 2:
      return mMap.destroyObjectById(entity.getId());
    case 3:
      return actions.setActive(!actions.isActive());
    case 4:
      return entity.getComponent<qsf::TransformComponent>()->setPosition(em5::EntityHelper(other).getPosition() +
                                                                         glm::vec3(7, 0, 0));
    case 5:
      return em5::EntityHelper(entity).unlinkFromParent();
    case 6:
      if (auto* vehicle = entity.getComponent<em5::VehicleComponent>()) vehicle->setDamage(vehicle->getDamage() + 0.5f);
      return;
    case 7:
      return entity.destroyComponentById(qsf::ActionComponent::COMPONENT_ID);
    default:
      return mHost.getJobManagers().setPaused(!mHost.getJobManagers().isPaused());
    }
  }

  void push(qsf::Entity& entity, qsf::Entity& other, unsigned int what, unsigned int number) {
    auto& actions = *entity.getOrCreateComponent<qsf::ActionComponent>();
    const auto mode = static_cast<action::InsertionMode>(number % 4);
    const unsigned int priority = number;
    const bool flag = number & 8;
    switch (what % 14) {
    case 0:
      return actions.pushAction<qsf::WaitAction>(priority, mode).init(qsf::Time::fromSeconds(number * 0.02));
    case 1:
      return actions.pushAction<em5::MoveAction>(priority, mode)
          .init(std::make_unique<qsf::ai::ReachSinglePointGoal>(
                    qsf::logic::TargetPoint({number % 40 - 20.0f, 0, number % 17})),
                number % 13);
    case 2:
    case 3:
      return actions.pushAction<em5::MoveAction>(priority, mode)
          .init(std::make_unique<qsf::ai::ReachObjectGoal>(entity, other,
                                                           flag ? em5::EnterVehicleTargetPointProvider::TARGET_POINT_ID
                                                                : em5::GetEquipmentTargetPointProvider::TARGET_POINT_ID,
                                                           what % 14 == 2));
    case 4:
      return actions.pushAction<em5::TurnToAction>(priority, mode).init(other, flag);
    case 5:
      return actions.pushAction<em5::PlayAnimationAction>(priority, mode)
          .init(ANIMATIONS[number % 3], flag, number & 16, number & 32);
    case 6:
      return actions.pushAction<em5::PlayAudioAction>(priority, mode)
          .init(SOUNDS[number % 3], &other, true, flag, number & 16);
    case 7:
      return actions.pushAction<em5::EnterVehicleAction>(priority, mode).init(other, static_cast<int>(number % 3));
    case 8:
      return actions.pushAction<em5::GetEquipmentAction>(priority, mode).init(other, "axe");
    case 9:
      return actions.pushAction<em5::GetEquipmentAction>(priority, mode).init(flag ? "axe" : "hose", -1);
    case 10:
      return actions.pushAction<em5::SpeakToPersonAction>(priority, mode).init(other);
    case 11:
      return flag ? void(actions.pushAction<qsf::IdleAction>(priority, mode))
                  : actions.pushAction<em5::ChangeMaskAction>(priority, mode).init(number & 16);
    default: {
      constexpr const char* NAMES[] = {"em5::MoveAction",          "em5::TurnToAction",       "em5::PlayAudioAction",
                                       "em5::PlayAnimationAction", "em5::EnterVehicleAction", "em5::GetEquipmentAction",
                                       "em5::FullBrakeAction",     "em5::ChangeMaskAction",   "qsf::WaitAction"};
      actions.pushActionById(NAMES[number % 9], priority, mode);
    }
    }
  }

  qsf::Qsf mHost;
  qsf::Map& mMap = mHost.getMainMap();
};

/// Seeds are fixed so that a failure comes again; RC_PARAMS in the environment asks for others.
class RandomPlansTest : public testing::Test {
protected:
  RandomPlansTest() { setenv("RC_PARAMS", "seed=20250101 max_success=200 max_size=120", 0); }
};

TEST_F(RandomPlansTest, EndOrWaitAndLeaveNothingBehind) {
  const std::size_t living = qsf::Action::getNumberOfLiving();
  std::size_t endless = 0;
  const bool holds = rc::check("random plans of random actions end or wait", [&](const std::vector<Step>& steps) {
    {
      RandomWorld world;
      for (const Step& step : steps)
        world.perform(step);
      world.finish();
      if (!world.isOver()) RC_FAIL(world.tellState());
      RC_ASSERT(world.getFaultCount() == 0u);
      if (world.tellState().find(" (") != std::string::npos) ++endless;
    }
    RC_ASSERT(qsf::Action::getNumberOfLiving() == living);
  });
  EXPECT_TRUE(holds);
  EXPECT_GT(endless, 0u); // both ways out are met
}

TEST_F(RandomPlansTest, GoTheSameWayEachTime) {
  EXPECT_TRUE(rc::check("the same steps lead to the same world", [](const std::vector<Step>& steps) {
    const auto play = [&] {
      RandomWorld world;
      std::string states;
      for (const Step& step : steps) {
        world.perform(step);
        states += world.tellState();
      }
      return states;
    };
    RC_ASSERT(play() == play());
  }));
}

}
