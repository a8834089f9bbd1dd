#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/Qsf.h"
#include "qsf/plugin/PluginSystem.h"

#include <algorithm>

namespace script {

struct IsPluginLoadedCondition : DefaultCondition {
  Argument pluginName;
};

static void read(IsPluginLoadedCondition& condition, ParameterReader& in) {
  condition.pluginName = in.text(1, "Ordermanagment", "Pluginname", "The Name of the plugin");
}

static bool test(const IsPluginLoadedCondition& condition, ScenarioHandler& handler) {
  const std::string& name = handler.ResolveString(condition.pluginName);
  return std::ranges::any_of(qsf::Qsf::instance()->getPluginSystem().getPlugins(),
                             [&](const qsf::Plugin* plugin) { return plugin->getName() == name; });
}

// The description is that of GetLanguage; authors know the entry by it.
CONDITION(IsPluginLoaded, "GUI", "Checks if the user has the given language")

}
