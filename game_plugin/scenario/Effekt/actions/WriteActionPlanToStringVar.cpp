#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/actions/Plans.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"

namespace script {

struct WriteActionPlanToStringVarEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Two blanks stand before the first action of an entity, and nothing between entities.",
  };

  Argument entityList;
  Argument stringVariable;
};

static void read(WriteActionPlanToStringVarEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities whose plans are told");
  effect.stringVariable = in.stringVariableOut(2, "Actionplan", "Stringvar", "Gets the text");
}

static void run(const WriteActionPlanToStringVarEffect& effect, ScenarioHandler& handler) {
  std::string text;
  forEachEntity(handler, effect.entityList, [&](const qsf::Entity& entity) {
    const auto* actions = entity.getComponent<qsf::ActionComponent>();
    if (!actions) return;
    text += std::to_string(entity.getId()) + ": ";
    for (const qsf::Action* action : actions->getPlan().getActions())
      text += " " + action->getTypeName() + " (" + std::to_string(action->getPriority()) + ")";
  });
  handler.SetStringVariable(effect.stringVariable, text);
}

EFFECT(WriteActionPlanToStringVar, "Actions",
       "Writes the plans of entities into a string variable: id, actions in their order, their priorities")

}
