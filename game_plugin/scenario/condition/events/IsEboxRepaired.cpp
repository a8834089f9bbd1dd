#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"

#include "em5/component/EboxComponent.h"

#include <algorithm>

namespace script {

struct IsEboxRepairedCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "True for an empty list, for ids without an entity, and for entities that are no box.",
      "Of several boxes all have to be repaired.",
  };

  Argument entityList;
};

static void read(IsEboxRepairedCondition& condition, ParameterReader& in) {
  condition.entityList = in.list(1, "no_list", "EntityList", "");
}

static bool test(const IsEboxRepairedCondition& condition, ScenarioHandler& handler) {
  const EntityIds ids = handler.ResolveEntityList(condition.entityList);
  return std::ranges::none_of(ids, [](std::uint64_t id) {
    const qsf::Entity* entity = findEntity(id);
    const auto* ebox = entity ? entity->getComponent<em5::EboxComponent>() : nullptr;
    return ebox && (ebox->isDefect() || ebox->isBurning());
  });
}

CONDITION(IsEboxRepaired, "Events",
          "Looks if a ebox is neither burning nor defect. Notice that the EntityList should only contain one unit (may "
          "be changed in the future)")

}
