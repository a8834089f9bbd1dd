#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/components/ComponentWalk.h"

namespace script {

struct LogComponentValueEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The first parameter is called Component as well, but takes the entities.",
      "A property that doesn't exist is passed over without a message, though the description promises one.",
  };

  Argument entityList;
  Argument component;
  Argument property;
};

static void read(LogComponentValueEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "Component", "Units which shall be checked");
  effect.component = in.component(2, "no_list", "Component", "The name of the Component");
  effect.property = in.property(3, 2, "no_list", "Variable", "a property <-> an example is \"Active\"");
}

static void run(const LogComponentValueEffect& effect, ScenarioHandler& handler) {
  const std::string& className = effect.component.text();
  const std::string& property = effect.property.text();
  forEachComponent(
      handler, effect.entityList, className, reportMissing("LogComponentValue", className),
      [&](const qsf::Entity& entity, qsf::Component& component) {
        tryReflected(component, property, [&] {
          logInfo(describeValue("LogComponentValue", entity, className, property, readAsText(component, property)));
        });
      });
}

EFFECT(LogComponentValue, "Components", "Logs the value of a component. Will log errors if it isnt possible")

}
