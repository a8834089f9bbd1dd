#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/components/ComponentWalk.h"
#include "game_plugin/scenario/world/ArrayAccess.h"

namespace script {

struct WriteArrayEntriesIntoTheLogEffect : DefaultEffect {
  Argument entityList;
  Argument component;
  Argument property;
};

static void read(WriteArrayEntriesIntoTheLogEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entity or entityList, which should be affected");
  effect.component = in.component(2, "no_component", "ComponentName", "Which component should be affected");
  effect.property = in.property(3, 2, "no_var", "Property", "Which Property of the component should be affected");
}

static void run(const WriteArrayEntriesIntoTheLogEffect& effect, ScenarioHandler& handler) {
  forEachComponent(handler, effect.entityList, effect.component.text(), passOver,
                   [&](const qsf::Entity&, qsf::Component& component) {
                     tryReflected(component, effect.property, [&] {
                       const camp::UserObject object = reflect(component);
                       const camp::ArrayProperty& array = requireArrayProperty(object, effect.property.text());
                       for (std::size_t i = 0; i < array.size(object); ++i)
                         logInfo(std::to_string(i) + ": " + array.get(object, i).to<std::string>());
                     });
                   });
}

EFFECT(WriteArrayEntriesIntoTheLog, "Components", "Writes all entries from your array property into the Log")

}
