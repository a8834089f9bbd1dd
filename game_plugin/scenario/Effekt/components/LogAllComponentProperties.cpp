#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/components/ComponentWalk.h"

#include <camp/class.hpp>

namespace script {

struct LogAllComponentPropertiesEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The first parameter is called Component as well, but takes the entities.",
      "The default of the second parameter names no component: the class is called qsf::MetadataComponent.",
      "A missing component is logged in the words of LogComponentValue.",
  };

  Argument entityList;
  Argument component;
};

static void read(LogAllComponentPropertiesEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "Component", "Units which has the Component");
  effect.component = in.component(2, "qsf::MetaDataComponent", "Component", "The name of the Component");
}

static void logProperties(const camp::UserObject& object, const std::string& className) {
  const camp::Class& metaclass = object.getClass();
  logInfo("LogAllComponentProperties: " + className + " has " + std::to_string(metaclass.propertyCount()) +
          " properties.");
  for (std::size_t i = 0; i < metaclass.propertyCount(); ++i) {
    const camp::Property& property = metaclass.property(i);
    logInfo("Property with the id " + std::to_string(i) + " is called " + property.name());
    // An empty array, for one, has no value to show; its line is left out.
    tryReflected([&] { logInfo("Value is: " + property.get(object).to<std::string>()); }, [](const std::string&) {});
  }
}

static void run(const LogAllComponentPropertiesEffect& effect, ScenarioHandler& handler) {
  const std::string& className = effect.component.text();
  forEachComponent(handler, effect.entityList, className, reportMissing("LogComponentValue", className),
                   [&](const qsf::Entity&, qsf::Component& component) {
                     tryReflected([&] { logProperties(reflect(component), className); }, [](const std::string&) {});
                   });
}

EFFECT(LogAllComponentProperties, "Components",
       "Prints all Property-Names from your Component to the log (which are connected to the "
       "CampReflectionSystem).<br> It also shows the current values BUT only the first entry in case the property is "
       "an Array")

}
