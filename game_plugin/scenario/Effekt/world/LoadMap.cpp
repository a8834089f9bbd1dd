#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/application/Application.h"

namespace script {

struct LoadMapEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The map starts when the frame has ended: the effects behind this one still run.",
      "The new game is always an endless one.",
  };

  Argument map;
};

static void read(LoadMapEffect& effect, ParameterReader& in) {
  effect.map = in.of(ParameterRole::MAP, 1, "no_asset", "LocalAssetName of Map", "Local asset name of the map");
}

static void run(const LoadMapEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.map.text(), "no_asset", "LoadMapEffect::LocalAssetName of the map was not found")) return;
  const em5::MapIdentifier map = em5::MapIdentifier::fromLocalAssetName(handler.ResolveString(effect.map));
  const qsf::UniqueInstance<em5::Application> application;
  if (!application) return;
  application->getGameSessionConfiguration().setupForFreeplay(map, "");
  application->triggerStartGame();
}

EFFECT(LoadMap, "General", "Ends the game and starts one on another map")

}
