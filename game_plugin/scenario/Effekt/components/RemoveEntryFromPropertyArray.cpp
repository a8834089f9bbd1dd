#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/components/ChangeArray.h"

namespace script {

struct RemoveEntryFromPropertyArrayEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Of several equal entries only the first is removed.",
      "A missing component is logged in the words of AddEntryToPropertyArray.",
  };

  Argument entityList;
  Argument component;
  Argument property;
  Argument value;
};

static void read(RemoveEntryFromPropertyArrayEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entity or entityList, which should be affected");
  effect.component = in.component(2, "no_component", "ComponentName", "Which component should be affected");
  effect.property = in.property(3, 2, "no_var", "Property Name", "Which variable of the component should be affected");
  effect.value = in.raw(4, "my_value", "Value", "Which variable of the component should be affected");
}

static void run(const RemoveEntryFromPropertyArrayEffect& effect, ScenarioHandler& handler) {
  changeArrays(handler, effect.entityList, effect.component.text(), effect.property.text(),
               [&](const camp::ArrayProperty& array, const camp::UserObject& object) {
                 const std::size_t index = findElement(array, object, effect.value.text());
                 if (index != array.size(object)) array.remove(object, index);
               });
}

EFFECT(RemoveEntryFromPropertyArray, "Components", "Remove an Element with a given value from an existing array")

}
