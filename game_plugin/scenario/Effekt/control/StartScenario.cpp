#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/lifecycle/MapScriptManager.h"
#include "game_plugin/scenario/lifecycle/ReadableFile.h"

namespace script {

struct StartScenarioEffect : DefaultEffect {
  Argument scenarioFile;
};

static void read(StartScenarioEffect& effect, const Tokens& tokens) {
  effect.scenarioFile = readStringParameter(tokens, 1, "no_file", "ScenarioFile", "Path of the script file");
}

static void run(const StartScenarioEffect& effect, ScenarioHandler& handler) {
  const std::string path = handler.ResolveString(effect.scenarioFile);
  // A plain path of the file system, relative to the working directory; no asset name.
  if (path == "no_file" || !canOpenFile(path))
    logError("StartScenarioEffect::ScenarioFile was not found");
  else if (MapScriptManager* manager = MapScriptManager::Get())
    manager->StartTemporaryScript(path);
}

EFFECT(StartScenario, "TidemarkScripts", "Starts a temporary script")

}
