#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/components/ComponentWalk.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/ArrayAccess.h"

namespace script {

struct WriteArrayEntriesIntoEntityListEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "If the out list is emptied, that happens before the in list is read: one name for both gives an empty list.",
  };

  Argument entityList;
  Argument component;
  Argument property;
  bool clearListBefore = true;
  Argument entityListOut;
};

static void read(WriteArrayEntriesIntoEntityListEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entity or entityList, which should be affected");
  effect.component = in.component(2, "no_component", "ComponentName", "Which component should be affected");
  effect.property =
      in.property(3, 2, "property_name", "Property", "How is the property called where you want to read from");
  effect.clearListBefore = in.flag(4, true, "Clear EntityList[out]", "Shall the EntityList[out] be cleared before?");
  effect.entityListOut = in.listOut(5, "no_list", "EntityList[out]", "Entity or entityList, which should be affected");
}

static void run(const WriteArrayEntriesIntoEntityListEffect& effect, ScenarioHandler& handler) {
  if (effect.clearListBefore) handler.ClearEntityList(effect.entityListOut);
  forEachComponent(handler, effect.entityList, effect.component.text(), passOver,
                   [&](const qsf::Entity&, qsf::Component& component) {
                     tryReflected(component, effect.property, [&] {
                       const camp::UserObject object = reflect(component);
                       const camp::ArrayProperty& array = requireArrayProperty(object, effect.property.text());
                       for (std::size_t i = 0; i < array.size(object); ++i)
                         handler.AddToEntityList(effect.entityListOut, array.get(object, i).to<std::uint64_t>());
                     });
                   });
}

EFFECT(WriteArrayEntriesIntoEntityList, "Components", "Writes all entries from your array property into an entitiylist")

}
