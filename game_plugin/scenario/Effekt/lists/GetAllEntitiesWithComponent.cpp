#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/Qsf.h"
#include "qsf/map/ComponentMapQuery.h"

namespace script {

struct GetAllEntitiesWithComponentEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The list is emptied even if no component is named.",
  };

  Argument entityList;
  Argument component;
  bool clearList = true;
};

static void read(GetAllEntitiesWithComponentEffect& effect, ParameterReader& in) {
  effect.entityList = in.listOut(1, "no_list", "EntityList", "List that gets the entities");
  effect.component = in.component(2, "no_component", "ComponentName", "Class name of the component");
  effect.clearList = in.flag(3, true, "ClearList", "Empties the list before entities are added");
}

static void run(const GetAllEntitiesWithComponentEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.entityList.text(), "no_list", "GetAllEntitiesWithComponentEffect::EntityList not found")) return;
  if (effect.clearList) handler.ClearEntityList(effect.entityList);
  const std::string& className = handler.ResolveString(effect.component);
  if (isLeftAt(className, "no_component", "GetAllEntitiesWithComponentEffect::ComponentName not found")) return;
  const qsf::ComponentMapQuery query(qsf::getMainMap());
  for (const qsf::Component* component : query.getAllInstancesById(qsf::StringHash(className)))
    if (component && component->findEntity()) handler.AddToEntityList(effect.entityList, component->getEntityId());
}

EFFECT(GetAllEntitiesWithComponent, "EntityLists", "Adds all entities of the map that have a component")

}
