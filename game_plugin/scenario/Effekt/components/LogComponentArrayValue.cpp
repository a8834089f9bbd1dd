#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/components/ComponentWalk.h"

namespace script {

struct LogComponentArrayValueEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The first parameter is called Component as well, but takes the entities.",
      "The array isn't read, and nothing is logged of an entity that has the component; WriteArrayEntriesIntoTheLog "
      "shows an array.",
      "A missing component is logged in the words of LogComponentValue.",
  };

  Argument entityList;
  Argument component;
  Argument property;
};

static void read(LogComponentArrayValueEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "Component", "Units which shall be checked");
  effect.component = in.component(2, "no_list", "Component", "The name of the Component");
  effect.property = in.unused(3, "no_list", "Property", "a property <-> an example is \"Lights\"");
}

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
