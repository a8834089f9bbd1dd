#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ComponentWalk.h"

namespace script {

struct LogComponentArrayValueEffect : DefaultEffect {
  Argument entityList;
  Argument component;
  Argument property;
};

static void read(LogComponentArrayValueEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "Component", "Units which shall be checked");
  effect.component = readStringParameter(tokens, 2, "no_list", "Component", "The name of the Component");
  effect.property = readStringParameter(tokens, 3, "no_list", "Property", "a property <-> an example is \"Lights\"");
}

/// Kept: the array isn't read and nothing is logged on success. Scripts use the entry as a test for a missing
/// component; WriteArrayEntriesIntoTheLog shows an array.
static void run(const LogComponentArrayValueEffect& effect, ScenarioHandler& handler) {
  const std::string& className = effect.component.text();
  forEachComponent(handler, effect.entityList, className, reportMissing("LogComponentValue", className),
                   [&](const qsf::Entity&, qsf::Component& component) {
                     tryReflected([&] { static_cast<void>(reflect(component)); },
                                  [](const std::string& fault) { logInfo("ARRAY: " + fault); });
                   });
}

EFFECT(LogComponentArrayValue, "Components", "Logs the ARRAY-value of a component. Will log errors if it isnt possible")

}
