#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ConvertEntityToVariableEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "An id above 16777216 loses its last digits.",
      "If the list has no such place, the variable stays as it is, without a message.",
  };

  Argument entityList;
  Argument index;
  Argument variable;
};

static void read(ConvertEntityToVariableEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Ids, or name of a list");
  effect.index = in.number(2, "0", "Index", "Place in the list, from 0");
  effect.variable = in.variableOut(3, "myvar", "variablename", "Name of the variable that gets the id");
}

static void run(const ConvertEntityToVariableEffect& effect, ScenarioHandler& handler) {
  const EntityIds ids = handler.ResolveEntityList(effect.entityList);
  const float index = handler.ResolveFloat(effect.index);
  // Written so that not-a-number finds nothing, too.
  if (!(static_cast<float>(ids.size()) > index)) return;
  const int place = truncateToInt(index);
  if (place < 0 || static_cast<std::size_t>(place) >= ids.size()) return;
  handler.SetFloatVariable(effect.variable, static_cast<float>(ids[static_cast<std::size_t>(place)]));
}

EFFECT(ConvertEntityToVariable, "Variables", "Sets a variable to the id of an entity of a list")

}
