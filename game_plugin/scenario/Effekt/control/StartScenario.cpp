#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/lifecycle/MapScriptManager.h"
#include "game_plugin/scenario/lifecycle/ReadableFile.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct StartScenarioEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "It starts one instance for each known script that has another path: with three scripts in MapScript.json the "
      "first run starts three.",
      "The path counts from the folder in which the game was started; names of assets are not found.",
  };

  Argument scenarioFile;
};

static void read(StartScenarioEffect& effect, ParameterReader& in) {
  effect.scenarioFile = in.of(ParameterRole::SCRIPT, 1, "no_file", "ScenarioFile", "Path of the script file");
}

static void run(const StartScenarioEffect& effect, ScenarioHandler& handler) {
  const std::string path = handler.ResolveString(effect.scenarioFile);
  if (path == "no_file" || !canOpenFile(path))
    logError("StartScenarioEffect::ScenarioFile was not found");
  else if (MapScriptManager* manager = MapScriptManager::get())
    manager->StartTemporaryScript(path);
}

EFFECT(StartScenario, "TidemarkScripts", "Starts a temporary script")

}
