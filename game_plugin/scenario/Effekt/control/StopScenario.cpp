#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/lifecycle/MapScriptManager.h"
#include "game_plugin/scenario/lifecycle/ReadableFile.h"

namespace script {

struct StopScenarioEffect : DefaultEffect {
  Argument scenarioFile;
};

static void read(StopScenarioEffect& effect, const Tokens& tokens) {
  effect.scenarioFile = readStringParameter(tokens, 1, "no_file", "ScenrarioFile", "Path of the script file");
}

static void run(const StopScenarioEffect& effect, ScenarioHandler& handler) {
  const std::string path = handler.ResolveString(effect.scenarioFile); // a copy: the script may stop itself
  if (path == "no_file" || !canOpenFile(path))
    logError("StopScenarioEffect::ScenarioFile was not found");
  else if (MapScriptManager* manager = MapScriptManager::Get())
    manager->StopScript(path);
}

EFFECT(StopScenario, "TidemarkScripts", "Stops the scripts of that file")

}
