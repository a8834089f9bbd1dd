#include "game_plugin/action/SetCampPropertyAction.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/actions/Plans.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"

namespace script {

struct PushSetCampPropertyActionEffect : DefaultEffect {
  Argument callers;
  Argument component;
  Argument property;
  Argument value;
};

static void read(PushSetCampPropertyActionEffect& effect, ParameterReader& in) {
  effect.callers = in.list(1, "no_list", "EntityList Caller", "Entities that it is set of; only those that can act");
  effect.component = in.component(2, "qsf::MeshComponent", "ComponentName", "Component of theirs");
  effect.property = in.property(3, 2, "Mesh", "PropertyName", "Property of the component");
  effect.value = in.raw(4, "my_wanted_value", "Value", "Text of the value");
}

static void run(const PushSetCampPropertyActionEffect& effect, ScenarioHandler& handler) {
  if (hints::isOn()) hintUnknownComponent(effect.component);
  forEachEntity(handler, effect.callers, [&](const qsf::Entity& caller) {
    auto* actions = caller.getComponent<qsf::ActionComponent>();
    if (!actions) return;
    actions->pushAction<SetCampPropertyAction>(100, qsf::action::APPEND_TO_BACK)
        .init(caller.getId(), effect.component, effect.property, effect.value);
  });
}

EFFECT(PushSetCampPropertyAction, "Units", "Sets a property of entities when its turn has come in their plans")

}
