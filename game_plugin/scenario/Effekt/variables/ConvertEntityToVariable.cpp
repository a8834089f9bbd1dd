#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/language/Truncation.h"

namespace script {

struct ConvertEntityToVariableEffect : DefaultEffect {
  Argument entityList;
  Argument index;
  Argument variable;
};

static void read(ConvertEntityToVariableEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "Ids, or name of a list");
  effect.index = readStringParameter(tokens, 2, "0", "Index", "Place in the list, from 0");
  effect.variable = readStringParameter(tokens, 3, "myvar", "variablename", "Name of the variable that gets the id");
}

static void run(const ConvertEntityToVariableEffect& effect, ScenarioHandler& handler) {
  const EntityIds ids = handler.ResolveEntityList(effect.entityList);
  const float index = handler.ResolveFloat(effect.index);
  // Written so that not-a-number finds nothing, too.
  if (!(static_cast<float>(ids.size()) > index)) return;
  const int place = truncateToInt(index);
  if (place < 0 || static_cast<std::size_t>(place) >= ids.size()) return;
  // Ids beyond 2^24 lose their low digits; scripts have to live with it.
  handler.SetFloatVariable(effect.variable, static_cast<float>(ids[static_cast<std::size_t>(place)]));
}

EFFECT(ConvertEntityToVariable, "Variables", "Sets a variable to the id of an entity of a list")

}
