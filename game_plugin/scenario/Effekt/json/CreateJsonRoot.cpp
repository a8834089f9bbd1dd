#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <boost/property_tree/ptree.hpp>

namespace script {

struct CreateJsonRootEffect : DefaultEffect {
  Argument root;
};

static void read(CreateJsonRootEffect& effect, ParameterReader& in) {
  effect.root = in.of(ParameterRole::JSON_VARIABLE_OUT, 1, "no_root", "Property Tree Root",
                      "Name of the JSON variable; what it held is gone");
}

static void run(const CreateJsonRootEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.root.text(), "no_root", "CreateJsonRootEffect::RootName was not found")) return;
  handler.SetJsonVariable(effect.root, boost::property_tree::ptree());
}

EFFECT(CreateJsonRoot, "JSON", "Makes an empty JSON variable")

}
