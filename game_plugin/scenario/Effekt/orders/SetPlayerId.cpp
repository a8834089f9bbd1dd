#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"

#include "em5/component/CommandableComponent.h"

namespace script {

struct SetPlayerIdEffect : DefaultEffect {
  Argument entityList;
  Argument playerId;
};

static void read(SetPlayerIdEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "empty_list", "EntityList", "Entities that become the player's units");
  effect.playerId = in.number(2, "0", "PlayerId", "Index of the player");
}

static void run(const SetPlayerIdEffect& effect, ScenarioHandler& handler) {
  for (const std::uint64_t id : handler.ResolveEntityList(effect.entityList)) {
    if (qsf::Entity* entity = findEntity(id)) {
      const int playerId = truncateToInt(handler.ResolveFloat(effect.playerId));
      entity->getOrCreateComponent<em5::CommandableComponent>()->setPlayerId(playerId);
    } else {
      logError("SetPlayerIdEffect::Entity " + std::to_string(id) + " was not found");
    }
  }
}

EFFECT(SetPlayerId, "Units", "Gives units to a player")

}
