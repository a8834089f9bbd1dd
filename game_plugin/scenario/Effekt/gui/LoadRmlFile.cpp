#include "game_plugin/gui/GuiInstanceManager.h"
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct LoadRmlFileEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A file that can't be loaded leaves an empty document of that id, which counts as visible.",
      "An id may be used again: what is done to the id is done to all its documents.",
  };

  Argument rmlFile;
  Argument uniqueId;
};

static void read(LoadRmlFileEffect& effect, ParameterReader& in) {
  effect.rmlFile = in.of(ParameterRole::RML_FILE, 1, "no_rml", "RMLFile", "The RML-file, by its path or asset name");
  effect.uniqueId = in.of(ParameterRole::DOCUMENT, 2, "-1", "Unique Id", "The Id which the document gets");
}

static void run(const LoadRmlFileEffect& effect, ScenarioHandler&) {
  logError("Loaded RML"); // kept: this severity, and before anything is loaded
  if (isLeftAt(effect.rmlFile.text(), "no_rml", "LoadRmlFileEffect::RML-File was not found")) return;
  if (GuiInstanceManager* manager = GuiInstanceManager::get()) manager->LoadRMLFile(effect.rmlFile, effect.uniqueId);
}

EFFECT(LoadRmlFile, "GUI", "Load an RML-file and show it InGame")

}
