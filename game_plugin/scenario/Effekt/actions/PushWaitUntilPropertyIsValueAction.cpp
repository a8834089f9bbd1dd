#include "game_plugin/action/WaitUntilPropertyIsValue.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/actions/Plans.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/world/RememberedHash.h"

namespace script {

struct PushWaitUntilPropertyIsValueActionEffect : DefaultEffect {
  Argument callers;
  Argument component;
  Argument property;
  Argument value;
};

static void read(PushWaitUntilPropertyIsValueActionEffect& effect, ParameterReader& in) {
  effect.callers = in.list(1, "no_list", "EntityList Caller", "Entities that wait; only those that can act do");
  effect.component = in.component(2, "qsf::MeshComponent", "ComponentName", "Component of theirs");
  effect.property = in.property(3, 2, "Mesh", "PropertyName", "Property of the component");
  effect.value = in.raw(4, "my_wanted_value", "Value", "Text of the value that they wait for, as the log shows it");
}

static void run(const PushWaitUntilPropertyIsValueActionEffect& effect, ScenarioHandler& handler) {
  if (hints::isOn()) hintUnknownComponent(effect.component);
  forEachEntity(handler, effect.callers, [&](const qsf::Entity& caller) {
    auto* actions = caller.getComponent<qsf::ActionComponent>();
    if (!actions) return;
    actions->pushAction<WaitUntilPropertyIsValue>(100, qsf::action::APPEND_TO_BACK)
        .init(rememberedHash(effect.component), rememberedHash(effect.property), effect.value);
  });
}

EFFECT(PushWaitUntilPropertyIsValueAction, "Units", "Lets entities wait until a property of theirs has a value")

}
