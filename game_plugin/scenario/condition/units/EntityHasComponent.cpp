#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"

namespace script {

struct EntityHasComponentCondition : DefaultCondition {
  Argument entityList;
  Argument component;
  Argument entityListOut;
};

static void read(EntityHasComponentCondition& condition, const Tokens& tokens) {
  condition.entityList =
      readStringParameter(tokens, 1, "no_list", "EntityList", "Entity or entityList, which should be checked");
  // The default is misspelt and finds no component; kept, as it is what the reference tells authors.
  condition.component =
      readStringParameter(tokens, 2, "qsf::MetatDataComponent", "Component", "Which component should be searched");
  condition.entityListOut =
      readStringParameter(tokens, 3, "list_out", "EntityList[out]", "All units which meet the criteria");
}

static bool test(const EntityHasComponentCondition& condition, ScenarioHandler& handler) {
  const qsf::StringHash componentId(handler.ResolveString(condition.component));
  return filterIntoList(handler, condition.entityList, condition.entityListOut,
                        [=](const qsf::Entity& entity) { return entity.getComponentById(componentId) != nullptr; });
}

CONDITION(EntityHasComponent, "Units", "Check if entity or entityList has certain component")

}
