#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ArrayAccess.h"
#include "game_plugin/scenario/shared/ComponentWalk.h"

namespace script {

struct WriteArrayEntriesIntoEntityListEffect : DefaultEffect {
  Argument entityList;
  Argument component;
  Argument property;
  bool clearListBefore = true;
  Argument entityListOut;
};

static void read(WriteArrayEntriesIntoEntityListEffect& effect, const Tokens& tokens) {
  effect.entityList =
      readStringParameter(tokens, 1, "no_list", "EntityList", "Entity or entityList, which should be affected");
  effect.component =
      readStringParameter(tokens, 2, "no_component", "ComponentName", "Which component should be affected");
  effect.property = readStringParameter(tokens, 3, "property_name", "Property",
                                        "How is the property called where you want to read from");
  effect.clearListBefore =
      readBoolParameter(tokens, 4, true, "Clear EntityList[out]", "Shall the EntityList[out] be cleared before?");
  effect.entityListOut =
      readStringParameter(tokens, 5, "no_list", "EntityList[out]", "Entity or entityList, which should be affected");
}

static void run(const WriteArrayEntriesIntoEntityListEffect& effect, ScenarioHandler& handler) {
  // Kept: the out list is cleared before the in list is read, so one name for both walks over nothing.
  if (effect.clearListBefore) handler.ClearEntityList(effect.entityListOut);
  forEachComponent(handler, effect.entityList, effect.component.text(), passOver,
                   [&](const qsf::Entity&, qsf::Component& component) {
                     tryReflected([&] {
                       const camp::UserObject object = reflect(component);
                       const camp::ArrayProperty& array = requireArrayProperty(object, effect.property.text());
                       for (std::size_t i = 0; i < array.size(object); ++i)
                         handler.AddToEntityList(effect.entityListOut, array.get(object, i).to<std::uint64_t>());
                     });
                   });
}

EFFECT(WriteArrayEntriesIntoEntityList, "Components", "Writes all entries from your array property into an entitiylist")

}
