#include "game_plugin/scenario/shared/SetPropertyOfAll.h"

namespace script {

struct SetComponentPropertyEffect : SetPropertyOfAllEffect {};

static void read(SetComponentPropertyEffect& effect, const Tokens& tokens) {
  effect.entityList =
      readStringParameter(tokens, 1, "my_entities", "EntityList", "Entity or entityList, which should be affected");
  effect.component =
      readStringParameter(tokens, 2, "em5::PersonComponent", "ComponentName", "Which component should be affected");
  effect.property =
      readStringParameter(tokens, 3, "Active", "Property", "Which variable of the component should be affected");
  effect.value = readStringParameter(tokens, 4, "1", "Value", "Which value should be used for the property");
}

static void run(const SetComponentPropertyEffect& effect, ScenarioHandler& handler) {
  setPropertyToArgument(effect, handler);
}

EFFECT(SetComponentProperty, "Components", "Set a property from a component to a specific value")

}
