#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"

namespace script {

struct CreateComponentEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Nothing is logged, though the description promises it; a class that doesn't exist passes without a message, "
      "too.",
  };

  Argument entityList;
  Argument component;
};

static void read(CreateComponentEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList Caller", "Entities that get the component");
  effect.component = in.component(2, "no_Component", "Component", "Class name of the component");
}

static void run(const CreateComponentEffect& effect, ScenarioHandler& handler) {
  const qsf::StringHash componentId(effect.component.text());
  forEachEntity(handler, effect.entityList,
                [&](qsf::Entity& entity) { entity.getOrCreateComponentById(componentId, true); });
}

EFFECT(CreateComponent, "Components", "Creates a component for entities. Logs whether it was possible")

}
