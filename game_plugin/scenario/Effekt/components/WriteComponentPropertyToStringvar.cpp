#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/components/ComponentWalk.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct WriteComponentPropertyToStringvarEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Of several entities the value of the last one stays.",
  };

  Argument entityList;
  Argument component;
  Argument property;
  Argument stringVariable;
  bool writeLogEntry = false;
};

static void read(WriteComponentPropertyToStringvarEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Units which shall be checked");
  effect.component = in.component(2, "no_list", "Component", "The name of the Component");
  effect.property = in.property(3, 2, "Active", "Property", "The name of the property from which you want to read");
  effect.stringVariable = in.stringVariableOut(4, "no_list", "StringVar", "The name of the stringvar");
  effect.writeLogEntry = in.flag(5, false, "WriteLogEntry",
                                 "If true it will write a log entry with the current value of the readed property");
}

static void run(const WriteComponentPropertyToStringvarEffect& effect, ScenarioHandler& handler) {
  const std::string& className = effect.component.text();
  const std::string& property = effect.property.text();
  const auto report = reportMissing("WriteComponentPropertyToStringvar", className);
  forEachComponent(
      handler, effect.entityList, className,
      [&](const qsf::Entity& entity) {
        if (effect.writeLogEntry) report(entity);
      },
      [&](const qsf::Entity& entity, qsf::Component& component) {
        tryReflected(component, property, [&] {
          const std::string value = readAsText(component, property);
          if (effect.writeLogEntry)
            logInfo(describeValue("WriteComponentPropertyToStringvar", entity, className, property, value));
          handler.SetStringVariable(effect.stringVariable, value);
        });
      });
}

EFFECT(WriteComponentPropertyToStringvar, "Components", "Reads a component value and insert it into the stringvar")

}
