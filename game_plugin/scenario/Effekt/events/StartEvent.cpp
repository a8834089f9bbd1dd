#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/freeplay/FreeplaySystem.h"
#include "em5/map/MapIdentifier.h"
#include "em5/plugin/Plugin.h"

namespace script {

struct StartEventEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Each run also switches the season's event \"christmas\" over, on or off; the script's variable iki remembers "
      "which is next.",
      "Each run logs the seasonal events of three maps, with m1, m2 or m3 in front.",
  };

  Argument definition;
  bool unlockEnd = false;
};

static void read(StartEventEffect& effect, ParameterReader& in) {
  effect.definition =
      in.of(ParameterRole::EVENT, 1, "EventDefinition", "Event Definition", "Path of the event's definition");
  effect.unlockEnd = in.flag(2, false, "Unlock Win and Loose - Ability", "true lets the event be won and lost");
}

static void triggerEvent(const StartEventEffect& effect, ScenarioHandler& handler, em5::FreeplaySystem& freeplay) {
  const std::string& definition = handler.ResolveString(effect.definition);
  if (!freeplay.triggerEventByPath(em5::FreeplayEventTriggerInfo(0), definition)) {
    logInfo("Cant start the Event " + definition);
    return;
  }
  em5::FreeplayEvent* event = freeplay.getEventManager().getLastEvent();
  if (effect.unlockEnd && event) {
    event->setCanLoseEvent(true);
    event->setCanWinEvent(true);
  }
}

static void logSeasonalEvents(const char* prefix, const char* map) {
  for (const std::string& name : em5::MapIdentifier::fromLocalAssetName(map).getSeasonalEvents())
    logInfo(prefix + name);
}

static void flipSeason(ScenarioHandler& handler, em5::FreeplayGameMode& gameMode) {
  static const std::string SWITCH = "iki";
  const bool enable = handler.ResolveFloat(SWITCH) == 0;
  handler.SetFloatVariable(SWITCH, enable ? 1.0f : 0.0f);
  gameMode.toggleSeasonalEvent("christmas", enable);
}

static void run(const StartEventEffect& effect, ScenarioHandler& handler) {
  em5::Plugin* game = em5::Plugin::getInstance();
  if (!game) return;
  triggerEvent(effect, handler, game->getFreeplaySystem());
  logSeasonalEvents("m1", "em5/map/map01_munich/map01_munich");
  logSeasonalEvents("m2", "em5/map/map/berlin_brackwald_edition");
  logSeasonalEvents("m3", "em5/map/map01_brackwald/brackwald");
  flipSeason(handler, game->getFreeplaySystem().getGameMode());
}

EFFECT(StartEvent, "Events", "Starts a freeplay event by its definition")

}
