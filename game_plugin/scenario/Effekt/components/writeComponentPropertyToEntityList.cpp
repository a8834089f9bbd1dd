#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/components/ComponentWalk.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/ArrayAccess.h"

namespace script {

struct writeComponentPropertyToEntityListEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The name begins with a small letter, and scripts have to write it so.",
      "The ids are taken as the property holds them, whether such entities exist or not.",
      "A missing component is logged in the words of WriteComponentPropertyToStringvar.",
  };

  Argument entityList;
  Argument component;
  Argument property;
  Argument entityListOut;
  bool clearListBefore = false;
};

static void read(writeComponentPropertyToEntityListEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Units which shall be checked");
  effect.component = in.component(2, "no_list", "Component", "The name of the Component");
  effect.property = in.property(3, 2, "Active", "Property", "The name of the property from which you want to read");
  effect.entityListOut = in.listOut(4, "no_list", "EntityList[out]", "The name of the returned entitylist");
  effect.clearListBefore = in.flag(5, false, "ClearListBefore", "If true it will write the entries into a new list");
}

static void addIds(const writeComponentPropertyToEntityListEffect& effect, ScenarioHandler& handler,
                   const camp::UserObject& object) {
  if (const camp::ArrayProperty* array = findArrayProperty(object, effect.property.text())) {
    for (std::size_t i = 0; i < array->size(object); ++i)
      handler.AddToEntityList(effect.entityListOut, array->get(object, i).to<std::uint64_t>());
  } else {
    handler.AddToEntityList(effect.entityListOut, object.get(effect.property.text()).to<std::uint64_t>());
  }
}

static void run(const writeComponentPropertyToEntityListEffect& effect, ScenarioHandler& handler) {
  const std::string& className = effect.component.text();
  const EntityIds ids = handler.ResolveEntityList(effect.entityList); // before the clearing: both may be the same list
  if (effect.clearListBefore) handler.ClearEntityList(effect.entityListOut);
  forEachComponent(ids, className, reportMissing("WriteComponentPropertyToStringvar", className),
                   [&](const qsf::Entity&, qsf::Component& component) {
                     tryReflected(component, effect.property, [&] { addIds(effect, handler, reflect(component)); });
                   });
}

EFFECT(writeComponentPropertyToEntityList, "Components",
       "Reads a component value and insert it into the entitylist. Supports array properties")

}
