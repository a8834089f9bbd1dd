#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/components/ChangeArray.h"

namespace script {

struct AddEntryToPropertyArrayEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A value that the array already holds isn't added again, and a new one is put at the front.",
  };

  Argument entityList;
  Argument component;
  Argument property;
  Argument value;
};

static void read(AddEntryToPropertyArrayEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entity or entityList, which should be affected");
  effect.component = in.component(2, "no_component", "ComponentName", "Which component should be affected");
  effect.property = in.property(3, 2, "no_var", "Property Name", "Which variable of the component should be affected");
  effect.value = in.raw(4, "new_value", "my_value", "the newly added vlue");
}

static void run(const AddEntryToPropertyArrayEffect& effect, ScenarioHandler& handler) {
  const std::string& value = effect.value.text();
  changeArrays(handler, effect.entityList, effect.component.text(), effect.property.text(),
               [&](const camp::ArrayProperty& array, const camp::UserObject& object) {
                 if (findElement(array, object, value) == array.size(object))
                   array.insert(object, 0, camp::Value(value));
               });
}

EFFECT(AddEntryToPropertyArray, "Components", "Inserts an Element with a given value to an existing array")

}
