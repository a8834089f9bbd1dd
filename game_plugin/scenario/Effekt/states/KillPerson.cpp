#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"

#include "em5/component/HealthComponent.h"
#include "em5/freeplay/FreeplaySystem.h"
#include "em5/plugin/Plugin.h"

namespace script {

struct KillPersonEffect : DefaultEffect {
  Argument entityList;
  bool addToLastEvent = true;
};

static void read(KillPersonEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Persons who die");
  effect.addToLastEvent = in.flag(2, true, "AddToLastEvent", "The newest event that runs counts their death");
}

/// Null if no event runs.
static em5::FreeplayEvent* findLastEvent() {
  em5::Plugin* game = em5::Plugin::getInstance();
  return game ? game->getFreeplaySystem().getEventManager().getLastEvent() : nullptr;
}

static void run(const KillPersonEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.entityList.text(), "no_list", "KillPersonEffect::EntityList not found")) return;
  for (const std::uint64_t id : handler.ResolveEntityList(effect.entityList)) {
    if (qsf::Entity* entity = findEntity(id))
      entity->getOrCreateComponent<em5::HealthComponent>()->killPerson(effect.addToLastEvent ? findLastEvent()
                                                                                             : nullptr);
    else
      logError("KillPersonEffect::EntityList did not found " + std::to_string(id));
  }
}

EFFECT(KillPerson, "Units", "Kills persons")

}
