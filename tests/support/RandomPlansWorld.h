#pragma once
#include "em5/base/GameLayer.h"
#include "em5/map/EntityHelper.h"
#include "qsf/Qsf.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/asset/Project.h"
#include "qsf/job/JobManagers.h"
#include "qsf/log/FaultCounter.h"
#include "qsf/map/Map.h"
#include "qsf/reflection/PropertyText.h"
#include "tests/support/Paths.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <tuple>

/// A world of its own in which random steps are carried out: time passes, entities are disturbed, and actions are put
/// on their plans. Who derives from it says which disturbances and actions there are.
class RandomPlansWorld {
public:
  /// What is done, to whom, with whom, and a number.
  using Step = std::tuple<std::uint8_t, std::uint8_t, std::uint8_t, std::uint8_t>;

  virtual ~RandomPlansWorld() = default;

  void perform(const Step& step) {
    const auto [what, who, whom, number] = step;
    qsf::Entity* entity = pick(who);
    qsf::Entity* other = pick(whom);
    if (what % 3 == 0 || !entity || !other)
      runFrames(number % 40);
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
    for (int i = 0; i < 1000 && !isOver(); ++i)
      runFrames(20);
  }

  /// Every plan is empty or waits for good.
  bool isOver() {
    for (qsf::Entity* entity : mMap.getEntities()) {
      const auto* actions = entity->getComponent<qsf::ActionComponent>();
      const qsf::Action* current = actions ? actions->getCurrentAction() : nullptr;
      if (current && !waitsForGood(*current)) return false;
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

protected:
  static constexpr std::uint64_t FIRST_ID = 100;

  /// With one entity each of these prefabs of the base project, the first with FIRST_ID.
  explicit RandomPlansWorld(std::initializer_list<const char*> prefabs)
      : mNumberOfEntities(static_cast<unsigned int>(prefabs.size())) {
    em5::addGameLayer(mHost);
    mHost.getProjectManager().registerSingleProjectFromFileSystem(paths::baseProject());
    mMap.startup();
    std::uint64_t id = FIRST_ID;
    for (const char* prefab : prefabs)
      mMap.createObjectByLocalPrefabAssetId(qsf::StringHash(std::string("em5/prefab/test/") + prefab), id++);
  }

  virtual void disturb(qsf::Entity& entity, qsf::Entity& other, unsigned int what) = 0;
  virtual void push(qsf::Entity& entity, qsf::Entity& other, unsigned int what, unsigned int number) = 0;

  /// What is played again and again, and waited for, never ends by itself.
  virtual bool waitsForGood(const qsf::Action& current) {
    bool isLooped = false, isWaited = false;
    for (const auto& [key, value] : current.describe()) {
      isLooped = isLooped || (key == "loop" && value == "1");
      isWaited = isWaited || (key == "wait" && value == "1");
    }
    return isLooped && isWaited;
  }

  qsf::Qsf mHost;
  qsf::Map& mMap = mHost.getMainMap();

private:
  qsf::Entity* pick(unsigned int number) { return mMap.getEntityById(FIRST_ID + number % mNumberOfEntities); }

  void runFrames(int frames) {
    for (; frames > 0; --frames) {
      mHost.getJobManagers().runFrame(qsf::Time::fromMicroseconds(100'000));
      mMap.collectGarbage();
    }
  }

  unsigned int mNumberOfEntities;
};
