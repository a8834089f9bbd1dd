#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/json/JsonFile.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <boost/property_tree/ptree.hpp>

namespace script {

struct WriteJsonEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Every value in the file is a quoted text, numbers too.",
      "The outermost value in the file is always an object, also if an array was read.",
      "A value that has children as well as a text can't be written; that ends this tick of the script.",
      "The path counts from the folder in which the game was started, and no folder is made.",
  };

  Argument root;
  Argument file;
};

static void read(WriteJsonEffect& effect, ParameterReader& in) {
  effect.root = in.of(ParameterRole::JSON_VARIABLE_IN, 1, "no_root", "Property Tree Root",
                      "Name of the JSON variable that is written");
  effect.file = in.of(ParameterRole::FILE_OUT, 2, "no_file", "JsonFile", "Path of the file, which is replaced");
}

static void run(const WriteJsonEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.root.text(), "no_root", "WriteJsonEffect::RootName was not found")) return;
  const std::string& file = handler.ResolveString(effect.file);
  const boost::property_tree::ptree& tree = handler.jsonVariable(effect.root); // also for no file, it is there then
  if (isLeftAt(file, "no_file", "WriteJsonEffect::FileName was not found")) return;
  writeJsonFile(file, tree);
}

EFFECT(WriteJson, "JSON", "Writes a JSON variable to a file")

}
