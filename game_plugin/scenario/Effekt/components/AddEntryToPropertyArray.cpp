#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ChangeArray.h"

namespace script {

struct AddEntryToPropertyArrayEffect : DefaultEffect {
  Argument entityList;
  Argument component;
  Argument property;
  Argument value;
};

static void read(AddEntryToPropertyArrayEffect& effect, const Tokens& tokens) {
  effect.entityList =
      readStringParameter(tokens, 1, "no_list", "EntityList", "Entity or entityList, which should be affected");
  effect.component =
      readStringParameter(tokens, 2, "no_component", "ComponentName", "Which component should be affected");
  effect.property =
      readStringParameter(tokens, 3, "no_var", "Property Name", "Which variable of the component should be affected");
  effect.value = readStringParameter(tokens, 4, "new_value", "my_value", "the newly added vlue");
}

static void run(const AddEntryToPropertyArrayEffect& effect, ScenarioHandler& handler) {
  const std::string& value = effect.value.text();
  changeArrays(handler, effect.entityList, effect.component.text(), effect.property.text(),
               [&](const camp::ArrayProperty& array, const camp::UserObject& object) {
                 // The array is used as a set whose newest entry stands in front.
                 if (findElement(array, object, value) == array.size(object))
                   array.insert(object, 0, camp::Value(value));
               });
}

EFFECT(AddEntryToPropertyArray, "Components", "Inserts an Element with a given value to an existing array")

}
