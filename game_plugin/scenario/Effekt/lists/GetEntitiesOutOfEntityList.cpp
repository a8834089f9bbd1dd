#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/Placeholder.h"
#include "game_plugin/scenario/shared/RemainingIds.h"

#include <algorithm>
#include <cstdlib>

namespace script {

struct GetEntitiesOutOfEntityListEffect : DefaultEffect {
  Argument entityList;
  int number = -1;
};

static void read(GetEntitiesOutOfEntityListEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "Name of the list");
  effect.number = readIntParameter(tokens, 2, -1, "Number",
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
    // Kept: the draws come from the C library, unseeded, and stay the same in every run of the game.
    const std::size_t drawn = static_cast<std::size_t>(std::rand()) % left.size();
    handler.AddToEntityList(effect.entityList, left.take(drawn));
  }
}

EFFECT(GetEntitiesOutOfEntityList, "EntityLists", "Keeps a random part of a list, in random order")

}
