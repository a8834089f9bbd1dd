#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/json/JsonFile.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <boost/property_tree/ptree.hpp>

namespace script {

struct ReadJsonEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A file that can't be read or is malformed ends this tick of the script.",
      "The path counts from the folder in which the game was started.",
  };

  Argument root;
  Argument file;
};

static void read(ReadJsonEffect& effect, ParameterReader& in) {
  effect.root = in.of(ParameterRole::JSON_VARIABLE_OUT, 1, "no_root", "Property Tree Root",
                      "Name of the JSON variable; what it held is gone");
  effect.file = in.of(ParameterRole::FILE_IN, 2, "no_file", "FileName", "Path of the file");
}

static void run(const ReadJsonEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.root.text(), "no_root", "ReadJsonEffect::RootName was not found")) return;
  const std::string& file = handler.ResolveString(effect.file);
  if (isLeftAt(file, "no_file", "ReadJsonEffect::fileName was not found")) return;
  boost::property_tree::ptree& tree = handler.jsonVariable(effect.root); // stays as it is if the file is faulty
  tree = readJsonFile(file);
}

EFFECT(ReadJson, "JSON", "Reads a JSON variable from a file")

}
