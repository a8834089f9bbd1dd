#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ComponentWalk.h"

namespace script {

struct WriteComponentPropertyToStringvarEffect : DefaultEffect {
  Argument entityList;
  Argument component;
  Argument property;
  Argument stringVariable;
  bool writeLogEntry = false;
};

static void read(WriteComponentPropertyToStringvarEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "Units which shall be checked");
  effect.component = readStringParameter(tokens, 2, "no_list", "Component", "The name of the Component");
  effect.property =
      readStringParameter(tokens, 3, "Active", "Property", "The name of the property from which you want to read");
  effect.stringVariable = readStringParameter(tokens, 4, "no_list", "StringVar", "The name of the stringvar");
  effect.writeLogEntry =
      readBoolParameter(tokens, 5, false, "WriteLogEntry",
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
        tryReflected([&] {
          const std::string value = readAsText(component, property);
          if (effect.writeLogEntry)
            logInfo(describeValue("WriteComponentPropertyToStringvar", entity, className, property, value));
          handler.SetStringVariable(effect.stringVariable, value); // of several entities the last one stays
        });
      });
}

EFFECT(WriteComponentPropertyToStringvar, "Components", "Reads a component value and insert it into the stringvar")

}
