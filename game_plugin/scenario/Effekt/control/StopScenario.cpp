#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/lifecycle/MapScriptManager.h"
#include "game_plugin/scenario/lifecycle/ReadableFile.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct StopScenarioEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Of two scripts of that path that follow each other in the list the second is skipped and goes on.",
      "The path must be written exactly as it was when the script was started, and the file must still exist.",
  };

  Argument scenarioFile;
};

static void read(StopScenarioEffect& effect, ParameterReader& in) {
  effect.scenarioFile = in.of(ParameterRole::SCRIPT, 1, "no_file", "ScenrarioFile", "Path of the script file");
}

static void run(const StopScenarioEffect& effect, ScenarioHandler& handler) {
  const std::string path = handler.ResolveString(effect.scenarioFile); // a copy: the script may stop itself
  if (path == "no_file" || !canOpenFile(path))
    logError("StopScenarioEffect::ScenarioFile was not found");
  else if (MapScriptManager* manager = MapScriptManager::get())
    manager->stopScript(path);
}

EFFECT(StopScenario, "TidemarkScripts", "Stops the scripts of that file")

}
