#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ComponentWalk.h"

namespace script {

struct LogComponentValueEffect : DefaultEffect {
  Argument entityList;
  Argument component;
  Argument property;
};

static void read(LogComponentValueEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "Component", "Units which shall be checked");
  effect.component = readStringParameter(tokens, 2, "no_list", "Component", "The name of the Component");
  effect.property = readStringParameter(tokens, 3, "no_list", "Variable", "a property <-> an example is \"Active\"");
}

static void run(const LogComponentValueEffect& effect, ScenarioHandler& handler) {
  const std::string& className = effect.component.text();
  const std::string& property = effect.property.text();
  forEachComponent(
      handler, effect.entityList, className, reportMissing("LogComponentValue", className),
      [&](const qsf::Entity& entity, qsf::Component& component) {
        tryReflected([&] {
          logInfo(describeValue("LogComponentValue", entity, className, property, readAsText(component, property)));
        });
      });
}

EFFECT(LogComponentValue, "Components", "Logs the value of a component. Will log errors if it isnt possible")

}
