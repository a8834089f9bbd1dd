#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/components/SetPropertyOfAll.h"

namespace script {

struct SetPropertyFromComponentByCampReflectionEffect : SetPropertyOfAllEffect {};

static void read(SetPropertyFromComponentByCampReflectionEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entity or entityList, which should be affected");
  effect.component = in.component(2, "no_component", "ComponentName", "Which component should be affected");
  effect.property = in.property(3, 2, "no_var", "Variable", "Which variable of the component should be affected");
  effect.value = in.text(4, "no_value", "Value", "Which value should be used for the variable");
}

static void run(const SetPropertyFromComponentByCampReflectionEffect& effect, ScenarioHandler& handler) {
  setPropertyToArgument(effect, handler);
}

EFFECT(SetPropertyFromComponentByCampReflection, "Components",
       "Set a variable from a component to a specific value (notice that this is the old name - the new name is "
       "SetComponentProperty)")

}
