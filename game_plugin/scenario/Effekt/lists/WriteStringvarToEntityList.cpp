#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"

namespace script {

struct WriteStringvarToEntityListEffect : DefaultEffect {
  Argument entityList;
  Argument stringVariable;
};

static void read(WriteStringvarToEntityListEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "Name of the list to fill");
  effect.stringVariable =
      readStringParameter(tokens, 2, "stringvar", "stringvar", "Text with an id or a list's name, mostly svar(name)");
}

static void run(const WriteStringvarToEntityListEffect& effect, ScenarioHandler& handler) {
  const std::string text = handler.ResolveString(effect.stringVariable);
  handler.ClearEntityList(effect.entityList);
  const EntityIds ids = handler.ResolveEntityList(text);
  if (!ids.empty()) handler.AddToEntityList(effect.entityList, ids.front());
}

EFFECT(WriteStringvarToEntityList, "Convertfunctions", "Puts the entity that a text names into a list, alone")

}
