#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct EntityHasComponentCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "The default of Component is misspelt and finds no component.",
  };

  Argument entityList;
  Argument component;
  Argument entityListOut;
};

static void read(EntityHasComponentCondition& condition, ParameterReader& in) {
  condition.entityList = in.list(1, "no_list", "EntityList", "Entity or entityList, which should be checked");
  condition.component = in.component(2, "qsf::MetatDataComponent", "Component", "Which component should be searched");
  condition.entityListOut = in.listOut(3, "list_out", "EntityList[out]", "All units which meet the criteria");
}

static bool test(const EntityHasComponentCondition& condition, ScenarioHandler& handler) {
  const std::string& className = handler.ResolveString(condition.component);
  if (hints::isOn()) hintUnknownComponent(className);
  const qsf::StringHash componentId(className);
  return filterIntoList(handler, condition.entityList, condition.entityListOut,
                        [=](const qsf::Entity& entity) { return entity.getComponentById(componentId) != nullptr; });
}

CONDITION(EntityHasComponent, "Units", "Check if entity or entityList has certain component")

}
