#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/stores/RemainingIds.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <algorithm>
#include <cstdlib>

namespace script {

struct GetEntitiesOutOfEntityListEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The draws are the same in every run of the game.",
      "It is called GetNumberOfEntitiesOutOfEntityListEffect in the log.",
  };

  Argument entityList;
  int number = -1;
};

static void read(GetEntitiesOutOfEntityListEffect& effect, ParameterReader& in) {
  effect.entityList = in.listInOut(1, "no_list", "EntityList", "Name of the list");
  effect.number = in.integer(2, -1, "Number",
                             "How many entities stay in the list, chosen at random. -1 "
                             "leaves the list as it is");
}

static void run(const GetEntitiesOutOfEntityListEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.entityList.text(), "no_list", "GetNumberOfEntitiesOutOfEntityListEffect::EntityList not found"))
    return;
  if (effect.number == -1) return;
  RemainingIds left(handler.ResolveEntityList(effect.entityList).vector());
  handler.ClearEntityList(effect.entityList);
  const int number = std::min(effect.number, static_cast<int>(left.size()));
  for (int i = 0; i < number; ++i) {
    const std::size_t drawn = static_cast<std::size_t>(std::rand()) % left.size();
    handler.AddToEntityList(effect.entityList, left.take(drawn));
  }
}

EFFECT(GetEntitiesOutOfEntityList, "EntityLists", "Keeps a random part of a list, in random order")

}
