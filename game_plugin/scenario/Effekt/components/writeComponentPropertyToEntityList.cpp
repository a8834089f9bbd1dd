#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ArrayAccess.h"
#include "game_plugin/scenario/shared/ComponentWalk.h"

namespace script {

struct writeComponentPropertyToEntityListEffect : DefaultEffect {
  Argument entityList;
  Argument component;
  Argument property;
  Argument entityListOut;
  bool clearListBefore = false;
};

static void read(writeComponentPropertyToEntityListEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "Units which shall be checked");
  effect.component = readStringParameter(tokens, 2, "no_list", "Component", "The name of the Component");
  effect.property =
      readStringParameter(tokens, 3, "Active", "Property", "The name of the property from which you want to read");
  effect.entityListOut =
      readStringParameter(tokens, 4, "no_list", "EntityList[out]", "The name of the returned entitylist");
  effect.clearListBefore =
      readBoolParameter(tokens, 5, false, "ClearListBefore", "If true it will write the entries into a new list");
}

/// Takes what the property says, whether entities of these ids exist or not.
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
                     tryReflected([&] { addIds(effect, handler, reflect(component)); });
                   });
}

// The name begins with a small letter, and scripts write it so.
EFFECT(writeComponentPropertyToEntityList, "Components",
       "Reads a component value and insert it into the entitylist. Supports array properties")

}
