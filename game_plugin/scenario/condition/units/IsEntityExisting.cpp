#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"

#include <algorithm>

namespace script {

struct IsEntityExistingCondition : DefaultCondition {
  Argument entityList;
};

static void read(IsEntityExistingCondition& condition, const Tokens& tokens) {
  condition.entityList = readStringParameter(tokens, 1, "no_list", "EntityList",
                                             "Entity or entityList, which should be checked to be on the map");
}

static bool test(const IsEntityExistingCondition& condition, ScenarioHandler& handler) {
  const EntityIds ids = handler.ResolveEntityList(condition.entityList);
  return std::all_of(ids.begin(), ids.end(), [](std::uint64_t id) { return findEntity(id) != nullptr; });
}

CONDITION(IsEntityExisting, "Misc", "Check, if an entity is existing or not")

}
