#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct WriteStringvarToEntityListEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Of several ids, or of a list, only the first is taken.",
      "The list is emptied before the text is read as ids: a text that names the list itself leaves it empty.",
  };

  Argument entityList;
  Argument stringVariable;
};

static void read(WriteStringvarToEntityListEffect& effect, ParameterReader& in) {
  effect.entityList = in.listOut(1, "no_list", "EntityList", "Name of the list to fill");
  effect.stringVariable = in.text(2, "stringvar", "stringvar", "Text with an id or a list's name, mostly svar(name)");
}

static void run(const WriteStringvarToEntityListEffect& effect, ScenarioHandler& handler) {
  const std::string text = handler.ResolveString(effect.stringVariable);
  handler.ClearEntityList(effect.entityList);
  const EntityIds ids = handler.ResolveEntityList(text);
  if (!ids.empty()) handler.AddToEntityList(effect.entityList, ids.front());
}

EFFECT(WriteStringvarToEntityList, "Convertfunctions", "Puts the entity that a text names into a list, alone")

}
