#include "game_plugin/scenario/shared/SetPropertyOfAll.h"

namespace script {

struct SetPropertyFromComponentByCampReflectionEffect : SetPropertyOfAllEffect {};

static void read(SetPropertyFromComponentByCampReflectionEffect& effect, const Tokens& tokens) {
  effect.entityList =
      readStringParameter(tokens, 1, "no_list", "EntityList", "Entity or entityList, which should be affected");
  effect.component =
      readStringParameter(tokens, 2, "no_component", "ComponentName", "Which component should be affected");
  effect.property =
      readStringParameter(tokens, 3, "no_var", "Variable", "Which variable of the component should be affected");
  effect.value = readStringParameter(tokens, 4, "no_value", "Value", "Which value should be used for the variable");
}

static void run(const SetPropertyFromComponentByCampReflectionEffect& effect, ScenarioHandler& handler) {
  setPropertyToArgument(effect, handler);
}

EFFECT(SetPropertyFromComponentByCampReflection, "Components",
       "Set a variable from a component to a specific value (notice that this is the old name - the new name is "
       "SetComponentProperty)")

}
