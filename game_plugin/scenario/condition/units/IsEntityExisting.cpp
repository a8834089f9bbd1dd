#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"

#include <algorithm>

namespace script {

struct IsEntityExistingCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "It holds for an empty list.",
  };

  Argument entityList;
};

static void read(IsEntityExistingCondition& condition, ParameterReader& in) {
  condition.entityList =
      in.list(1, "no_list", "EntityList", "Entity or entityList, which should be checked to be on the map");
}

static bool test(const IsEntityExistingCondition& condition, ScenarioHandler& handler) {
  const EntityIds ids = handler.ResolveEntityList(condition.entityList);
  return std::all_of(ids.begin(), ids.end(), [](std::uint64_t id) { return findEntity(id) != nullptr; });
}

CONDITION(IsEntityExisting, "Misc", "Check, if an entity is existing or not")

}
