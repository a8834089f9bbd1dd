#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ChangeArray.h"

namespace script {

struct RemoveEntryFromPropertyArrayEffect : DefaultEffect {
  Argument entityList;
  Argument component;
  Argument property;
  Argument value;
};

static void read(RemoveEntryFromPropertyArrayEffect& effect, const Tokens& tokens) {
  effect.entityList =
      readStringParameter(tokens, 1, "no_list", "EntityList", "Entity or entityList, which should be affected");
  effect.component =
      readStringParameter(tokens, 2, "no_component", "ComponentName", "Which component should be affected");
  effect.property =
      readStringParameter(tokens, 3, "no_var", "Property Name", "Which variable of the component should be affected");
  effect.value =
      readStringParameter(tokens, 4, "my_value", "Value", "Which variable of the component should be affected");
}

static void run(const RemoveEntryFromPropertyArrayEffect& effect, ScenarioHandler& handler) {
  changeArrays(handler, effect.entityList, effect.component.text(), effect.property.text(),
               [&](const camp::ArrayProperty& array, const camp::UserObject& object) {
                 const std::size_t index = findElement(array, object, effect.value.text());
                 if (index != array.size(object)) array.remove(object, index); // the first of equal ones
               });
}

EFFECT(RemoveEntryFromPropertyArray, "Components", "Remove an Element with a given value from an existing array")

}
