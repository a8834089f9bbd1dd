#include "game_plugin/component/EventTargetComponent.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/actions/Plans.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/WorldHints.h"

#include "em5/action/PlayAnimationAction.h"
#include "em5/component/CallForRescueComponent.h"
#include "em5/component/EventIdComponent.h"
#include "em5/component/HealthComponent.h"
#include "em5/component/MoveToDespawnComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/component/StatusOverlayComponent.h"
#include "em5/logic/PersonJumpOutOfWindowLogic.h"
#include "em5/map/AnimationHelper.h"
#include "em5/map/MapHelper.h"
#include "em5/spawn/SpawnPoolManager.h"
#include "qsf/Qsf.h"
#include "qsf/ai/NavigationComponent.h"
#include "qsf/asset/AssetProxy.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/game/HiddenComponent.h"
#include "qsf/log/ErrorHandling.h"
#include "qsf/logic/GameLogicComponent.h"

namespace script {

struct CreatePersonThatNeedToBeResucedByDLKEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Without the event or a place the person stays where its prefab puts it, and nobody has to rescue it.",
      "The person stands at the first entity of the list that exists.",
  };

  Argument location;
  Argument uniqueId;
  bool injurePerson = true;
  Argument animation;
  Argument timeUntilJump;
};

static void read(CreatePersonThatNeedToBeResucedByDLKEffect& effect, ParameterReader& in) {
  effect.location =
      in.list(1, "no_entitylist", "Location Entity", "A person will be spawned and transformed to this location");
  effect.uniqueId = in.number(2, "-1", "UniqueId", "EventId");
  effect.injurePerson = in.flag(3, true, "InjurePerson",
                                "If true, the person will be injured after the dlk has rescued it. When the person "
                                "jumps, it will always be injured with broken legs");
  effect.animation = in.of(ParameterRole::ANIMATION, 4, "", "Animation", "Local Asset Name of the Animation.");
  effect.timeUntilJump = in.number(5, "300", "TimeUntilPersonJumps",
                                   "If > 0, the person will jump after the amount of seconds has been passed");
}

namespace {

constexpr int PART_OF_EVENT = 1;
constexpr unsigned int WAVING_PRIORITY = 100;

/// A missing component that the host should have made is told, and the effect goes on without it.
template <class T> T* getOrCreate(qsf::Entity& entity, const char* complaint) {
  T* component = entity.getOrCreateComponent<T>();
  if (!component) {
    qsf::ErrorHandling::printToLog(complaint, 1);
    qsf::ErrorHandling::handleBreakOnAssert(__FILE__, __LINE__, __func__);
  }
  return component;
}

template <class T> void deactivate(qsf::Entity& entity) {
  if (auto* component = entity.getComponent<T>()) component->setActive(false);
}

qsf::Entity* findFirst(ScenarioHandler& handler, const Argument& list) {
  if (hints::isOn()) hintLiteralIds(list);
  const EntityIds ids = handler.ResolveEntityList(list);
  for (const std::uint64_t id : ids)
    if (qsf::Entity* entity = findEntity(id)) return entity;
  return nullptr;
}

void joinEvent(qsf::Entity& person, const ScenarioEvent& event) {
  person.getOrCreateComponent<em5::EventIdComponent>()->addToEvent(event, PART_OF_EVENT);
}

void placeAt(qsf::Entity& person, const qsf::Entity& location) {
  const auto* place = location.getComponent<qsf::TransformComponent>();
  person.getOrCreateComponent<qsf::TransformComponent>()->setPositionAndRotation(
      positionOf(location), place ? place->getRotation() : glm::quat(1, 0, 0, 0));
  person.getOrCreateComponent<qsf::game::HiddenComponent>()->setHidden(false);
}

void callForLadder(qsf::Entity& person) {
  deactivate<em5::MoveToDespawnComponent>(person);
  deactivate<qsf::ai::NavigationComponent>(person);
  em5::StatusOverlayComponent::showIcon(person, em5::STATUS_ICON_CONDITION_RESCUE_DLK, true);
  person.getOrCreateComponent<em5::CallForRescueComponent>()->setCanRescuedByDLK(true);
}

void addObjective(qsf::Entity& person, ScenarioEvent& event, bool injure) {
  person.getOrCreateComponent<EventTargetComponent>()->add(injure ? "rescue_dlk_and_injure" : "rescue_dlk");
  joinEvent(person, event);
  em5::Objective& objective = event.getOrCreateObjective("rescue_dlk");
  objective.setText("EM5_EVENTOBJECTIVE_04");
  objective.increaseNeededNumber(&person);
}

void playAnimation(qsf::Entity& person, const std::string& literal) {
  constexpr bool WAIT = true;
  constexpr bool LOOP = true;
  constexpr bool REVERSE = false;
  const std::string animation = literal.empty() ? em5::AnimationHelper::getAnimationWaveHelpFromWindow() : literal;
  if (hints::isOn() && !qsf::AssetProxy(animation).getAsset()) hintMissingAsset(animation);
  qsf::ActionComponent& actions = actionsOf(person);
  actions.clearPlan();
  actions.pushAction<em5::PlayAnimationAction>(WAVING_PRIORITY)
      .init(animation, WAIT, LOOP, REVERSE, qsf::Time::ZERO, std::nullopt);
}

}

static void run(const CreatePersonThatNeedToBeResucedByDLKEffect& effect, ScenarioHandler& handler) {
  const std::string prefab = em5::SpawnPoolManager::getRandomNameFromSpawnPool(em5::assets::SPAWNPOOL_DEFAULT_PERSON);
  if (prefab.empty()) return;
  qsf::Entity* person = em5::MapHelper(qsf::getMainMap()).createObjectByLocalPrefabAssetId(qsf::StringHash(prefab));
  ScenarioEvent* event = findScenarioEvent(handler, effect.uniqueId);
  const qsf::Entity* location = findFirst(handler, effect.location);
  if (!event || !location || !person) return;
  if (person->getComponent<em5::PersonComponent>()) joinEvent(*person, *event);
  if (auto* logics = getOrCreate<qsf::GameLogicComponent>(*person, "There was no game logic created"))
    logics->createGameLogicByTypeId(em5::PersonJumpOutOfWindowLogic::GAME_LOGIC_ID);
  placeAt(*person, *location);
  getOrCreate<em5::HealthComponent>(*person, "There was no health component created");
  callForLadder(*person);
  addObjective(*person, *event, effect.injurePerson);
  playAnimation(*person, effect.animation.text());
  const float seconds = handler.ResolveFloat(effect.timeUntilJump);
  if (seconds > 0) event->addPendingJump(seconds, person->getId());
}

EFFECT(CreatePersonThatNeedToBeResucedByDLK, "Events",
       "Create a person that has to be rescued. A time can be set when the person jumps. This effect is independend "
       "from burning buildings")

}
