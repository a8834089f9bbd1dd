#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/Qsf.h"
#include "qsf/game/EventTagComponent.h"
#include "qsf/map/Map.h"

namespace script {

struct AddEntitiesByEventTagToEntityListEffect : DefaultEffect {
  Argument eventTag;
  Argument entityList;
  bool clearList = true;
};

static void read(AddEntitiesByEventTagToEntityListEffect& effect, ParameterReader& in) {
  effect.eventTag = in.raw(1, "empty_tag", "EventTag", "Eventtag which we are looking for");
  effect.entityList = in.listOut(2, "empty_list", "EntityList", "Write the found entities to this list");
  effect.clearList = in.flag(3, true, "Clear EntityList First", "Set it to true if you want to clear the list before");
}

static void run(const AddEntitiesByEventTagToEntityListEffect& effect, ScenarioHandler& handler) {
  if (effect.clearList) handler.ClearEntityList(effect.entityList);
  const auto& components = qsf::getMainMap().getComponentInstances(qsf::game::EventTagComponent::COMPONENT_ID);
  for (const qsf::Component* component : components)
    if (static_cast<const qsf::game::EventTagComponent*>(component)->hasTag(effect.eventTag.text(), false))
      handler.AddToEntityList(effect.entityList, component->getEntityId());
}

EFFECT(AddEntitiesByEventTagToEntityList, "EntityLists", "Adds all entities with the given Eventtag to a entitylist")

}
