#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/components/SetPropertyOfAll.h"

namespace script {

struct SetComponentPropertyEffect : SetPropertyOfAllEffect {};

static void read(SetComponentPropertyEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "my_entities", "EntityList", "Entity or entityList, which should be affected");
  effect.component = in.component(2, "em5::PersonComponent", "ComponentName", "Which component should be affected");
  effect.property = in.property(3, 2, "Active", "Property", "Which variable of the component should be affected");
  effect.value = in.text(4, "1", "Value", "Which value should be used for the property");
}

static void run(const SetComponentPropertyEffect& effect, ScenarioHandler& handler) {
  setPropertyToArgument(effect, handler);
}

EFFECT(SetComponentProperty, "Components", "Set a property from a component to a specific value")

}
