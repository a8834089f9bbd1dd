#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/actions/Plans.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/WorldHints.h"

#include "em5/component/BuildingComponent.h"
#include "em5/map/EntityHelper.h"

#include <algorithm>
#include <limits>

namespace script {

struct SetupBurningBuildingWithTrappedPersonsEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The fourth parameter is the largest number of both kinds: of healthy and of injured persons.",
      "The sixth parameter is read by nothing.",
      "The fourth and the sixth parameter have no default: a line without them makes the script unusable.",
      "Without the event the first building has its persons, but nothing burns.",
  };

  Argument entityList;
  Argument minimumHealthy;
  Argument maximumOfBoth;
  Argument minimumInjured;
  Argument maximumTime;
  Argument uniqueId;
};

static void read(SetupBurningBuildingWithTrappedPersonsEffect& effect, ParameterReader& in) {
  effect.uniqueId = in.number(1, "-1", "UniqueId", "");
  effect.entityList = in.list(2, "empty_list", "EntityList", "A list of all effected buildings");
  effect.minimumHealthy = in.number(3, "1", "How many healthy persons shall be inside", "");
  effect.maximumOfBoth = in.number(4, "1", "", "");
  effect.minimumInjured = in.number(5, "1", "How many injured people shall be inside", "");
  in.unused(6, "1", "", "");
  effect.maximumTime = in.number(7, "300", "The max amount of time which your rescue should take", "");
}

static std::uint16_t resolveNumberOfPersons(ScenarioHandler& handler, const Argument& number) {
  constexpr int LARGEST = std::numeric_limits<std::uint16_t>::max();
  return static_cast<std::uint16_t>(std::clamp(truncateToInt(handler.ResolveFloat(number)), 0, LARGEST));
}

static void trapPersons(const SetupBurningBuildingWithTrappedPersonsEffect& effect, ScenarioHandler& handler,
                        em5::BuildingComponent& building) {
  const qsf::Time maximumTime = resolveTime(handler, effect.maximumTime);
  const std::uint16_t minimumHealthy = resolveNumberOfPersons(handler, effect.minimumHealthy);
  const std::uint16_t maximumHealthy = resolveNumberOfPersons(handler, effect.maximumOfBoth);
  const std::uint16_t minimumInjured = resolveNumberOfPersons(handler, effect.minimumInjured);
  // Kept: the same maximum again, though the sixth parameter looks like that of the injured.
  const std::uint16_t maximumInjured = resolveNumberOfPersons(handler, effect.maximumOfBoth);
  building.setupTrappedInjuredPersons(minimumHealthy, maximumHealthy, minimumInjured, maximumInjured, true, true,
                                      maximumTime);
}

static void run(const SetupBurningBuildingWithTrappedPersonsEffect& effect, ScenarioHandler& handler) {
  if (hints::isOn()) hintLiteralIds(effect.entityList);
  const EntityIds ids = handler.ResolveEntityList(effect.entityList);
  for (const std::uint64_t id : ids) {
    qsf::Entity* entity = findEntity(id);
    auto* building = entity ? entity->getComponent<em5::BuildingComponent>() : nullptr;
    if (!building) continue;
    trapPersons(effect, handler, *building);
    ScenarioEvent* event = findScenarioEvent(handler, effect.uniqueId);
    if (!event) return;
    em5::EntityHelper(*entity).startFire(event);
  }
}

EFFECT(SetupBurningBuildingWithTrappedPersons, "Events",
       "Set a building on fire which has trapped entities inside. Make sure your entity has a building component and a "
       "main door. All required Objectives are assigned automaticly to script::ScenarioEvent and the building will be "
       "set automaticly on fire")

}
